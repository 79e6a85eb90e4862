#include "checkplugin.h"

#include "checksteps.h"

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
{
}

void CheckPlugin::init()
{
    m_session.see(QStringLiteral("init"));
    subscribe();
    connect(&m_script, &CheckScript::finished, this, [this](bool passed, int steps) {
        m_passed = passed;
        m_stepCount = steps;
        QCoreApplication::exit(passed ? 0 : 1);
    });
    QTimer::singleShot(0, this, [this] { m_script.start(allSteps(&m_session)); });
}

void CheckPlugin::afterInit()
{
    m_session.see(QStringLiteral("afterInit"));
}

void CheckPlugin::render()
{
    m_session.see(QStringLiteral("render"));
}

void CheckPlugin::idle()
{
    m_session.see(QStringLiteral("idle"));
}

void CheckPlugin::detach()
{
    const bool inOrder = m_session.hooks().size() == 4;
    CheckScript::report(m_passed && inOrder, m_stepCount + 1,
                        QStringLiteral("detach after all other hooks"));
}

void CheckPlugin::subscribe()
{
    for (ZepletEventType type :
         {NetworkConnected, NetworkDisconnected, RCPowerStatusChange, RCRunModelChange, RCRunStart,
          RCRunStop, RCBeforeRunStart, RCBeforeRunStop, NexoDataChange, RCNotifyDataChange}) {
        zepletEvent()->subscribe(
            type, [this](const ZepletEvent &event) { m_session.record(event); },
            QStringLiteral("check"), this);
    }
}
