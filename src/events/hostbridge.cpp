#include <zeplet/events/zepleteventsystem.h>

#include <ostrel/moduleobject.h>
#include <zeplet/interface/interfacemanager.h>

namespace zeplet
{

namespace
{

const QString systemSource = QStringLiteral("system");

void watch(ZepletEventSystem *bus, const QString &key,
           void (*translate)(ZepletEventSystem *bus, const QVariant &value))
{
    QObject::connect(m(key), &ostrel::ModuleObject::changed, bus,
                     [bus, translate](const QVariant &value) { translate(bus, value); });
}

void publishPower(ZepletEventSystem *bus, const QVariant &value)
{
    bus->publish(RCPowerStatusChange, value, systemSource);
}

void publishMode(ZepletEventSystem *bus, const QVariant &value)
{
    bus->publish(RCRunModelChange, value.toString(), systemSource);
}

void publishRunRequest(ZepletEventSystem *bus, const QVariant &value)
{
    const QString state = value.toString();
    if (state == QLatin1String("run_before"))
        bus->publish(RCBeforeRunStart, QVariant(), systemSource);
    else if (state == QLatin1String("stop_before"))
        bus->publish(RCBeforeRunStop, QVariant(), systemSource);
}

void publishRunState(ZepletEventSystem *bus, const QVariant &value)
{
    const QString state = value.toString();
    if (state == QLatin1String("program"))
        bus->publish(RCRunStart, state, systemSource);
    else if (state == QLatin1String("idle"))
        bus->publish(RCRunStop, state, systemSource);
}

void publishDisconnected(ZepletEventSystem *bus, bool expected)
{
    ZepletEvent event(NetworkDisconnected, systemSource, QVariant());
    event.setProperty(QStringLiteral("is_expected"), expected);
    bus->publish(event);
}

} // namespace

void ZepletEventSystem::registerAllEvents()
{
    connect(zepletInterface(), &InterfaceManager::sigNetworkConnect, this,
            [this] { publish(NetworkConnected, QVariant(), systemSource); });
    connect(zepletInterface(), &InterfaceManager::sigNetworkDisConnect, this,
            [this](bool expected) { publishDisconnected(this, expected); });

    watch(this, QStringLiteral("brisa.r.power"), publishPower);
    // Twice: subscribers rely on two events for each change of the mode.
    watch(this, QStringLiteral("brisa.r.mode"), publishMode);
    watch(this, QStringLiteral("brisa.r.mode"), publishMode);
    watch(this, QStringLiteral("brisa.r.zeplet.state"), publishRunRequest);
    watch(this, QStringLiteral("brisa.r.state"), publishRunState);
}

} // namespace zeplet
