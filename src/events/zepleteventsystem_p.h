#pragma once

#include <QMap>
#include <QMutex>

#include <atomic>

#include "recordtable_p.h"
#include "shardedcounter_p.h"
#include "storedsubscription_p.h"
#include "zepleteventsystem.h"
#include "zepletsubscriptionmanager.h"
#include "zepletsubscriptionmanager_p.h"

namespace zeplet
{

/// The state of the event bus. What its operations remove they hand out, for the caller to release
/// without any lock. The manager's mutex is taken after `mutex`, never before it.
class ZepletEventSystemPrivate
{
public:
    explicit ZepletEventSystemPrivate(ZepletEventSystem *system);

    ZepletSubscriptionManagerPrivate &index() const { return *manager.d; }

    /// The subscribers of that moment; null if there are none. Locks `mutex`.
    SubscribersPointer snapshot(ZepletEventType type) const;
    /// The entry of a context object, whose destroyed() is connected from then on. Needs `mutex`
    /// locked, and unlocks it meanwhile to connect.
    ContextPointer watch(QObject *object, QMutexLocker &lock);
    /// Adds the record to those of its context object. Needs `mutex` locked.
    static void bind(ContextPointer context, StoredSubscription &record);
    /// Removes one subscription and tells of it; null for an unknown id. Needs `mutex` locked.
    StoredPointer doUnsubscribe(const QString &id);
    /// Removes those of the subscriptions that are still there; returns how many. Needs `mutex`
    /// locked.
    int doUnsubscribe(const StoredPointers &records);
    /// Removes the invalid subscriptions. Locks `mutex`.
    StoredPointers takeInvalid();
    /// Ends all subscriptions of a dying object. Locks `mutex`.
    StoredPointers takeContext(QObject *object);
    /// Locks `mutex`.
    StoredPointers takeAll();

    mutable QMutex mutex;
    ZepletSubscriptionManager manager;
    std::atomic<qint32> nextCustomType {UserEventStart};
    QMap<int, QString> customTypeNames;
    /// An entry stays until its object dies, also without subscriptions.
    RecordTable<ContextPointer> contexts;
    ShardedCounter totalEventsPublished;
    ShardedCounter totalEventsHandled;

private:
    ContextPointer findContext(QObject *object) const;
    ContextPointer contextOf(QObject *object);
    static void unbind(StoredSubscription &record);

    ZepletEventSystem *const q;
};

} // namespace zeplet
