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
    using SubscriptionPointer = QSharedPointer<ZepletEventSubscription>;

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
    bool hasSubscription(const QString &id) const;
    QStringList allSubscriptionIds() const;
    int validSubscriptionCount() const;

    QList<SubscriptionPointer> getSubscriptionsByType(ZepletEventType type) const;
    QList<SubscriptionPointer> getSubscriptionsByPlugin(const QString &pluginName) const;
    /// Valid or not.
    int subscriptionCountByType(ZepletEventType type) const;
    /// Valid or not.
    int subscriptionCountByPlugin(const QString &pluginName) const;
    QStringList subscriptionIds(const QString &pluginName) const;
    /// The types that have at least one subscription, valid or not.
    QList<ZepletEventType> registeredEventTypes() const;

    void clear();

private:
    friend class ZepletEventSystemPrivate;
    const QScopedPointer<ZepletSubscriptionManagerPrivate> d;
};

} // namespace zeplet
