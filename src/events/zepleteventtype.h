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
    None = 0x0000,

    HardEventStart = 0x1000,

    NetworkConnected = 0x2001,
    /// Carries the property "is_expected" (bool).
    NetworkDisconnected = 0x2002,
    NetworkError = 0x2003,

    /// Source: the service key; data: its new value.
    NexoDataChange = 0x3001,

    RCEventStart = 0x4000,
    RCPowerStatusChange = 0x4001,
    RCRunModelChange = 0x4011,
    RCRunStart = 0x4021,
    RCRunStop = 0x4022,
    RCBeforeRunStart = 0x4023,
    RCBeforeRunStop = 0x4024,
    RCNotifyDataChange = 0x4031,

    UIEventStart = 0x5000,

    /// The first number that registerCustomEventType() hands out.
    UserEventStart = 0x8000,
};

/// The enumerator's name, or its block and number, for example "RCEvent(0x4002)". Names of custom
/// types are known to ZepletEventSystem::customEventTypeName() alone. Callable from any thread.
ZEPLET_EXPORT QString eventTypeToString(ZepletEventType type);

} // namespace zeplet

Q_DECLARE_METATYPE(zeplet::ZepletEventType)
