#pragma once

#include <QDateTime>
#include <QSharedPointer>
#include <QString>

#include <zeplet/events/zepleteventhandler.h>
#include <zeplet/export.h>

namespace zeplet
{

/// One plugin's handler for one event type, with its statistics. Copies share the handler. Not
/// synchronised: one subscription must not be dispatched on two threads at the same time.
class ZEPLET_EXPORT ZepletEventSubscription
{
public:
    /// A subscription with a new id, of type None, without a handler.
    ZepletEventSubscription();
    /// An empty `subscriptionId` is replaced by a new one; a null handler is accepted.
    ZepletEventSubscription(const QString &subscriptionId, const QString &plugin,
                            ZepletEventType type, QSharedPointer<ZepletEventHandler> eventHandler);

    /// A random UUID (RFC 4122, version 4): 36 characters without braces.
    static QString generateSubscriptionId();

    /// Whether there is a handler and it may still be called.
    bool isValid() const;
    /// Whether it ends with the first call; false without a handler.
    bool isOneShot() const;
    /// Empty without a handler.
    QString handlerName() const;

    /// Sets the time of the last invocation to now.
    void touch();
    /// Counts an invocation and notes its time.
    void incrementInvokeCount();
    /// Calls the handler if the subscription is valid, and counts the call when it returns. A
    /// filter that refuses the event counts as a call. What the handler throws passes through,
    /// uncounted.
    void handleEvent(const ZepletEvent &event);

    /// One line with id, plugin, type (bare hexadecimal), handler, validity and count, for logs.
    QString toString() const;

    /// What the bus knows it by.
    QString id;
    /// Who subscribed: free text.
    QString pluginName;
    /// The type of the events that reach it.
    ZepletEventType eventType = None;
    /// May be null.
    QSharedPointer<ZepletEventHandler> handler;
    /// In UTC.
    QDateTime createdTime;
    /// In UTC; `createdTime` until the first invocation.
    QDateTime lastInvokedTime;
    /// Calls of the handler that returned.
    quint64 invokeCount = 0;
};

} // namespace zeplet
