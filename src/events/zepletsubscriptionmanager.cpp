#include "zepletsubscriptionmanager.h"

#include "zepletsubscriptionmanager_p.h"

namespace zeplet
{

using Private = ZepletSubscriptionManagerPrivate;

namespace
{

QList<QSharedPointer<ZepletEventSubscription>> toPublicList(const Private::Snapshot &records)
{
    QList<QSharedPointer<ZepletEventSubscription>> list;
    list.reserve(records.size());
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
    byType[record->storedType].append(record, &StoredSubscription::typePlace);
    byPlugin[record->storedPlugin].append(record.data(), &StoredSubscription::pluginPlace);
    return replaced;
}

StoredPointer Private::take(const QString &id)
{
    QMutexLocker lock(&mutex);
    return takeLocked(id);
}

Private::Snapshot Private::takeByType(ZepletEventType type)
{
    QMutexLocker lock(&mutex);
    return takeLocked(byType.value(type).records());
}

Private::Snapshot Private::takeByPlugin(const QString &pluginName)
{
    QMutexLocker lock(&mutex);
    return takeLocked(subscriptionsOfLocked(pluginName));
}

Private::Snapshot Private::takeInvalid()
{
    QMutexLocker lock(&mutex);
    Snapshot invalid;
    for (const StoredPointer &record : qAsConst(byId)) {
        if (!record->isValid())
            invalid.append(record);
    }
    return takeLocked(invalid);
}

Private::Snapshot Private::takeAll()
{
    QMutexLocker lock(&mutex);
    const Snapshot all = byId.values().toVector();
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

Private::Snapshot Private::subscribers(ZepletEventType type) const
{
    QMutexLocker lock(&mutex);
    const auto found = byType.constFind(type);
    return found == byType.constEnd() ? Snapshot() : found->records();
}

Private::Snapshot Private::subscriptionsOf(const QString &pluginName) const
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

Private::Snapshot Private::takeLocked(const Snapshot &records)
{
    for (const StoredPointer &record : records)
        takeLocked(record->storedId);
    return records;
}

Private::Snapshot Private::subscriptionsOfLocked(const QString &pluginName) const
{
    Snapshot found;
    const auto records = byPlugin.value(pluginName).records();
    found.reserve(records.size());
    for (const StoredSubscription *record : records)
        found.append(byId.value(record->storedId));
    return found;
}

void Private::unlink(StoredSubscription &record)
{
    const auto ofType = byType.find(record.storedType);
    ofType->remove(record, &StoredSubscription::typePlace);
    if (ofType->records().isEmpty())
        byType.erase(ofType);

    const auto ofPlugin = byPlugin.find(record.storedPlugin);
    ofPlugin->remove(record, &StoredSubscription::pluginPlace);
    if (ofPlugin->records().isEmpty())
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
    return d->takeByType(type).size();
}

int ZepletSubscriptionManager::removeSubscriptionsByPlugin(const QString &pluginName)
{
    return d->takeByPlugin(pluginName).size();
}

int ZepletSubscriptionManager::cleanupInvalidSubscriptions()
{
    return d->takeInvalid().size();
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
    return d->byType.value(type).records().size();
}

int ZepletSubscriptionManager::subscriptionCountByPlugin(const QString &pluginName) const
{
    QMutexLocker lock(&d->mutex);
    return d->byPlugin.value(pluginName).records().size();
}

QStringList ZepletSubscriptionManager::subscriptionIds(const QString &pluginName) const
{
    QMutexLocker lock(&d->mutex);
    QStringList ids;
    const auto records = d->byPlugin.value(pluginName).records();
    for (const StoredSubscription *record : records)
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
