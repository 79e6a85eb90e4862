#include "storedsubscription_p.h"

namespace zeplet
{

const QDateTime &InvocationClock::startOfTime()
{
    static const QDateTime start = QDateTime::fromMSecsSinceEpoch(0, Qt::UTC);
    return start;
}

StoredSubscription::StoredSubscription(const ZepletEventSubscription &subscription)
    : ZepletEventSubscription(subscription)
    , storedId(id)
    , storedPlugin(pluginName)
    , storedType(eventType)
    , storedOneShot(isOneShot())
{
}

StoredSubscription::StoredSubscription(const QString &plugin, ZepletEventType type,
                                       QSharedPointer<ZepletEventHandler> eventHandler)
    : ZepletEventSubscription(QString(), plugin, type, std::move(eventHandler))
    , storedId(id)
    , storedPlugin(plugin)
    , storedType(type)
    , storedOneShot(isOneShot())
{
}

} // namespace zeplet
