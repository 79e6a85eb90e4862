#include "pointedits.h"

#include <QCoreApplication>
#include <QJsonValue>
#include <zeplet/interface/interfacemanager.h>
#include <zeplet/projectdata/pointsaving.h>

using zeplet::zepletInterface;

namespace pointedits
{

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(points)
};

bool exists(const QString &name)
{
    return !zepletInterface()->getPointDimensions(name).isEmpty();
}

/** An element of a point, as a person calls it. */
QString called(const Point &point, const QString &index)
{
    return point.elements.size() > 1 ? point.name + ' ' + index : point.name;
}

Outcome done(const QString &sentence, const QString &name)
{
    return {Outcome::Done, sentence.arg(name)};
}

Outcome refused(const QString &sentence, const QString &name)
{
    return {Outcome::Refused, sentence.arg(name)};
}

Outcome unsaved(const QString &name)
{
    return {Outcome::Unsaved,
            Texts::tr(
                "\"%1\" is changed on this panel but not on the controller: check the link and the "
                "panel's disk, then save again.")
                .arg(name)};
}

Outcome noLink()
{
    return {Outcome::Refused,
            Texts::tr(
                "There is no link to the controller, and nothing was changed: try again when it is "
                "connected.")};
}

Outcome gone(const QString &name)
{
    return refused(
        Texts::tr("The point \"%1\" is no longer in the project, and nothing was changed: choose "
                  "another one."),
        name);
}

// The controller takes an element of a persistent array at once, or refuses it.
Outcome edited(bool succeeded, const QString &sentence, const Point &point, const QString &index)
{
    if (succeeded)
        return done(sentence, called(point, index));
    if (!exists(point.name))
        return gone(point.name);
    if (!point.persistent || index == firstElement)
        return unsaved(called(point, index));
    return {Outcome::Unsaved,
            Texts::tr(
                "\"%1\" is changed on this panel, but the controller did not take it, or it could "
                "not be saved: check the link and the panel's disk, then save again.")
                .arg(called(point, index))};
}

/** Empty where the controller did not tell all of it: zeros must never be taught. */
QJsonObject askPosition(const Teaching &teaching)
{
    const QJsonValue position
        = zepletInterface()->getCurrentPointData(teaching.tool, teaching.wobj);
    return taughtElement(position.toObject(), teaching.joint, teaching.tool, teaching.wobj);
}

Outcome noPosition(const QString &name)
{
    return refused(
        Texts::tr("The controller did not tell where the robot is, and nothing was taught to "
                  "\"%1\": check that it knows the tool and the work object, and try again."),
        name);
}

// The property follows what is written by value.
bool changeKind(const Point &point, const QString &index, bool joint)
{
    const Point now = pointOf(zepletInterface()->getPointObjDataByName(point.name));
    const Element *const found = now.element(index);
    if (!found)
        return false;
    return joint ? zepletInterface()->setPointJointData(point.name, found->joints, index)
                 : zepletInterface()->setPointCartData(point.name, found->pose, index);
}

} // namespace

Outcome teachNew(const QString &name, bool persistent, const Teaching &teaching)
{
    if (!zepletInterface()->getRobotConnected())
        return noLink();
    if (exists(name))
        return refused(
            Texts::tr("There is a point \"%1\" already: choose another name, or teach that one."),
            name);
    const QJsonObject element = askPosition(teaching);
    if (element.isEmpty())
        return noPosition(name);
    if (!zepletInterface()->createPoint(name, teaching.joint, persistent) && !exists(name))
        return refused(Texts::tr("The point \"%1\" could not be made: choose another name."), name);
    // Made is made: only the last save counts, which takes everything.
    if (!zepletInterface()->setPointElementJson(name, firstElement, element))
        return unsaved(name);
    return done(Texts::tr("\"%1\" is taught."), name);
}

Outcome teach(const Point &point, const QString &index, const Teaching &teaching)
{
    if (!zepletInterface()->getRobotConnected())
        return noLink();
    if (!exists(point.name))
        return gone(point.name);
    const QJsonObject element = askPosition(teaching);
    if (element.isEmpty())
        return noPosition(called(point, index));
    bool saved = zepletInterface()->setPointElementJson(point.name, index, element);
    if (teaching.joint != point.joint)
        saved = changeKind(point, index, teaching.joint);
    return edited(saved, Texts::tr("\"%1\" is taught."), point, index);
}

Outcome setValues(const Point &point, const QString &index, const QVector<double> &values)
{
    if (!zepletInterface()->getRobotConnected())
        return noLink();
    if (!zepletInterface()->getPointValueIndexList(point.name).contains(index))
        return gone(called(point, index));
    const bool saved = point.joint ? zepletInterface()->setPointJointData(point.name, values, index)
                                   : zepletInterface()->setPointCartData(point.name, values, index);
    return edited(saved, Texts::tr("\"%1\" has its new values."), point, index);
}

Outcome addElement(const Point &point, const QString &index)
{
    if (!zepletInterface()->getRobotConnected())
        return noLink();
    const bool saved = zepletInterface()->ensurePointElement(point.name, index);
    const QString name = point.name + ' ' + index;
    if (saved)
        return done(Texts::tr("\"%1\" is a copy of the first element: teach it its own position."),
                    name);
    return exists(point.name) ? unsaved(name) : gone(point.name);
}

Outcome removeElement(const Point &point, const QString &index)
{
    if (point.elements.size() < 2)
        return remove(point);
    if (!zepletInterface()->getRobotConnected())
        return noLink();
    const QString name = called(point, index);
    if (zepletInterface()->removePointElement(point.name, index))
        return done(Texts::tr("\"%1\" is deleted."), name);
    return zepletInterface()->getPointValueIndexList(point.name).contains(index) ? gone(name)
                                                                                 : unsaved(name);
}

Outcome remove(const Point &point)
{
    if (!zepletInterface()->getRobotConnected())
        return noLink();
    if (!exists(point.name))
        return gone(point.name);
    if (zepletInterface()->removePoint(point.name))
        return done(Texts::tr("\"%1\" is deleted."), point.name);
    if (!exists(point.name))
        return unsaved(point.name);
    return refused(
        Texts::tr("The controller did not let go of \"%1\", and it stays: a program may use it. "
                  "Stop the program, check the link, and try again."),
        point.name);
}

Outcome save()
{
    if (!zepletInterface()->getRobotConnected())
        return {Outcome::Unsaved,
                Texts::tr("There is no link to the controller: save again when it is connected.")};
    if (zeplet::saveAndPushPoint())
        return {Outcome::Done,
                Texts::tr("All points are saved on the panel and on the controller.")};
    return {Outcome::Unsaved,
            Texts::tr("The points could not be saved: check the network to the controller and the "
                      "space on the panel's disk, then save again.")};
}

QString nameRefusal(const QString &name, const QVector<Point> &points)
{
    const QString trimmed = name.trimmed();
    if (trimmed.isEmpty())
        return Texts::tr("The point needs a name.");
    for (const Point &point : points) {
        if (point.name.compare(trimmed, Qt::CaseInsensitive) == 0)
            return Texts::tr(
                       "There is a point \"%1\" already: choose another name, or teach that one.")
                .arg(point.name);
    }
    return QString();
}

} // namespace pointedits
