#include "zepletevent.h"

#include "randomuuid_p.h"
#include "utcclock_p.h"

#include <atomic>

namespace zeplet
{

namespace
{
std::atomic<quint64> g_sequenceCounter {0};
} // namespace

ZepletEvent::ZepletEvent()
    : ZepletEvent(None, QString(), QVariant())
{
}

// The members' order makes the stamps: time, number, id.
ZepletEvent::ZepletEvent(ZepletEventType eventType, const QString &eventSource,
                         const QVariant &eventData)
    : type(eventType)
    , source(eventSource)
    , data(eventData)
    , timestamp(utcNow())
    , seq(generateSequenceId())
    , id(randomUuid())
{
}

quint64 ZepletEvent::generateSequenceId()
{
    return g_sequenceCounter.fetch_add(1) + 1;
}

QStringList ZepletEvent::propertyNames() const
{
    return properties.keys();
}

QVariant ZepletEvent::property(const QString &name, const QVariant &defaultValue) const
{
    return properties.value(name, defaultValue);
}

bool ZepletEvent::hasProperty(const QString &name) const
{
    return properties.contains(name);
}

void ZepletEvent::setProperty(const QString &name, const QVariant &value)
{
    properties.insert(name, value);
}

void ZepletEvent::removeProperty(const QString &name)
{
    properties.remove(name);
}

QString ZepletEvent::toString() const
{
    // One arg() call for all of them: a source that holds "%3" stays as it is.
    return QStringLiteral("ZepletEvent{type=%1, source='%2', seq=%3, id='%4', time='%5'}")
        .arg(eventTypeToString(type), source, QString::number(seq), id,
             timestamp.toString(Qt::ISODate));
}

} // namespace zeplet
