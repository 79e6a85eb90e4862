#include "checksteps.h"

#include "projectfiles.h"

#include <zeplet/zeplet.h>

#include <memory>

using namespace zeplet;

namespace
{

const QString point = QStringLiteral("point");
const QString home = QStringLiteral("home");
const QString alone = QStringLiteral("made_alone");

InterfaceManager *robot()
{
    return zepletInterface();
}

bool raise(const QString &name, double z)
{
    QVector<double> pose = robot()->getPointDataByName(name, QString());
    if (pose.size() != 6)
        return false;
    pose[2] += z;
    return robot()->setPointCartData(name, pose, QString());
}

/** The controller dies when rsync has been started for the edit and has copied nothing. */
bool raiseWhileControllerDies(CheckSession *session)
{
    const QByteArray path = qgetenv("PATH");
    qputenv("ZEPLET_CHECK_PATH", path);
    qputenv("ZEPLET_CHECK_VICTIM", QByteArray::number(session->simulator()->processId()));
    qputenv("PATH", qgetenv("ZEPLET_CHECK_STANDINS") + ':' + path);
    const bool done = raise(home, 10);
    qputenv("PATH", path);
    return done;
}

/** Of an edit that returned false because its file was not copied, the panel keeps all. */
QString problemOfUnsent(bool returned, const QByteArray &before)
{
    if (returned)
        return QStringLiteral("the edit returned true");
    if (projectfiles::onController(point) != before)
        return QStringLiteral("the controller's file has changed");
    if (projectfiles::onPanel(point) == before)
        return QStringLiteral("the panel's file has not changed");
    return projectfiles::panelDifference(point);
}

QString lost(CheckSession *session, const QJsonArray &points, const QJsonArray &variables)
{
    const QString name = session->kept()->lostFrom(points, variables);
    if (session->kept()->count() < 5)
        return QStringLiteral("only %1 records are kept").arg(session->kept()->count());
    return name.isEmpty() ? QString() : name + QStringLiteral(" is lost or another");
}

QString lostOnPanel(CheckSession *session)
{
    using namespace projectfiles;
    const QString inStore = lost(session, stored(point), stored(QStringLiteral("var")));
    return inStore.isEmpty()
        ? lost(session, recordsOf(onPanel(point)), recordsOf(onPanel(QStringLiteral("var"))))
        : inStore;
}

QString lostOnController(CheckSession *session)
{
    using namespace projectfiles;
    return lost(session, recordsOf(onController(point)),
                recordsOf(onController(QStringLiteral("var"))));
}

/** What can't be done without a controller leaves nothing behind. */
QString refusedAlone()
{
    const QByteArray before = projectfiles::onPanel(point);
    const QJsonArray stored = projectfiles::stored(point);
    const QString variable = QStringLiteral("box_count");
    const QJsonObject value = robot()->getVarObjDataByName(variable);
    if (robot()->addCurrentPoint(QStringLiteral("untaught"), false, QStringLiteral("tool0"),
                                 QStringLiteral("wobj0"), QString())
        || robot()->updateVarData(variable, 99))
        return QStringLiteral("an edit returned true");
    const bool same = projectfiles::onPanel(point) == before
        && projectfiles::stored(point) == stored && robot()->getVarObjDataByName(variable) == value;
    return same ? QString() : QStringLiteral("something has changed");
}

QString reopen(CheckSession *session)
{
    const QJsonArray before = projectfiles::stored(point);
    const QString name = robot()->getCurProject().section(QLatin1Char('/'), -1);
    if (robot()->changeProject(name) != 0)
        return QStringLiteral("the project can't be opened again");
    if (projectfiles::stored(point) != before)
        return QStringLiteral("other points were read");
    return lostOnPanel(session);
}

CheckSteps filesDownSteps(CheckSession *session)
{
    const auto isDone = [](const QJsonValue &) { return true; };
    return {
        answerStep(session, QStringLiteral("the controller's files fail"),
                   QStringLiteral("files down"), isDone),
        atOnce(QStringLiteral("an edit returns false, the panel keeps it"),
               [=] {
                   const QByteArray before = projectfiles::onController(point);
                   session->kept()->forget(point, home);
                   return problemOfUnsent(raise(home, 5), before);
               }),
        answerStep(session, QStringLiteral("the controller's files are back"),
                   QStringLiteral("files up"), isDone),
        editStep(session, QStringLiteral("the next edit brings all to the controller"), point, home,
                 [] { return raise(home, -5); }),
    };
}

CheckSteps awaySteps(CheckSession *session, const std::shared_ptr<QByteArray> &lastSent)
{
    return {
        atOnce(QStringLiteral("controller lost in the middle of an edit, the panel keeps it"),
               [=] {
                   session->forgetNews();
                   *lastSent = projectfiles::onController(point);
                   session->kept()->forget(point, home);
                   return problemOfUnsent(raiseWhileControllerDies(session), *lastSent);
               }),
        {QStringLiteral("controller lost: NetworkDisconnected"),
         {},
         [=] { return session->eventTypes() == QList<int> {NetworkDisconnected}; },
         [=] { return toldEvents(session); }},
        {QStringLiteral("hub lost"),
         {},
         [=] {
             return !session->simulator()->isRunning()
                 && !robot()->getNodeData(QStringLiteral("nexo.connected")).toBool();
         }},
        atOnce(QStringLiteral("teaching is refused, nothing changes"), refusedAlone),
        atOnce(
            QStringLiteral("a point made without a controller is kept on the panel"),
            [=] { return problemOfUnsent(robot()->createPoint(alone, false, false), *lastSent); }),
    };
}

CheckSteps backSteps(CheckSession *session, const std::shared_ptr<QByteArray> &lastSent)
{
    return {
        {QStringLiteral("controller and hub back: NetworkConnected, once"),
         [=] {
             session->forgetNews();
             session->simulator()->start();
         },
         [=] { return session->eventTypes().count(NetworkConnected) == 1; },
         [=] { return toldEvents(session); }},
        answerStep(session, QStringLiteral("project open on the controller again"),
                   QStringLiteral("project get"),
                   [](const QJsonValue &projects) {
                       return projects[QStringLiteral("projects")].toArray().contains(
                           robot()->getCurProject().section(QLatin1Char('/'), -1));
                   }),
        atOnce(QStringLiteral("every edit that returned true is still on the panel"),
               [=] { return lostOnPanel(session); }),
        atOnce(QStringLiteral("the controller's file is the last one that was sent"),
               [=] {
                   return projectfiles::onController(point) == *lastSent
                       ? QString()
                       : QStringLiteral("it is another");
               }),
        editStep(session, QStringLiteral("the next edit brings all to the controller"), point, home,
                 [] { return raise(home, -10); }),
        atOnce(QStringLiteral("every edit that returned true is on the controller"),
               [=] { return lostOnController(session); }),
        atOnce(QStringLiteral("project opened again from its files, nothing missing"),
               [=] { return reopen(session); }),
    };
}

} // namespace

CheckSteps lossSteps(CheckSession *session)
{
    const auto lastSent = std::make_shared<QByteArray>();
    return filesDownSteps(session) + awaySteps(session, lastSent) + backSteps(session, lastSent);
}
