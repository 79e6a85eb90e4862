#include <zeplet/projectdata/robotposition_p.h>

#include <zeplet/interface/hostmanagers_p.h>

#include <QJsonObject>

namespace zeplet
{

ostrel::ModuleObject *requestRobotPosition(const QString &tool, const QString &wobj)
{
    constexpr int timeout = 1600;
    const QJsonObject frames {{QStringLiteral("tool"), tool}, {QStringLiteral("wobj"), wobj}};
    return controllerManager()->execRequest(
        QStringLiteral("project"), QStringLiteral("rl_program.get_rob_pos"), frames, true, timeout);
}

} // namespace zeplet
