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
    using Snapshot = QVector<StoredPointer>;

    /// Returns the record with the same id that it replaced, or null.
    StoredPointer insert(const StoredPointer &record);
    /// Null for an unknown id.
    StoredPointer take(const QString &id);
    Snapshot takeByType(ZepletEventType type);
    Snapshot takeByPlugin(const QString &pluginName);
    Snapshot takeInvalid();
    Snapshot takeAll();

    StoredPointer find(const QString &id) const;
    /// The subscribers of that moment, without copying them.
    Snapshot subscribers(ZepletEventType type) const;
    Snapshot subscriptionsOf(const QString &pluginName) const;

    mutable QMutex mutex;
    QHash<QString, StoredPointer> byId;
    QHash<ZepletEventType, PlacedList<StoredPointer>> byType;
    QHash<QString, PlacedList<StoredSubscription *>> byPlugin;

private:
    StoredPointer takeLocked(const QString &id);
    Snapshot takeLocked(const Snapshot &records);
    Snapshot subscriptionsOfLocked(const QString &pluginName) const;
    void unlink(StoredSubscription &record);
};

} // namespace zeplet
