#include "zepleteventsystem.h"

#include "zepleteventhandlerfiltered.h"
#include "zepleteventhandleroneshot.h"
#include "zepleteventhandlerwithcontext.h"
#include "zepleteventsystem_p.h"

#include <QtDebug>

namespace zeplet
{

using Private = ZepletEventSystemPrivate;

namespace
{

// Atomic, so that the threads that publish do not queue for the mutex of its creation.
std::atomic<ZepletEventSystem *> s_instance {nullptr};

constexpr quint32 LastCustomType = 0xFFFF;

} // namespace

Private::ZepletEventSystemPrivate(ZepletEventSystem *system)
    : q(system)
{
}

SubscribersPointer Private::snapshot(ZepletEventType type) const
{
    QMutexLocker lock(&mutex);
    return index().snapshotUnlocked(type);
}

ContextPointer Private::findContext(QObject *object) const
{
    return contexts.find(qHash(object), [object](const SubscriptionContext &context) {
        return context.object == object;
    });
}

ContextPointer Private::contextOf(QObject *object)
{
    ContextPointer context = findContext(object);
    if (!context) {
        context = new SubscriptionContext(object);
        contexts.insert(qHash(object), context);
    }
    return context;
}

// Each time, because the object may have cut all its connections since its last subscription.
// Directly, so that no call starts after the object is gone, whatever thread it dies on. Without
// the lock, because connecting calls the object's connectNotify().
ContextPointer Private::watch(QObject *object, QMutexLocker &lock)
{
    ContextPointer context = contextOf(object);
    if (context->connection)
        return context;
    lock.unlock();
    const auto connection = QObject::connect(
        object, &QObject::destroyed, q, &ZepletEventSystem::onContextDestroyed,
        static_cast<Qt::ConnectionType>(Qt::DirectConnection | Qt::UniqueConnection));
    lock.relock();
    context = contextOf(object);
    if (connection)
        context->connection = connection;
    return context;
}

void Private::bind(ContextPointer context, StoredSubscription &record)
{
    record.context = std::move(context);
    record.context->subscriptions.append(&record, &StoredSubscription::contextPlace);
}

void Private::unbind(StoredSubscription &record)
{
    if (record.contextPlace >= 0)
        record.context->subscriptions.remove(record, &StoredSubscription::contextPlace);
}

StoredPointer Private::doUnsubscribe(const QString &id)
{
    StoredPointer record = index().take(id);
    if (!record)
        return record;
    unbind(*record);
    emit q->subscriptionRemoved(record->storedId, record->storedType, record->ofPlugin->name);
    return record;
}

int Private::doUnsubscribe(const StoredPointers &records)
{
    int removed = 0;
    for (const StoredPointer &record : records)
        removed += doUnsubscribe(record->storedId) ? 1 : 0;
    return removed;
}

StoredPointers Private::takeInvalid()
{
    QMutexLocker lock(&mutex);
    StoredPointers records = index().takeInvalid();
    for (const StoredPointer &record : records)
        unbind(*record);
    return records;
}

StoredPointers Private::takeContext(QObject *object)
{
    QMutexLocker lock(&mutex);
    const ContextPointer context = findContext(object);
    if (!context)
        return {};
    contexts.remove(qHash(object), context);

    // Subscriptions that were removed before, and are still due in a running dispatch, see it as
    // well.
    context->destroyed.store(true, std::memory_order_release);
    StoredPointers taken;
    while (!context->subscriptions.records().empty()) {
        StoredSubscription *record = context->subscriptions.records().back();
        unbind(*record);
        taken.push_back(index().take(*record));
    }
    return taken;
}

StoredPointers Private::takeAll()
{
    QMutexLocker lock(&mutex);
    StoredPointers records = index().takeAll();
    for (const StoredPointer &record : records)
        unbind(*record);
    return records;
}

ZepletEventSystem *ZepletEventSystem::instance()
{
    if (ZepletEventSystem *existing = existingInstance())
        return existing;

    static QMutex creation;
    QMutexLocker lock(&creation);
    if (!s_instance)
        s_instance = new ZepletEventSystem;
    return s_instance;
}

ZepletEventSystem *ZepletEventSystem::existingInstance()
{
    return s_instance.load(std::memory_order_acquire);
}

void ZepletEventSystem::destroyInstance()
{
    delete s_instance.load();
    s_instance = nullptr;
}

ZepletEventSystem::ZepletEventSystem()
    : d(new Private(this))
{
    // For queued connections and spies, which look the types up by the names in the signals.
    qRegisterMetaType<ZepletEvent>();
    qRegisterMetaType<ZepletEventType>();
}

// Captured objects may still use the bus while they go, so the subscriptions end before the state
// does: one that is made by such an object goes in the next round.
ZepletEventSystem::~ZepletEventSystem()
{
    while (!d->takeAll().empty()) { }
    // As a context object of its own, it would ask for its state once more when that is gone.
    disconnect(this, &QObject::destroyed, this, &ZepletEventSystem::onContextDestroyed);
}

QString ZepletEventSystem::subscribe(ZepletEventType type, Callback callback,
                                     const QString &pluginName, QObject *context)
{
    auto handler = QSharedPointer<ZepletEventHandlerWithContext>::create(
        type, context, std::move(callback), pluginName, QLatin1String("_handler"));
    return doSubscribe(type, std::move(handler), pluginName, context);
}

QString ZepletEventSystem::subscribeFiltered(ZepletEventType type, Filter filter, Callback callback,
                                             const QString &pluginName, QObject *context)
{
    auto handler = QSharedPointer<ZepletEventHandlerFiltered>::create(
        type, std::move(filter), std::move(callback), pluginName, QLatin1String("_filter"));
    return doSubscribe(type, std::move(handler), pluginName, context);
}

QString ZepletEventSystem::subscribeOnce(ZepletEventType type, Callback callback,
                                         const QString &pluginName, QObject *context)
{
    auto handler = QSharedPointer<ZepletEventHandlerOneShot>::create(
        type, std::move(callback), pluginName, QLatin1String("_oneshot"));
    return doSubscribe(type, std::move(handler), pluginName, context);
}

QString ZepletEventSystem::doSubscribe(ZepletEventType type,
                                       QSharedPointer<ZepletEventHandler> handler,
                                       const QString &pluginName, QObject *context)
{
    QMutexLocker lock(&d->mutex);
    ContextPointer watched = context ? d->watch(context, lock) : ContextPointer();
    auto created = StoredPointer::create(pluginName, type, std::move(handler));
    StoredSubscription &record = *created;
    d->index().insert(std::move(created));
    if (watched)
        d->bind(std::move(watched), record);
    emit subscriptionAdded(record.storedId, type, pluginName);
    return record.storedId;
}

void ZepletEventSystem::onContextDestroyed(QObject *object)
{
    d->takeContext(object);
}

void ZepletEventSystem::publish(const ZepletEvent &event)
{
    d->totalEventsPublished.shard().fetch_add(1, std::memory_order_relaxed);
    emit eventPublished(event);
    dispatchEvent(event);
}

void ZepletEventSystem::publish(ZepletEventType type, const QVariant &data, const QString &source)
{
    publish(ZepletEvent(type, source, data));
}

void ZepletEventSystem::publishAsync(const ZepletEvent &event)
{
    QMetaObject::invokeMethod(
        this, [this, copy = event] { publish(copy); }, Qt::QueuedConnection);
}

void ZepletEventSystem::publishAsync(ZepletEventType type, const QVariant &data,
                                     const QString &source)
{
    publishAsync(ZepletEvent(type, source, data));
}

void ZepletEventSystem::dispatchEvent(const ZepletEvent &event)
{
    const SubscribersPointer snapshot = d->snapshot(event.type);
    if (!snapshot)
        return;
    ShardedCounter::Shard &handled = d->totalEventsHandled.shard();
    InvocationClock clock;
    QStringList fired;
    for (const StoredPointer &record : snapshot->list.records()) {
        if (!record->isCallable())
            continue;
        record->invoke(event, clock);
        handled.fetch_add(1, std::memory_order_relaxed);
        if (record->storedOneShot && record->invokeCount > 0)
            fired.append(record->storedId);
    }
    if (!fired.isEmpty())
        removeFired(fired);
}

void ZepletEventSystem::removeFired(const QStringList &ids)
{
    StoredPointers dropped;
    QMutexLocker lock(&d->mutex);
    for (const QString &id : ids)
        dropped.push_back(d->doUnsubscribe(id));
}

bool ZepletEventSystem::unsubscribe(const QString &subscriptionId)
{
    StoredPointer dropped;
    QMutexLocker lock(&d->mutex);
    dropped = d->doUnsubscribe(subscriptionId);
    return !dropped.isNull();
}

int ZepletEventSystem::unsubscribeByPlugin(const QString &pluginName)
{
    StoredPointers records;
    QMutexLocker lock(&d->mutex);
    records = d->index().subscriptionsOf(pluginName);
    return d->doUnsubscribe(records);
}

int ZepletEventSystem::unsubscribeByType(ZepletEventType type)
{
    StoredPointers records;
    QMutexLocker lock(&d->mutex);
    records = d->index().subscribers(type);
    return d->doUnsubscribe(records);
}

int ZepletEventSystem::unsubscribeByTypeAndPlugin(const QString &pluginName, ZepletEventType type)
{
    StoredPointers records;
    QMutexLocker lock(&d->mutex);
    const auto ofType = d->index().subscribers(type);
    for (const StoredPointer &record : ofType) {
        if (record->ofPlugin->name == pluginName)
            records.push_back(record);
    }
    return d->doUnsubscribe(records);
}

void ZepletEventSystem::cleanupInvalidSubscriptions()
{
    d->takeInvalid();
}

int ZepletEventSystem::subscriptionCount(ZepletEventType type) const
{
    return d->manager.subscriptionCountByType(type);
}

int ZepletEventSystem::subscriptionCount(const QString &pluginName) const
{
    return d->manager.subscriptionCountByPlugin(pluginName);
}

int ZepletEventSystem::totalSubscriptionCount() const
{
    return d->manager.validSubscriptionCount();
}

bool ZepletEventSystem::hasSubscription(const QString &subscriptionId) const
{
    return d->manager.hasSubscription(subscriptionId);
}

QList<ZepletEventType> ZepletEventSystem::registeredEventTypes() const
{
    return d->manager.registeredEventTypes();
}

QStringList ZepletEventSystem::totalSubscriptionIds(const QString &pluginName) const
{
    return d->manager.subscriptionIds(pluginName);
}

quint64 ZepletEventSystem::totalEventsPublished() const
{
    return d->totalEventsPublished.total();
}

quint64 ZepletEventSystem::totalEventsHandled() const
{
    return d->totalEventsHandled.total();
}

void ZepletEventSystem::resetStatistics()
{
    d->totalEventsPublished.reset();
    d->totalEventsHandled.reset();
}

ZepletEventType ZepletEventSystem::registerCustomEventType(const QString &name)
{
    const qint32 candidate = d->nextCustomType.fetch_add(1);
    if (static_cast<quint32>(candidate) > LastCustomType) {
        qWarning("ZepletEventSystem: No more custom event types available!");
        return None;
    }
    QMutexLocker lock(&d->mutex);
    d->customTypeNames.insert(candidate, name);
    return static_cast<ZepletEventType>(candidate);
}

QString ZepletEventSystem::customEventTypeName(ZepletEventType type) const
{
    QMutexLocker lock(&d->mutex);
    return d->customTypeNames.value(type);
}

ZepletEventSystem *zepletEvent()
{
    return ZepletEventSystem::instance();
}

} // namespace zeplet
