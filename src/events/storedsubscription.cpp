#include "storedsubscription_p.h"

#include <QHash>

namespace zeplet
{

uint StoredSubscription::hashOf(const QString &id)
{
    static const auto seed = static_cast<uint>(qGlobalQHashSeed());
    return qHash(id, seed);
}

StoredSubscription::StoredSubscription(const ZepletEventSubscription &subscription)
    : ZepletEventSubscription(subscription)
    , storedId(id)
    , storedIdHash(hashOf(storedId))
    , storedType(eventType)
    , storedOneShot(isOneShot())
{
}

StoredSubscription::StoredSubscription(const QString &plugin, ZepletEventType type,
                                       QSharedPointer<ZepletEventHandler> eventHandler)
    : ZepletEventSubscription(QString(), plugin, type, std::move(eventHandler))
    , storedId(id)
    , storedIdHash(hashOf(storedId))
    , storedType(type)
    , storedOneShot(isOneShot())
{
}

} // namespace zeplet
