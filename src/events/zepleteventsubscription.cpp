#include "zepleteventsubscription.h"

#include "randomuuid_p.h"
#include "utcclock_p.h"

#include <utility>

namespace zeplet
{

ZepletEventSubscription::ZepletEventSubscription()
    : ZepletEventSubscription(QString(), QString(), None, {})
{
}

ZepletEventSubscription::ZepletEventSubscription(const QString &subscriptionId,
                                                 const QString &plugin, ZepletEventType type,
                                                 QSharedPointer<ZepletEventHandler> eventHandler)
    : id(subscriptionId.isEmpty() ? generateSubscriptionId() : subscriptionId)
    , pluginName(plugin)
    , eventType(type)
    , handler(std::move(eventHandler))
    , createdTime(utcNow())
    , lastInvokedTime(createdTime)
{
}

QString ZepletEventSubscription::generateSubscriptionId()
{
    return randomUuid();
}

bool ZepletEventSubscription::isValid() const
{
    return handler && handler->isValid();
}

bool ZepletEventSubscription::isOneShot() const
{
    return handler && handler->isOneShot();
}

QString ZepletEventSubscription::handlerName() const
{
    return handler ? handler->handlerName() : QString();
}

void ZepletEventSubscription::touch()
{
    lastInvokedTime = utcNow();
}

void ZepletEventSubscription::incrementInvokeCount()
{
    ++invokeCount;
    touch();
}

void ZepletEventSubscription::handleEvent(const ZepletEvent &event)
{
    if (!isValid())
        return;
    handler->handleEvent(event);
    incrementInvokeCount();
}

QString ZepletEventSubscription::toString() const
{
    // One arg() call for all of them: a plugin name that holds "%3" stays as it is.
    return QStringLiteral(
               "Subscription{id='%1', plugin='%2', type=%3, handler='%4', valid=%5, invokes=%6}")
        .arg(id, pluginName, QString::number(static_cast<quint32>(eventType), 16), handlerName(),
             isValid() ? QStringLiteral("true") : QStringLiteral("false"),
             QString::number(invokeCount));
}

} // namespace zeplet
