#include "zepleteventtype.h"

namespace zeplet
{

namespace
{

const char *typeName(ZepletEventType type)
{
    switch (type) {
    case None:
        return "None";
    case HardEventStart:
        return "HardEventStart";
    case NetworkConnected:
        return "NetworkConnected";
    case NetworkDisconnected:
        return "NetworkDisconnected";
    case NetworkError:
        return "NetworkError";
    case NexoDataChange:
        return "NexoDataChange";
    case RCEventStart:
        return "RCEventStart";
    case RCPowerStatusChange:
        return "RCPowerStatusChange";
    case RCRunModelChange:
        return "RCRunModelChange";
    case RCRunStart:
        return "RCRunStart";
    case RCRunStop:
        return "RCRunStop";
    case RCBeforeRunStart:
        return "RCBeforeRunStart";
    case RCBeforeRunStop:
        return "RCBeforeRunStop";
    case RCNotifyDataChange:
        return "RCNotifyDataChange";
    case UIEventStart:
        return "UIEventStart";
    case UserEventStart:
        return "UserEventStart";
    }
    return nullptr;
}

const char *blockName(quint32 value)
{
    switch (value >> 12) {
    case 0x0:
        return "SystemEvent";
    case 0x1:
        return "HardwareEvent";
    case 0x2:
        return "NetworkEvent";
    case 0x3:
        return "NexoEvent";
    case 0x4:
        return "RCEvent";
    case 0x5:
        return "UIEvent";
    default:
        // The user block bears the name of its first value.
        return value >= 0x8000 && value <= 0xFFFF ? "UserEventStart" : "Unknown";
    }
}

} // namespace

QString eventTypeToString(ZepletEventType type)
{
    if (const char *name = typeName(type))
        return QString::fromLatin1(name);

    const quint32 value = static_cast<quint32>(type);
    return QStringLiteral("%1(0x%2)")
        .arg(QLatin1String(blockName(value)))
        .arg(value, 4, 16, QLatin1Char('0'));
}

} // namespace zeplet
