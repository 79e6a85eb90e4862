#include "checksteps.h"

#include "simulatorprocess.h"

#include <kest/bmodule.h>
#include <kest/centerwidget.h>
#include <zeplet/zeplet.h>

#include <QDate>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>

using namespace zeplet;

namespace
{
const QString self = QStringLiteral("check");
const QString example = QStringLiteral("monitor");
const QString hubKey = QStringLiteral("check.value");
const QString notifyPath = QStringLiteral("check.notice");

bool hasNavigationEntry(const QString &nav)
{
    const QJsonArray entries = zepletInterface()
                                   ->getNodeData(QStringLiteral("kivra.page.robot.page.pack.page"))
                                   .toArray();
    return std::any_of(entries.begin(), entries.end(), [&nav](const QJsonValue &entry) {
        return entry.toObject().value(QStringLiteral("nav")).toString() == nav;
    });
}

bool hasLogFile(const QString &base)
{
    const QString date = QDate::currentDate().toString(QStringLiteral("yyyyMMdd"));
    return QFileInfo(QStringLiteral("./log/%1_%2.log").arg(base, date)).size() > 0;
}

void send(const QString &command)
{
    zepletInterface()->rcRequestFullCommand(command, QJsonValue(), 4800);
}
} // namespace

CheckSteps::CheckSteps(SimulatorProcess *simulator, const QStringList *hooks)
    : m_simulator(simulator)
    , m_hooks(hooks)
{
}

QList<CheckStep> CheckSteps::all()
{
    return startSteps() + controllerSteps() + watchSteps() + lossSteps();
}

void CheckSteps::record(const ZepletEvent &event)
{
    m_events.append(event);
}

QList<CheckStep> CheckSteps::startSteps()
{
    const QStringList order = {QStringLiteral("init"), QStringLiteral("afterInit"),
                               QStringLiteral("render"), QStringLiteral("idle")};
    return {
        {QStringLiteral("plugins registered"),
         {},
         [] {
             const QJsonObject known
                 = zepletInterface()->getNodeData(QStringLiteral("ostrel.plugins")).toObject();
             return known.contains(self) && known.contains(example);
         },
         {}},
        {QStringLiteral("modules made"),
         {},
         [] {
             return bModule(mName(QStringLiteral("ostrel"), QStringLiteral("zeplet"), self))
                 && bModule(mName(QStringLiteral("ostrel"), QStringLiteral("zeplet"), example));
         },
         {}},
        {QStringLiteral("centre page present"),
         {},
         [] {
             return instantiatedCenterWidget()->page(mName(QStringLiteral("zeplet"), example))
                 != nullptr;
         },
         {}},
        {QStringLiteral("navigation entry present"),
         {},
         [] { return hasNavigationEntry(mName(QStringLiteral("zeplet"), example)); },
         {}},
        {QStringLiteral("life cycle hooks in order: init, afterInit, render, idle"),
         {},
         [this, order] { return *m_hooks == order; },
         [this] { return m_hooks->join(QStringLiteral(", ")); }},
        {QStringLiteral("controller and hub connected"),
         [this] { m_simulator->start(); },
         [this] {
             return m_simulator->isReady() && zepletInterface()->getRobotConnected()
                 && zepletInterface()->getNodeData(QStringLiteral("nexo.connected")).toBool();
         },
         {}},
    };
}

QList<CheckStep> CheckSteps::controllerSteps()
{
    return {
        eventStep(QStringLiteral("motors on: RCPowerStatusChange"),
                  [] { send(QStringLiteral("system.state.switch_motor_on")); },
                  {RCPowerStatusChange}),
        eventStep(QStringLiteral("automatic mode: RCRunModelChange, twice"),
                  [] { send(QStringLiteral("system.state.switch_auto")); },
                  {RCRunModelChange, RCRunModelChange}),
        eventStep(QStringLiteral("program starts: RCRunStart"),
                  [this] { m_simulator->control(QStringLiteral("program start")); }, {RCRunStart}),
        eventStep(QStringLiteral("program stops: RCRunStop"),
                  [this] { m_simulator->control(QStringLiteral("program stop")); }, {RCRunStop}),
    };
}

QList<CheckStep> CheckSteps::watchSteps()
{
    return {
        {QStringLiteral("watched hub key: NexoDataChange"),
         [this] {
             zepletInterface()->connectNexoData(self, hubKey, {});
             m_simulator->control(QStringLiteral("hub set %1 42").arg(hubKey));
         },
         [this] { return sawData(NexoDataChange, hubKey, 42); },
         {}},
        {QStringLiteral("watched notify path: RCNotifyDataChange"),
         [this] {
             zepletInterface()->connectRcNotify(self, notifyPath, {});
             m_simulator->control(QStringLiteral("notify %1 {\"step\":7}").arg(notifyPath));
         },
         [this] {
             return sawData(RCNotifyDataChange, notifyPath,
                            QVariantMap {{QStringLiteral("step"), 7}});
         },
         {}},
        {QStringLiteral("custom plugin command answered"),
         {},
         [] {
             const QJsonObject question {{QStringLiteral("question"), 6}};
             return zepletInterface()->commandCustomData(nullptr, question)
                 == QJsonArray {question};
         },
         {}},
    };
}

QList<CheckStep> CheckSteps::lossSteps()
{
    return {
        eventStep(QStringLiteral("controller lost: NetworkDisconnected"),
                  [this] { m_simulator->kill(); }, {NetworkDisconnected}),
        {QStringLiteral("hub lost"),
         {},
         [this] {
             return !m_simulator->isRunning()
                 && !zepletInterface()->getNodeData(QStringLiteral("nexo.connected")).toBool();
         },
         {}},
        {QStringLiteral("controller and hub back: NetworkConnected, once"),
         [this] {
             m_events.clear();
             m_simulator->start();
         },
         [this] { return seenTypes().count(NetworkConnected) == 1; },
         {}},
        {QStringLiteral("log files there"),
         {},
         [] {
             return hasLogFile(QStringLiteral("zeplet"))
                 && hasLogFile(QStringLiteral("zeplet/monitor"));
         },
         {}},
    };
}

// Passes when exactly these events came, in this order; watched values that change by themselves do
// not count.
CheckStep CheckSteps::eventStep(const QString &title, const std::function<void()> &action,
                                const QList<int> &types)
{
    return {title,
            [this, action] {
                m_events.clear();
                action();
            },
            [this, types] { return seenTypes() == types; },
            [this] {
                QStringList names;
                for (int type : seenTypes())
                    names << eventTypeToString(static_cast<ZepletEventType>(type));
                return names.join(QStringLiteral(", "));
            }};
}

QList<int> CheckSteps::seenTypes() const
{
    QList<int> types;
    for (const ZepletEvent &event : m_events) {
        if (event.type != NexoDataChange && event.type != RCNotifyDataChange)
            types << event.type;
    }
    return types;
}

bool CheckSteps::sawData(int type, const QString &source, const QVariant &data) const
{
    return std::any_of(m_events.begin(), m_events.end(), [&](const ZepletEvent &event) {
        return event.type == type && event.source == source && event.data == data;
    });
}
