#pragma once

#include <QHash>
#include <QMutex>

#include "recordtable_p.h"
#include "storedsubscription_p.h"
#include "zepletsubscriptionmanager.h"

namespace zeplet
{

/// The indexes of the subscription manager. The operations lock `mutex` themselves; what they
/// remove they hand out, for the caller to release without any lock.
class ZepletSubscriptionManagerPrivate
{
public:
    /// Returns the record with the same id that it replaced, or null.
    StoredPointer insert(StoredPointer record);
    /// Null for an unknown id.
    StoredPointer take(const QString &id);
    /// A record that is in the manager.
    StoredPointer take(StoredSubscription &record);
    StoredPointers takeByType(ZepletEventType type);
    StoredPointers takeByPlugin(const QString &pluginName);
    StoredPointers takeInvalid();
    StoredPointers takeAll();

    StoredPointer find(const QString &id) const;
    /// The subscribers of that moment, not to be changed; null if there are none. Does not lock:
    /// the bus makes all its changes under a mutex of its own, and calls this under that one.
    SubscribersPointer snapshotUnlocked(ZepletEventType type) const
    {
        const TypePointer entry = findType(type);
        return entry ? entry->subscribers : SubscribersPointer();
    }
    StoredPointers subscribers(ZepletEventType type) const;
    /// Null if it has no subscriptions. Does not lock.
    TypePointer findType(ZepletEventType type) const;
    StoredPointers subscriptionsOf(const QString &pluginName) const;

    mutable QMutex mutex;
    /// The lists of `byType` own the records.
    RecordTable<StoredSubscription *> byId;
    RecordTable<TypePointer> byType;
    QHash<QString, PluginPointer> byPlugin;

private:
    StoredSubscription *findLocked(const QString &id, uint hash) const;
    static const StoredPointer &ownerOf(const StoredSubscription &record);
    TypePointer typeLocked(ZepletEventType type);
    PluginPointer &pluginLocked(const QString &name);
    StoredPointer takeLocked(StoredSubscription *record);
    StoredPointers takeLocked(StoredPointers records);
    StoredPointers subscribersLocked(ZepletEventType type) const;
    StoredPointers subscriptionsOfLocked(const QString &pluginName) const;
};

} // namespace zeplet
