#include <zeplet/interface/interfacemanager_p.h>
#include <zeplet/interface/interfacewatches_p.h>

#include <nexo/nexo.h>
#include <zeplet/events/zepleteventfilters.h>
#include <zeplet/events/zepleteventsystem.h>
#include <zeplet/interface/hostmanagers_p.h>
#include <zeplet/interface/nodejson_p.h>
#include <zeplet/log/hostlines_p.h>

#include <QPointer>

#include <utility>

namespace zeplet
{

using Callback = std::function<void(const QVariant &)>;
using Connections = QMap<QString, QMetaObject::Connection>;
using Subscriptions = QMap<QString, QList<QString>>;

namespace
{

QString subscribeSource(ZepletEventType type, const QString &source, Callback callback,
                        const QString &subscriber)
{
    return zepletEvent()->subscribeFiltered(type, filterByServiceKey(source),
                                            adaptNexoCallback(std::move(callback)), subscriber,
                                            nullptr);
}

// True where the key is connected already, so that one more subscription shares the connection.
bool joinKey(Subscriptions &subscriptions, const QString &key, const QString &id)
{
    if (subscriptions.contains(key)) {
        subscriptions[key].append(id);
        return true;
    }
    subscriptions.insert(key, {});
    return false;
}

// Keeps what publishes the key; false where it could not be connected. Both go to the log.
bool keepConnection(Connections &connections, const QString &key,
                    const QMetaObject::Connection &connection, const QString &success,
                    const QString &failure)
{
    if (connection)
        connections.insert(key, connection);
    statusLine() << (connection ? success : failure) << key;
    return connection;
}

// Ends one subscription, or all of the key with an empty id. True once nobody is left, in which
// case the key's connection is gone too.
bool releaseKey(Subscriptions &subscriptions, Connections &connections, const QString &key,
                const QString &id)
{
    QList<QString> ended {id};
    const auto stored = subscriptions.find(key);
    if (id.isEmpty())
        ended = stored == subscriptions.end() ? QList<QString>() : std::exchange(*stored, {});
    else if (stored != subscriptions.end())
        stored->removeAll(id);
    for (const QString &subscription : qAsConst(ended))
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
    if (joinKey(d->nexoSubscriptions, serviceKey, id))
        return true;
    if (!keepConnection(d->nexoConnections, serviceKey, d->publishHubKey(serviceKey),
                        QStringLiteral("connectNexoData - serviceKey : "),
                        QStringLiteral("connectNexoData failed: connect signal failed for "))) {
        // The subscription on the bus stays: others may publish this key.
        d->nexoSubscriptions.remove(serviceKey);
        return false;
    }
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
    if (joinKey(d->rcNotifySubscriptions, notifyPath, id))
        return true;
    if (!keepConnection(d->rcNotifyConnections, notifyPath, d->publishNotifyPath(notifyPath),
                        QStringLiteral("connectRcNotify - notifyPath : "),
                        QStringLiteral("connectRcNotify failed: connect signal failed for "))) {
        zepletEvent()->unsubscribe(id);
        d->rcNotifySubscriptions.remove(notifyPath);
        return false;
    }
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

InterfaceWatches::Ids InterfaceWatches::hubKeys()
{
    return zepletInterface()->d->nexoSubscriptions;
}

InterfaceWatches::Ids InterfaceWatches::notifyPaths()
{
    return zepletInterface()->d->rcNotifySubscriptions;
}

bool InterfaceWatches::motionErrors()
{
    return zepletInterface()->d->motionErrorsWatched;
}

void InterfaceWatches::endMotionErrors()
{
    zepletInterface()->d->watchMotionErrors(false);
}

} // namespace zeplet
