#pragma once

#include <QList>
#include <QScopedPointer>
#include <QSharedPointer>
#include <QStringList>

#include <zeplet/events/zepleteventsubscription.h>
#include <zeplet/export.h>

namespace zeplet
{

class ZepletSubscriptionManagerPrivate;

/// The live subscriptions, found by id, by event type and by plugin in constant time.
///
/// Every operation may be called from any thread and is atomic. Lists come in no particular order
/// and share their records: a record outlives its removal as long as someone holds it. What a
/// removal drops is released after unlocking, so a captured object's destructor may use the
/// manager.
class ZEPLET_EXPORT ZepletSubscriptionManager
{
public:
    /// A record that is shared with the manager.
    using SubscriptionPointer = QSharedPointer<ZepletEventSubscription>;

    /// A manager without subscriptions.
    ZepletSubscriptionManager();
    Q_DISABLE_COPY(ZepletSubscriptionManager)
    ~ZepletSubscriptionManager();

    /// Stores a copy, in place of any record with the same id; returns the id.
    QString addSubscription(const ZepletEventSubscription &subscription);

    /// Whether the id was known.
    bool removeSubscription(const QString &id);
    /// Returns how many were removed.
    int removeSubscriptionsByType(ZepletEventType type);
    /// Returns how many were removed.
    int removeSubscriptionsByPlugin(const QString &pluginName);
    /// Removes the subscriptions that are not valid; returns how many.
    int cleanupInvalidSubscriptions();

    /// Null for an unknown id.
    SubscriptionPointer getSubscription(const QString &id) const;
    /// Whether the id is known.
    bool hasSubscription(const QString &id) const;
    /// The ids of all, valid or not.
    QStringList allSubscriptionIds() const;
    /// How many may still be called.
    int validSubscriptionCount() const;

    /// Those of an event type, valid or not.
    QList<SubscriptionPointer> getSubscriptionsByType(ZepletEventType type) const;
    /// Those of a plugin, valid or not.
    QList<SubscriptionPointer> getSubscriptionsByPlugin(const QString &pluginName) const;
    /// Valid or not.
    int subscriptionCountByType(ZepletEventType type) const;
    /// Valid or not.
    int subscriptionCountByPlugin(const QString &pluginName) const;
    /// The ids of a plugin's, valid or not.
    QStringList subscriptionIds(const QString &pluginName) const;
    /// The types that have at least one subscription, valid or not.
    QList<ZepletEventType> registeredEventTypes() const;

    /// Removes all.
    void clear();

private:
    friend class ZepletEventSystemPrivate;
    const QScopedPointer<ZepletSubscriptionManagerPrivate> d;
};

} // namespace zeplet
