#pragma once

#include <QMetaType>
#include <QString>

#include <zeplet/export.h>

namespace zeplet
{

/// What happened. The values lie in blocks of 0x1000; from 0x8000 to 0xFFFF they belong to the
/// types that plugins register with ZepletEventSystem::registerCustomEventType(). Any 32-bit number
/// is a valid value.
enum ZepletEventType : qint32 {
    /// No event.
    None = 0x0000,

    /// The block of the panel's hardware.
    HardEventStart = 0x1000,

    /// After a loss, controller and service hub are both connected again. Does not come where the
    /// hub
    /// never dropped.
    NetworkConnected = 0x2001,
    /// The controller's link was lost. Carries the property "is_expected" (bool).
    NetworkDisconnected = 0x2002,
    /// Free for plugins: the library does not publish it.
    NetworkError = 0x2003,

    /// A key of the service hub that someone watches has changed. Source: the key; data: its new
    /// value.
    NexoDataChange = 0x3001,

    /// The block of the robot controller.
    RCEventStart = 0x4000,
    /// The motors' power has changed.
    RCPowerStatusChange = 0x4001,
    /// The operating mode has changed.
    RCRunModelChange = 0x4011,
    /// A program has started to run.
    RCRunStart = 0x4021,
    /// A program has come to its stop.
    RCRunStop = 0x4022,
    /// A start waits for a plugin's InterfaceManager::startRunning().
    RCBeforeRunStart = 0x4023,
    /// A stop waits for a plugin's InterfaceManager::stopRunning().
    RCBeforeRunStop = 0x4024,
    /// A notification that someone watches came from the controller. Source: its path.
    RCNotifyDataChange = 0x4031,

    /// The block of the user interface.
    UIEventStart = 0x5000,

    /// The first number that registerCustomEventType() hands out.
    UserEventStart = 0x8000,
};

/// The enumerator's name, or its block and number, for example "RCEvent(0x4002)". Names of custom
/// types are known to ZepletEventSystem::customEventTypeName() alone. Callable from any thread.
ZEPLET_EXPORT QString eventTypeToString(ZepletEventType type);

} // namespace zeplet

Q_DECLARE_METATYPE(zeplet::ZepletEventType)
