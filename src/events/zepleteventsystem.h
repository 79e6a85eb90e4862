#pragma once

#include <QList>
#include <QObject>
#include <QScopedPointer>
#include <QSharedPointer>
#include <QStringList>

#include <functional>

#include <zeplet/events/zepletevent.h>
#include <zeplet/events/zepleteventhandler.h>
#include <zeplet/export.h>

namespace zeplet
{

class ZepletEventSystemPrivate;

/// The event bus of the process: plugins subscribe callables by event type, anyone publishes.
///
/// Any thread may subscribe, unsubscribe, publish and ask. Handlers run without any lock of the
/// bus, so they may use it freely; the bus catches nothing that they throw. One subscription must
/// not be dispatched on two threads at the same time. What a removal drops (captured objects,
/// handlers) is released after unlocking.
class ZEPLET_EXPORT ZepletEventSystem : public QObject
{
    Q_OBJECT

public:
    /// What a subscription calls.
    using Callback = std::function<void(const ZepletEvent &)>;
    /// Says whether an event reaches the callback.
    using Filter = std::function<bool(const ZepletEvent &)>;

    /// The bus, made by the first call, on whose thread asynchronous events are delivered. Any
    /// thread.
    static ZepletEventSystem *instance();
    /// The bus if it has been made, for those that only want to leave it. Any thread.
    static ZepletEventSystem *existingInstance();
    /// Deletes the bus with all subscriptions, silently. To be called once, when no other thread
    /// uses it.
    static void destroyInstance();

    /// Calls `callback` for every event of the type while `context` lives; returns the
    /// subscription's id. Without a context the subscription is stored, but never called.
    QString subscribe(ZepletEventType type, Callback callback,
                      const QString &pluginName = QString(), QObject *context = nullptr);
    /// Calls `callback` for the events that `filter` lets through, until the subscription is
    /// removed or `context`, if there is one, dies. An empty filter lets every event through.
    QString subscribeFiltered(ZepletEventType type, Filter filter, Callback callback,
                              const QString &pluginName = QString(), QObject *context = nullptr);
    /// Calls `callback` for one event; the subscription is removed at the end of that dispatch.
    QString subscribeOnce(ZepletEventType type, Callback callback,
                          const QString &pluginName = QString(), QObject *context = nullptr);

    /// Calls the handlers of the event's type on this thread, in no particular order, and returns
    /// when all have run. It reaches the subscriptions of this moment: one that a handler removes
    /// meanwhile is still called, one that it adds is not.
    void publish(const ZepletEvent &event);
    /// Publishes a new event of the type, likewise.
    void publish(ZepletEventType type, const QVariant &data = QVariant(),
                 const QString &source = QString());
    /// Publishes a copy, the same event, from the event loop of the bus's thread. Does not block;
    /// events of one thread keep their order.
    void publishAsync(const ZepletEvent &event);
    /// Publishes a new event of the type, likewise. Its time is that of this call.
    void publishAsync(ZepletEventType type, const QVariant &data = QVariant(),
                      const QString &source = QString());

    /// Whether the id was known.
    bool unsubscribe(const QString &subscriptionId);
    /// Returns how many were removed.
    int unsubscribeByPlugin(const QString &pluginName);
    /// Returns how many were removed.
    int unsubscribeByType(ZepletEventType type);
    /// Returns how many were removed.
    int unsubscribeByTypeAndPlugin(const QString &pluginName, ZepletEventType type);
    /// Removes the subscriptions that can not be called any more, without a signal.
    void cleanupInvalidSubscriptions();

    /// Valid or not.
    int subscriptionCount(ZepletEventType type) const;
    /// Valid or not.
    int subscriptionCount(const QString &pluginName) const;
    /// Only the valid ones.
    int totalSubscriptionCount() const;
    /// Whether there is a subscription of that id, valid or not.
    bool hasSubscription(const QString &subscriptionId) const;
    /// The types that have at least one subscription, in no particular order.
    QList<ZepletEventType> registeredEventTypes() const;
    /// The ids of one plugin's subscriptions, in no particular order.
    QStringList totalSubscriptionIds(const QString &pluginName) const;

    /// Calls of publish(), whether or not they reached a subscriber.
    quint64 totalEventsPublished() const;
    /// Calls of handlers that returned.
    quint64 totalEventsHandled() const;
    /// Sets both counts to 0.
    void resetStatistics();

    /// A new type from 0x8000 to 0xFFFF, also for a name that is already taken. When all are given
    /// out: a warning, and None.
    ZepletEventType registerCustomEventType(const QString &name);
    /// Empty for a number that was not handed out.
    QString customEventTypeName(ZepletEventType type) const;

    /// Connects the host's data and network signals to events. To be called once, on the GUI
    /// thread, when the host's data store exists: each further call doubles every translation.
    void registerAllEvents();

signals:
    /// Emitted on the publishing thread before the handlers run, without a lock.
    void eventPublished(const zeplet::ZepletEvent &event);
    /// Emitted under the bus's lock: a slot that is connected directly must not call the bus.
    void subscriptionAdded(const QString &subscriptionId, zeplet::ZepletEventType type,
                           const QString &pluginName);
    /// Emitted under the bus's lock: a slot that is connected directly must not call the bus. Not
    /// emitted for what a dying context object or cleanupInvalidSubscriptions() removes.
    void subscriptionRemoved(const QString &subscriptionId, zeplet::ZepletEventType type,
                             const QString &pluginName);

private:
    ZepletEventSystem();
    ~ZepletEventSystem() override;

    QString doSubscribe(ZepletEventType type, QSharedPointer<ZepletEventHandler> handler,
                        const QString &pluginName, QObject *context);
    void dispatchEvent(const ZepletEvent &event);
    void removeFired(const QStringList &ids);
    void onContextDestroyed(QObject *object);

    friend class ZepletEventSystemPrivate;
    const QScopedPointer<ZepletEventSystemPrivate> d;
};

/// The event bus: ZepletEventSystem::instance().
ZEPLET_EXPORT ZepletEventSystem *zepletEvent();

} // namespace zeplet
