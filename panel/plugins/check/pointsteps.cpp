#include "checksteps.h"

#include "projectfiles.h"

#include <zeplet/zeplet.h>

#include <QDateTime>
#include <QFileInfo>
#include <QJsonObject>

using namespace zeplet;

namespace
{

const QString point = QStringLiteral("point");
const QString tool = QStringLiteral("tool0");
const QString wobj = QStringLiteral("wobj0");
const QString array = QStringLiteral("pallet");

InterfaceManager *robot()
{
    return zepletInterface();
}

CheckStep edit(CheckSession *session, const QString &title, const QString &name,
               const std::function<bool()> &edit)
{
    return editStep(session, title, point, name, edit);
}

QJsonObject element(double x)
{
    const QJsonObject position {
        {QStringLiteral("x"), x}, {QStringLiteral("y"), 120.5}, {QStringLiteral("z"), 300}};
    const QJsonObject frame {{QStringLiteral("pos"), position}};
    return {{QStringLiteral("pose"), QJsonObject {{QStringLiteral("frame"), frame}}},
            {QStringLiteral("note"), QStringLiteral("corner of the pallet")}};
}

QVector<double> shifted(const QString &name, double z)
{
    QVector<double> pose = robot()->getPointDataByName(name, QString());
    if (pose.size() == 6)
        pose[2] += z;
    return pose;
}

/** Writes the element in a file of the same size. written: when that was by the file system, since
 *  the panel sets the modification time forward where two saves would have the same second. */
QString move(double x, QDateTime *written)
{
    if (!robot()->setPointElementJson(array, QStringLiteral("[0]"), element(x)))
        return QStringLiteral("an edit returned false");
    *written = QFileInfo(projectfiles::panelDirectory() + QStringLiteral("/point.json"))
                   .metadataChangeTime();
    return projectfiles::difference(point);
}

/** A file of the same size that is as old, to the second, is what a copy may leave out. */
QString moveTwice()
{
    QDateTime first;
    QDateTime second;
    for (int tries = 0; tries < 20; ++tries) {
        QString problem = move(410.25, &first);
        if (problem.isEmpty())
            problem = move(430.75, &second);
        if (!problem.isEmpty() || first.msecsTo(second) < 1000)
            return problem;
    }
    return QStringLiteral("no two edits within a second in twenty tries");
}

QString refusedElement()
{
    const QString name = QStringLiteral("locked_gauge");
    const QByteArray before = projectfiles::onPanel(point);
    if (robot()->ensurePointElement(name, QStringLiteral("[1]")))
        return QStringLiteral("the edit returned true");
    return projectfiles::onPanel(point) == before && projectfiles::onController(point) == before
        ? QString()
        : QStringLiteral("a file has changed");
}

} // namespace

CheckSteps pointSteps(CheckSession *session)
{
    const QString home = QStringLiteral("home");
    const QString parked = QStringLiteral("parked");
    return {
        edit(session, QStringLiteral("Cartesian point taught"), home,
             [=] { return robot()->addCurrentPoint(home, false, tool, wobj, {}); }),
        edit(session, QStringLiteral("joint point taught"), parked,
             [=] { return robot()->addCurrentPoint(parked, true, tool, wobj, {}); }),
        edit(session, QStringLiteral("array point made"), array,
             [] { return robot()->createPoint(array, false, true); }),
        edit(session, QStringLiteral("array point: first element written"), array,
             [] { return robot()->setPointElementJson(array, {}, element(400)); }),
        edit(session, QStringLiteral("array point: second element made"), array,
             [] { return robot()->ensurePointElement(array, QStringLiteral("[1]")); }),
        edit(session, QStringLiteral("array point: third element taught"), array,
             [] {
                 return robot()->addCurrentPoint(array, false, tool, wobj, QStringLiteral("[2]"));
             }),
        edit(session, QStringLiteral("Cartesian pose edited"), home,
             [=] { return robot()->setPointCartData(home, shifted(home, 40), {}); }),
        edit(session, QStringLiteral("joint values edited"), parked,
             [=] {
                 return robot()->setPointJointData(parked, {0, -15, 20, 0, 80, 0}, {});
             }),
        edit(session, QStringLiteral("element removed"), array,
             [] { return robot()->removePointElement(array, QStringLiteral("[2]")); }),
        atOnce(QStringLiteral("two edits within a second, both arrived"),
               [session] {
                   QString problem = moveTwice();
                   session->kept()->keep(point, array);
                   return problem;
               }),
    };
}

CheckSteps hotUpdateSteps(CheckSession *session)
{
    const QString locked = QStringLiteral("locked_gauge");
    const QString refusal = QStringLiteral("did not take over the change to point ") + locked;
    return {
        edit(session, QStringLiteral("hot update: persistent element written"), array,
             [] {
                 return robot()->setPointElementJson(array, QStringLiteral("[1]"), element(555.5));
             }),
        answerStep(session, QStringLiteral("hot update: element taken over by the controller"),
                   QStringLiteral("point get ") + array,
                   [](const QJsonValue &taken) {
                       return taken[QStringLiteral("value")][QStringLiteral("[1][0][0]")]
                           == element(555.5);
                   }),
        edit(session, QStringLiteral("hot update: locked point made"), locked,
             [=] { return robot()->createPoint(locked, false, true); }),
        atOnce(QStringLiteral("hot update: element refused, files as they were"), refusedElement),
        messageStep(
            session, QStringLiteral("hot update: refused edit told to the operator"),
            [=] { robot()->setPointElementJson(locked, {}, element(1)); }, refusal),
        edit(session, QStringLiteral("locked point removed"), locked,
             [=] { return robot()->removePoint(locked); }),
    };
}
