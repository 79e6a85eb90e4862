#include "checkplugin.h"

#include <zeplet/zeplet.h>

#include <QCoreApplication>
#include <QTimer>

using namespace zeplet;

namespace
{
const bool registered = [] {
    zepletFactory().regist(QStringLiteral("check"),
                           [](QObject *parent) { return new CheckPlugin(parent); });
    return true;
}();
} // namespace

CheckPlugin::CheckPlugin(QObject *parent)
    : PluginBase(parent)
    , m_steps(&m_simulator, &m_hooks)
{
}

void CheckPlugin::init()
{
    see(QStringLiteral("init"));
    subscribe();
    connect(&m_script, &CheckScript::finished, this, [this](bool passed, int steps) {
        m_passed = passed;
        m_stepCount = steps;
        QCoreApplication::exit(passed ? 0 : 1);
    });
    QTimer::singleShot(0, this, [this] { m_script.start(m_steps.all()); });
}

void CheckPlugin::afterInit()
{
    see(QStringLiteral("afterInit"));
}

void CheckPlugin::render()
{
    see(QStringLiteral("render"));
}

void CheckPlugin::idle()
{
    see(QStringLiteral("idle"));
}

void CheckPlugin::detach()
{
    const bool inOrder = m_hooks.size() == 4;
    CheckScript::report(m_passed && inOrder, m_stepCount + 1,
                        QStringLiteral("detach after all other hooks"));
}

// The first call of each hook, in the order in which they came.
void CheckPlugin::see(const QString &hook)
{
    if (!m_hooks.contains(hook))
        m_hooks << hook;
}

void CheckPlugin::subscribe()
{
    for (ZepletEventType type :
         {NetworkConnected, NetworkDisconnected, RCPowerStatusChange, RCRunModelChange, RCRunStart,
          RCRunStop, RCBeforeRunStart, RCBeforeRunStop, NexoDataChange, RCNotifyDataChange}) {
        zepletEvent()->subscribe(
            type, [this](const ZepletEvent &event) { m_steps.record(event); },
            QStringLiteral("check"), this);
    }
}
