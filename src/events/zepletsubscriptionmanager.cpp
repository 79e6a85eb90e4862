#include "zepletsubscriptionmanager.h"

#include "zepletsubscriptionmanager_p.h"

namespace zeplet
{

using Private = ZepletSubscriptionManagerPrivate;

namespace
{

QList<QSharedPointer<ZepletEventSubscription>> toPublicList(const StoredPointers &records)
{
    QList<QSharedPointer<ZepletEventSubscription>> list;
    list.reserve(static_cast<int>(records.size()));
    for (const StoredPointer &record : records)
        list.append(record);
    return list;
}

} // namespace

StoredPointer Private::insert(const StoredPointer &record)
{
    QMutexLocker lock(&mutex);
    StoredPointer &stored = byId[record->storedId];
    StoredPointer replaced = std::exchange(stored, record);
    if (replaced)
        unlink(*replaced);
    writable(byType[record->storedType]).append(record, &StoredSubscription::typePlace);
    byPlugin[record->storedPlugin].append(record.data(), &StoredSubscription::pluginPlace);
    return replaced;
}

StoredPointer Private::take(const QString &id)
{
    QMutexLocker lock(&mutex);
    return takeLocked(id);
}

StoredPointers Private::takeByType(ZepletEventType type)
{
    QMutexLocker lock(&mutex);
    return takeLocked(subscribersLocked(type));
}

StoredPointers Private::takeByPlugin(const QString &pluginName)
{
    QMutexLocker lock(&mutex);
    return takeLocked(subscriptionsOfLocked(pluginName));
}

StoredPointers Private::takeInvalid()
{
    QMutexLocker lock(&mutex);
    StoredPointers invalid;
    for (const StoredPointer &record : qAsConst(byId)) {
        if (!record->isValid())
            invalid.push_back(record);
    }
    return takeLocked(std::move(invalid));
}

StoredPointers Private::takeAll()
{
    QMutexLocker lock(&mutex);
    StoredPointers all(byId.cbegin(), byId.cend());
    byType.clear();
    byPlugin.clear();
    byId.clear();
    return all;
}

StoredPointer Private::find(const QString &id) const
{
    QMutexLocker lock(&mutex);
    return byId.value(id);
}

SubscribersPointer Private::snapshot(ZepletEventType type) const
{
    QMutexLocker lock(&mutex);
    return byType.value(type);
}

StoredPointers Private::subscribers(ZepletEventType type) const
{
    QMutexLocker lock(&mutex);
    return subscribersLocked(type);
}

StoredPointers Private::subscriptionsOf(const QString &pluginName) const
{
    QMutexLocker lock(&mutex);
    return subscriptionsOfLocked(pluginName);
}

StoredPointer Private::takeLocked(const QString &id)
{
    StoredPointer record = byId.take(id);
    if (record)
        unlink(*record);
    return record;
}

StoredPointers Private::takeLocked(StoredPointers records)
{
    for (const StoredPointer &record : records)
        takeLocked(record->storedId);
    return records;
}

StoredPointers Private::subscribersLocked(ZepletEventType type) const
{
    const auto found = byType.constFind(type);
    return found == byType.constEnd() ? StoredPointers() : (*found)->list.records();
}

StoredPointers Private::subscriptionsOfLocked(const QString &pluginName) const
{
    StoredPointers found;
    const auto ofPlugin = byPlugin.value(pluginName);
    for (const StoredSubscription *record : ofPlugin.records())
        found.push_back(byId.value(record->storedId));
    return found;
}

void Private::unlink(StoredSubscription &record)
{
    const auto ofType = byType.find(record.storedType);
    writable(*ofType).remove(record, &StoredSubscription::typePlace);
    if ((*ofType)->list.records().empty())
        byType.erase(ofType);

    const auto ofPlugin = byPlugin.find(record.storedPlugin);
    ofPlugin->remove(record, &StoredSubscription::pluginPlace);
    if (ofPlugin->records().empty())
        byPlugin.erase(ofPlugin);
}

ZepletSubscriptionManager::ZepletSubscriptionManager()
    : d(new Private)
{
}

// Here too, captured objects may use the manager while they go.
ZepletSubscriptionManager::~ZepletSubscriptionManager()
{
    clear();
}

QString ZepletSubscriptionManager::addSubscription(const ZepletEventSubscription &subscription)
{
    const auto record = StoredPointer::create(subscription);
    d->insert(record);
    return record->storedId;
}

bool ZepletSubscriptionManager::removeSubscription(const QString &id)
{
    return !d->take(id).isNull();
}

int ZepletSubscriptionManager::removeSubscriptionsByType(ZepletEventType type)
{
    return static_cast<int>(d->takeByType(type).size());
}

int ZepletSubscriptionManager::removeSubscriptionsByPlugin(const QString &pluginName)
{
    return static_cast<int>(d->takeByPlugin(pluginName).size());
}

int ZepletSubscriptionManager::cleanupInvalidSubscriptions()
{
    return static_cast<int>(d->takeInvalid().size());
}

QSharedPointer<ZepletEventSubscription>
ZepletSubscriptionManager::getSubscription(const QString &id) const
{
    return d->find(id);
}

bool ZepletSubscriptionManager::hasSubscription(const QString &id) const
{
    QMutexLocker lock(&d->mutex);
    return d->byId.contains(id);
}

QStringList ZepletSubscriptionManager::allSubscriptionIds() const
{
    QMutexLocker lock(&d->mutex);
    return d->byId.keys();
}

int ZepletSubscriptionManager::validSubscriptionCount() const
{
    QMutexLocker lock(&d->mutex);
    int count = 0;
    for (const StoredPointer &record : qAsConst(d->byId))
        count += record->isValid() ? 1 : 0;
    return count;
}

QList<QSharedPointer<ZepletEventSubscription>>
ZepletSubscriptionManager::getSubscriptionsByType(ZepletEventType type) const
{
    return toPublicList(d->subscribers(type));
}

QList<QSharedPointer<ZepletEventSubscription>>
ZepletSubscriptionManager::getSubscriptionsByPlugin(const QString &pluginName) const
{
    return toPublicList(d->subscriptionsOf(pluginName));
}

int ZepletSubscriptionManager::subscriptionCountByType(ZepletEventType type) const
{
    QMutexLocker lock(&d->mutex);
    const auto found = d->byType.constFind(type);
    return found == d->byType.constEnd() ? 0 : static_cast<int>((*found)->list.records().size());
}

int ZepletSubscriptionManager::subscriptionCountByPlugin(const QString &pluginName) const
{
    QMutexLocker lock(&d->mutex);
    const auto found = d->byPlugin.constFind(pluginName);
    return found == d->byPlugin.constEnd() ? 0 : static_cast<int>(found->records().size());
}

QStringList ZepletSubscriptionManager::subscriptionIds(const QString &pluginName) const
{
    QMutexLocker lock(&d->mutex);
    QStringList ids;
    const auto ofPlugin = d->byPlugin.value(pluginName);
    for (const StoredSubscription *record : ofPlugin.records())
        ids.append(record->storedId);
    return ids;
}

QList<ZepletEventType> ZepletSubscriptionManager::registeredEventTypes() const
{
    QMutexLocker lock(&d->mutex);
    return d->byType.keys();
}

void ZepletSubscriptionManager::clear()
{
    d->takeAll();
}

} // namespace zeplet
