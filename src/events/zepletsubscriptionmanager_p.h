#pragma once

#include <QHash>
#include <QMutex>

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
    StoredPointer insert(const StoredPointer &record);
    /// Null for an unknown id.
    StoredPointer take(const QString &id);
    StoredPointers takeByType(ZepletEventType type);
    StoredPointers takeByPlugin(const QString &pluginName);
    StoredPointers takeInvalid();
    StoredPointers takeAll();

    StoredPointer find(const QString &id) const;
    /// The subscribers of that moment, not to be changed; null if there are none.
    SubscribersPointer snapshot(ZepletEventType type) const;
    StoredPointers subscribers(ZepletEventType type) const;
    StoredPointers subscriptionsOf(const QString &pluginName) const;

    mutable QMutex mutex;
    QHash<QString, StoredPointer> byId;
    QHash<ZepletEventType, SubscribersPointer> byType;
    QHash<QString, PlacedList<StoredSubscription *>> byPlugin;

private:
    StoredPointer takeLocked(const QString &id);
    StoredPointers takeLocked(StoredPointers records);
    StoredPointers subscribersLocked(ZepletEventType type) const;
    StoredPointers subscriptionsOfLocked(const QString &pluginName) const;
    void unlink(StoredSubscription &record);
};

} // namespace zeplet
