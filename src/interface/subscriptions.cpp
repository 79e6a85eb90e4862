#include <zeplet/interface/interfacemanager_p.h>

#include <nexo/nexo.h>
#include <zeplet/events/zepleteventfilters.h>
#include <zeplet/events/zepleteventsystem.h>
#include <zeplet/interface/hostmanagers_p.h>
#include <zeplet/interface/nodejson_p.h>
#include <zeplet/log/hostlines_p.h>

#include <QPointer>

namespace zeplet
{

using Callback = std::function<void(const QVariant &)>;

namespace
{

QString subscribeSource(ZepletEventType type, const QString &source, Callback callback,
                        const QString &subscriber)
{
    return zepletEvent()->subscribeFiltered(type, filterByServiceKey(source),
                                            adaptNexoCallback(std::move(callback)), subscriber,
                                            nullptr);
}

// Ends one subscription, or all of the key with an empty id. True once nobody is left, in which
// case the key's connection is gone too.
template <typename Subscriptions, typename Connections>
bool releaseKey(Subscriptions &subscriptions, Connections &connections, const QString &key,
                const QString &id)
{
    auto stored = subscriptions.find(key);
    const QList<QString> ended = id.isEmpty()
        ? (stored == subscriptions.end() ? QList<QString>() : *stored)
        : QList<QString> {id};
    if (stored != subscriptions.end()) {
        if (id.isEmpty())
            stored->clear();
        else
            stored->removeAll(id);
    }
    for (const QString &subscription : ended)
        zepletEvent()->unsubscribe(subscription);

    if (!subscriptions.value(key).isEmpty())
        return false;
    subscriptions.remove(key);
    if (connections.contains(key))
        QObject::disconnect(connections.take(key));
    return true;
}

} // namespace

QMetaObject::Connection
InterfaceManager::InterfaceManagerPrivate::publishHubKey(const QString &serviceKey)
{
    ostrel::ModuleObject *node = nexo()->watchNode(serviceKey);
    if (!node)
        return {};
    return connect(node, &ostrel::ModuleObject::changed, q, [serviceKey](const QVariant &newValue) {
        zepletEvent()->publish(ZepletEvent(NexoDataChange, serviceKey, newValue));
    });
}

QMetaObject::Connection
InterfaceManager::InterfaceManagerPrivate::publishNotifyPath(const QString &notifyPath)
{
    QPointer<ostrel::ModuleObject> node
        = controllerManager()->cmdItemMobj(QStringLiteral("notify"), notifyPath);
    if (!node)
        return {};
    return connect(node, &ostrel::ModuleObject::changed, q, [notifyPath, node] {
        const QVariant data = node ? node->exportToJson(true).toVariant() : QVariant();
        zepletEvent()->publish(ZepletEvent(RCNotifyDataChange, notifyPath, data));
    });
}

bool InterfaceManager::connectNexoData(const QString &subscriber, const QString &serviceKey,
                                       Callback callback, const QString &)
{
    const QString id = subscribeSource(NexoDataChange, serviceKey, std::move(callback), subscriber);
    if (id.isEmpty())
        return false;
    if (d->nexoSubscriptions.contains(serviceKey)) {
        d->nexoSubscriptions[serviceKey].append(id);
        return true;
    }

    d->nexoSubscriptions.insert(serviceKey, {});
    const QMetaObject::Connection connection = d->publishHubKey(serviceKey);
    if (!connection) {
        // The subscription on the bus stays: others may publish this key.
        statusLine() << QStringLiteral("connectNexoData failed: connect signal failed for ")
                     << serviceKey;
        d->nexoSubscriptions.remove(serviceKey);
        return false;
    }
    d->nexoConnections.insert(serviceKey, connection);
    statusLine() << QStringLiteral("connectNexoData - serviceKey : ") << serviceKey;
    nexo()->watch(nullptr, serviceKey, true);
    d->nexoSubscriptions[serviceKey].append(id);
    return true;
}

bool InterfaceManager::disconnectNexoData(const QString &, const QString &serviceKey,
                                          const QString &subscriptionId)
{
    if (releaseKey(d->nexoSubscriptions, d->nexoConnections, serviceKey, subscriptionId))
        nexo()->watch(nullptr, serviceKey, false);
    return true;
}

bool InterfaceManager::connectRcNotify(const QString &subscriber, const QString &notifyPath,
                                       Callback callback, const QString &)
{
    if (notifyPath.isEmpty())
        return false;
    const QString id
        = subscribeSource(RCNotifyDataChange, notifyPath, std::move(callback), subscriber);
    if (id.isEmpty())
        return false;
    if (d->rcNotifySubscriptions.contains(notifyPath)) {
        d->rcNotifySubscriptions[notifyPath].append(id);
        return true;
    }

    d->rcNotifySubscriptions.insert(notifyPath, {});
    const QMetaObject::Connection connection = d->publishNotifyPath(notifyPath);
    if (!connection) {
        statusLine() << QStringLiteral("connectRcNotify failed: connect signal failed for ")
                     << notifyPath;
        zepletEvent()->unsubscribe(id);
        d->rcNotifySubscriptions.remove(notifyPath);
        return false;
    }
    d->rcNotifyConnections.insert(notifyPath, connection);
    statusLine() << QStringLiteral("connectRcNotify - notifyPath : ") << notifyPath;
    d->rcNotifySubscriptions[notifyPath].append(id);
    return true;
}

bool InterfaceManager::disconnectRcNotify(const QString &, const QString &notifyPath,
                                          const QString &subscriptionId)
{
    releaseKey(d->rcNotifySubscriptions, d->rcNotifyConnections, notifyPath, subscriptionId);
    return true;
}

QString InterfaceManager::connectNetworkStatus(bool onConnect, const QString &subscriber,
                                               QObject *context, std::function<void()> callback,
                                               const QString &)
{
    return zepletEvent()->subscribe(onConnect ? NetworkConnected : NetworkDisconnected,
                                    adaptNetworkCallback(std::move(callback)), subscriber, context);
}

bool InterfaceManager::disconnectNetworkStatus(bool, const QString &, const QString &subscriptionId)
{
    return !subscriptionId.isEmpty() && zepletEvent()->unsubscribe(subscriptionId);
}

} // namespace zeplet
