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

StoredPointer Private::insert(StoredPointer created)
{
    QMutexLocker lock(&mutex);
    StoredSubscription &record = *created;
    StoredPointer replaced = takeLocked(findLocked(record.storedId, record.storedIdHash));
    byId.insert(record.storedIdHash, &record);
    record.ofPlugin = pluginLocked(record.pluginName);
    record.ofPlugin->list.append(&record, &StoredSubscription::pluginPlace);
    record.ofType = typeLocked(record.storedType).data();
    writable(record.ofType->subscribers).append(std::move(created), &StoredSubscription::typePlace);
    return replaced;
}

StoredPointer Private::take(const QString &id)
{
    const uint hash = StoredSubscription::hashOf(id);
    QMutexLocker lock(&mutex);
    return takeLocked(findLocked(id, hash));
}

StoredPointer Private::take(StoredSubscription &record)
{
    QMutexLocker lock(&mutex);
    return takeLocked(&record);
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
    byId.forEach([&](const StoredSubscription *record) {
        if (!record->isValid())
            invalid.push_back(ownerOf(*record));
    });
    return takeLocked(std::move(invalid));
}

StoredPointers Private::takeAll()
{
    QMutexLocker lock(&mutex);
    StoredPointers all;
    byId.forEach([&](const StoredSubscription *record) { all.push_back(ownerOf(*record)); });
    byType.clear();
    byPlugin.clear();
    byId.clear();
    return all;
}

StoredPointer Private::find(const QString &id) const
{
    QMutexLocker lock(&mutex);
    const StoredSubscription *record = findLocked(id, StoredSubscription::hashOf(id));
    return record ? ownerOf(*record) : StoredPointer();
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

StoredSubscription *Private::findLocked(const QString &id, uint hash) const
{
    return byId.find(hash,
                     [&id](const StoredSubscription &record) { return record.storedId == id; });
}

const StoredPointer &Private::ownerOf(const StoredSubscription &record)
{
    const auto place = static_cast<std::size_t>(record.typePlace);
    return record.ofType->subscribers->list.records()[place];
}

TypePointer Private::findType(ZepletEventType type) const
{
    return byType.find(static_cast<uint>(type),
                       [type](const TypeSubscriptions &entry) { return entry.type == type; });
}

TypePointer Private::typeLocked(ZepletEventType type)
{
    TypePointer entry = findType(type);
    if (!entry) {
        entry = new TypeSubscriptions(type);
        byType.insert(static_cast<uint>(type), entry);
    }
    return entry;
}

PluginPointer &Private::pluginLocked(const QString &name)
{
    PluginPointer &plugin = byPlugin[name];
    if (!plugin)
        plugin = new PluginSubscriptions(name);
    return plugin;
}

StoredPointer Private::takeLocked(StoredSubscription *record)
{
    if (!record)
        return {};
    // Among thousands it is rarely in the cache, and it will be released soon.
    __builtin_prefetch(record->handler.data());
    byId.remove(record->storedIdHash, record);

    PluginSubscriptions &ofPlugin = *record->ofPlugin;
    ofPlugin.list.remove(*record, &StoredSubscription::pluginPlace);
    if (ofPlugin.list.records().empty())
        byPlugin.remove(ofPlugin.name);

    PlacedList<StoredPointer> &subscribers = writable(record->ofType->subscribers);
    StoredPointer taken = subscribers.remove(*record, &StoredSubscription::typePlace);
    if (subscribers.records().empty())
        byType.remove(static_cast<uint>(record->storedType), TypePointer(record->ofType));
    return taken;
}

StoredPointers Private::takeLocked(StoredPointers records)
{
    for (const StoredPointer &record : records)
        takeLocked(record.data());
    return records;
}

StoredPointers Private::subscribersLocked(ZepletEventType type) const
{
    const TypePointer entry = findType(type);
    return entry ? entry->subscribers->list.records() : StoredPointers();
}

StoredPointers Private::subscriptionsOfLocked(const QString &pluginName) const
{
    StoredPointers found;
    if (const PluginPointer ofPlugin = byPlugin.value(pluginName)) {
        for (const StoredSubscription *record : ofPlugin->list.records())
            found.push_back(ownerOf(*record));
    }
    return found;
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
    return !d->find(id).isNull();
}

QStringList ZepletSubscriptionManager::allSubscriptionIds() const
{
    QMutexLocker lock(&d->mutex);
    QStringList ids;
    d->byId.forEach([&](const StoredSubscription *record) { ids.append(record->storedId); });
    return ids;
}

int ZepletSubscriptionManager::validSubscriptionCount() const
{
    QMutexLocker lock(&d->mutex);
    int count = 0;
    d->byId.forEach([&](const StoredSubscription *record) { count += record->isValid() ? 1 : 0; });
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
    const TypePointer entry = d->findType(type);
    return entry ? entry->subscribers->list.size() : 0;
}

int ZepletSubscriptionManager::subscriptionCountByPlugin(const QString &pluginName) const
{
    QMutexLocker lock(&d->mutex);
    const auto found = d->byPlugin.constFind(pluginName);
    return found == d->byPlugin.constEnd() ? 0 : (*found)->list.size();
}

QStringList ZepletSubscriptionManager::subscriptionIds(const QString &pluginName) const
{
    QMutexLocker lock(&d->mutex);
    QStringList ids;
    if (const PluginPointer ofPlugin = d->byPlugin.value(pluginName)) {
        for (const StoredSubscription *record : ofPlugin->list.records())
            ids.append(record->storedId);
    }
    return ids;
}

QList<ZepletEventType> ZepletSubscriptionManager::registeredEventTypes() const
{
    QMutexLocker lock(&d->mutex);
    QList<ZepletEventType> types;
    d->byType.forEach([&](const TypePointer &entry) { types.append(entry->type); });
    return types;
}

void ZepletSubscriptionManager::clear()
{
    d->takeAll();
}

} // namespace zeplet
