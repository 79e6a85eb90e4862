#include "checksteps.h"

#include <zeplet/zeplet.h>

#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>
#include <cmath>

using namespace zeplet;

namespace
{

const QString stateKey = QStringLiteral("motion.state");
const QString poseKey = QStringLiteral("motion.pose");
const QString errorKey = QStringLiteral("move.last_error_with_setting");
const QString home = QStringLiteral("home");
const QString pick = QStringLiteral("pick");
const QString tool = QStringLiteral("tool0");
const QString wobj = QStringLiteral("wobj0");

InterfaceManager *robot()
{
    return zepletInterface();
}

QVector<double> numbers(const QJsonValue &object, std::initializer_list<const char *> names)
{
    QVector<double> values;
    for (const char *name : names)
        values << object[QLatin1String(name)].toDouble();
    return values;
}

/** Where the controller says that the robot is. */
QVector<double> reportedPose()
{
    const QJsonValue frame = robot()->getCurrentPointData(
        tool, wobj)[QStringLiteral("cartesian")][QStringLiteral("pose")][QStringLiteral("frame")];
    return numbers(frame[QStringLiteral("pos")], {"x", "y", "z"})
        + numbers(frame[QStringLiteral("ori")][QStringLiteral("euler")], {"a", "b", "c"});
}

/** Where the hub's last report saw it. */
QVector<double> watchedPose(CheckSession *session)
{
    return numbers(QJsonValue::fromVariant(session->lastHubValue(poseKey)),
                   {"x", "y", "z", "a", "b", "c"});
}

/** Within 0.01 mm and 0.01 degrees. */
bool isAt(const QVector<double> &pose, const QString &name)
{
    const QVector<double> target = robot()->getPointDataByName(name, QString());
    return target.size() == 6
        && std::equal(pose.begin(), pose.end(), target.begin(), [](double is, double meant) {
               return std::abs(std::remainder(is - meant, 360.0)) < 0.01
                   && std::abs(is - meant) < 360.01;
           });
}

bool hasMoved(CheckSession *session)
{
    return session->sawData(NexoDataChange, stateKey, QStringLiteral("moving"))
        && session->lastHubValue(stateKey) == QStringLiteral("idle");
}

QString describe(const QVector<double> &pose)
{
    QStringList texts;
    for (double value : pose)
        texts << QString::number(value, 'f', 3);
    return texts.join(QLatin1Char(' '));
}

QString situation()
{
    return QStringLiteral("%1 at %2, error %3")
        .arg(robot()->getNexoData(stateKey).toString(), describe(reportedPose()),
             QString::number(robot()->getNexoData(errorKey)[QStringLiteral("error")].toInt()));
}

void moveTo(CheckSession *session, const QString &name, int speed, bool joint)
{
    session->forgetNews();
    int result = -1;
    robot()->moveToStart(result, name, speed, joint, joint);
}

CheckStep moveStep(CheckSession *session, const QString &title, const QString &name, bool joint)
{
    constexpr int speed = 250; // mm/s
    return {title, [=] { moveTo(session, name, speed, joint); },
            [=] {
                return hasMoved(session) && isAt(watchedPose(session), name)
                    && isAt(reportedPose(), name);
            },
            situation};
}

QString checkPaths()
{
    const QString nowhere = QStringLiteral("nowhere");
    const QVector<int> answers {robot()->checkPointMoveTo(home, pick),
                                robot()->checkPointMoveTo(home, home),
                                robot()->checkPointMoveTo(home, nowhere)};
    return answers == QVector<int> {0, 1, -2}
        ? QString()
        : QStringLiteral("%1, %2, %3").arg(answers[0]).arg(answers[1]).arg(answers[2]);
}

CheckSteps refusalSteps(CheckSession *session)
{
    return {
        eventStep(session, QStringLiteral("motors off: RCPowerStatusChange"),
                  [] { send(QStringLiteral("system.state.switch_motor_off")); },
                  {RCPowerStatusChange}),
        {QStringLiteral("a move without motors is refused, with its reason"),
         [=] { moveTo(session, home, 250, true); },
         [] { return robot()->getNexoData(errorKey)[QStringLiteral("error")] == -50011; },
         situation},
        eventStep(session, QStringLiteral("motors on: RCPowerStatusChange"),
                  [] { send(QStringLiteral("system.state.switch_motor_on")); },
                  {RCPowerStatusChange}),
    };
}

} // namespace

CheckSteps motionSteps(CheckSession *session)
{
    const CheckSteps moves {
        {QStringLiteral("arm moved by hand"),
         [=] {
             session->forgetNews();
             robot()->connectNexoData(QStringLiteral("check"), stateKey, {});
             robot()->connectNexoData(QStringLiteral("check"), poseKey, {});
             session->simulator()->control(QStringLiteral("joints move 1.5 40 0 20 0 70 40"));
         },
         [=] { return hasMoved(session); }, situation},
        editStep(session, QStringLiteral("second point taught there"), QStringLiteral("point"),
                 pick, [] { return robot()->addCurrentPoint(pick, false, tool, wobj, {}); }),
        atOnce(QStringLiteral("paths checked: allowed, the same point, unknown"), checkPaths),
        moveStep(session, QStringLiteral("straight move to the first point arrives"), home, false),
        moveStep(session, QStringLiteral("move with the axes to the second one arrives"), pick,
                 true),
        {QStringLiteral("slow move under way"), [=] { moveTo(session, home, 20, false); },
         [=] { return session->lastHubValue(stateKey) == QStringLiteral("moving"); }, situation},
        {QStringLiteral("stopped on the way"), [] { robot()->moveToStop(); },
         [=] { return hasMoved(session) && !isAt(reportedPose(), home); }, situation},
    };
    return moves + refusalSteps(session);
}
