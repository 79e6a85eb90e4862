#include "checksteps.h"

#include <zeplet/zeplet.h>

#include <QJsonArray>
#include <QJsonObject>

using namespace zeplet;

namespace
{
const QString hubKey = QStringLiteral("check.value");
const QString notifyPath = QStringLiteral("check.notice");
} // namespace

CheckSteps controllerSteps(CheckSession *session)
{
    SimulatorProcess *const simulator = session->simulator();
    return {
        eventStep(session, QStringLiteral("motors on: RCPowerStatusChange"),
                  [] { send(QStringLiteral("system.state.switch_motor_on")); },
                  {RCPowerStatusChange}),
        eventStep(session, QStringLiteral("automatic mode: RCRunModelChange, twice"),
                  [] { send(QStringLiteral("system.state.switch_auto")); },
                  {RCRunModelChange, RCRunModelChange}),
        eventStep(session, QStringLiteral("program starts: RCRunStart"),
                  [=] { simulator->control(QStringLiteral("program start")); }, {RCRunStart}),
        eventStep(session, QStringLiteral("program stops: RCRunStop"),
                  [=] { simulator->control(QStringLiteral("program stop")); }, {RCRunStop}),
    };
}

CheckSteps watchSteps(CheckSession *session)
{
    const QVariant notice = QVariantMap {{QStringLiteral("step"), 7}};
    return {
        {QStringLiteral("watched hub key: NexoDataChange"),
         [=] {
             zepletInterface()->connectNexoData(QStringLiteral("check"), hubKey, {});
             session->simulator()->control(QStringLiteral("hub set %1 42").arg(hubKey));
         },
         [=] { return session->sawData(NexoDataChange, hubKey, 42); }},
        {QStringLiteral("watched notify path: RCNotifyDataChange"),
         [=] {
             zepletInterface()->connectRcNotify(QStringLiteral("check"), notifyPath, {});
             session->simulator()->control(
                 QStringLiteral("notify %1 {\"step\":7}").arg(notifyPath));
         },
         [=] { return session->sawData(RCNotifyDataChange, notifyPath, notice); }},
        {QStringLiteral("custom plugin command answered"),
         {},
         [] {
             const QJsonObject question {{QStringLiteral("question"), 6}};
             return zepletInterface()->commandCustomData(nullptr, question)
                 == QJsonArray {question};
         }},
    };
}
