#pragma once

#include <zeplet/export.h>

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QObject>
#include <QString>
#include <QVariant>
#include <functional>

namespace zeplet
{

/**
 * The one facade through which plugins reach the robot controller, its service hub and the host's
 * data. Everything belongs to the GUI thread; nothing throws. Timeouts are in milliseconds.
 */
class ZEPLET_EXPORT InterfaceManager : public QObject
{
    Q_OBJECT

public:
    /** Watches the links, and 100 ms later feeds the event bus. zepletInterface() makes the one
     *  object of the process. */
    explicit InterfaceManager(QObject *parent);
    ~InterfaceManager() override;

    /** Makes the event bus translate the host's changes into events. Called once by this object;
     *  a second call doubles every event. */
    void initEventSystem();

    // Requests to the controller. "module" names the controller module, "command" the dotted
    // command in it; a full command is "module.command".

    /** Sends without waiting for the answer; true when accepted. */
    bool rcRequest(const QString &module, const QString &command, const QJsonValue &data,
                   int timeout = 1600);
    /** Sends and, with wait, blocks until the answer or the timeout. The answer with all that it
     *  holds, or null where none came. */
    QJsonValue rcExecRequest(const QString &module, const QString &command, const QJsonValue &data,
                             bool wait = true, int timeout = 1600);
    bool rcRequestFullCommand(const QString &command, const QJsonValue &data, int timeout = 1600);
    QJsonValue rcExecRequestFullCommand(const QString &command, const QJsonValue &data,
                                        bool wait = true, int timeout = 1600);

    // The service hub and the host's data store.

    /** Whether the controller's link is up. */
    bool getRobotConnected();
    /** A node of the host's data store by its dotted key; null for a node without content. */
    QJsonValue getNodeData(const QString &key);
    /** The value of a hub key, or of a part of it; null when the link is down. At once. */
    QJsonValue getNexoData(const QString &key);
    QJsonValue getNexoData(const QString &key, const QString &subKey);
    /** Send a value or a command to the hub without waiting. True says that the link was up, not
     *  that the hub took it. */
    bool setNexoData(const QString &key, const QString &subKey, const QVariant &value);
    bool setNexoData(const QString &key, const QVariant &value);
    bool commandNexoData(const QString &key, const QVariant &value);
    /** Sends a command and blocks until the hub answers, the link is lost or the host's limit
     *  passes; null where no answer came. */
    QJsonValue execCommandNexoData(const QString &key, const QVariant &value);
    /** Sends a plugin command and blocks likewise; empty where no answer came. The short forms
     *  send [obj], [{key: obj}] and [{key: {subKey: value}}]. */
    QJsonArray commandCustomData(QObject *sender, const QJsonArray &data);
    QJsonArray commandCustomData(QObject *sender, const QJsonObject &obj);
    QJsonArray commandCustomData(QObject *sender, const QString &key, const QJsonObject &obj);
    QJsonArray commandCustomData(QObject *sender, const QString &key, const QString &subKey,
                                 const QString &value);

    // Subscriptions. Callbacks run as handlers of the event bus. "subscriber" is the plugin's name
    // on the bus; "reserved" is ignored.

    /** Calls back on changes of a hub key, and watches the key until everyone who connected it has
     *  disconnected it: ending the subscription on the bus alone does not end the watch. */
    bool connectNexoData(const QString &subscriber, const QString &serviceKey,
                         std::function<void(const QVariant &)> callback,
                         const QString &reserved = QString());
    /** Ends one subscription by its id on the bus, or, with an empty id, all of that key, also
     *  those of other plugins. Always true. */
    bool disconnectNexoData(const QString &subscriber, const QString &serviceKey,
                            const QString &subscriptionId);
    /** The same for notifications of the controller; an empty path is refused. */
    bool connectRcNotify(const QString &subscriber, const QString &notifyPath,
                         std::function<void(const QVariant &)> callback,
                         const QString &reserved = QString());
    bool disconnectRcNotify(const QString &subscriber, const QString &notifyPath,
                            const QString &subscriptionId);
    /** Calls back when the network came back (onConnect) or was lost, as long as context lives;
     *  without a context never. The subscription's id. */
    QString connectNetworkStatus(bool onConnect, const QString &subscriber, QObject *context,
                                 std::function<void()> callback,
                                 const QString &reserved = QString());
    /** Whether there was such a subscription. */
    bool disconnectNetworkStatus(bool onConnect, const QString &subscriber,
                                 const QString &subscriptionId);

Q_SIGNALS:
    /** Controller and service hub are both connected again. */
    void sigNetworkConnect();
    /** The controller's link was lost; status: on purpose by this side. */
    void sigNetworkDisConnect(bool status);

private:
    class InterfaceManagerPrivate;
    InterfaceManagerPrivate *d;
};

/** The process-wide facade; made on the first call, which is safe from any thread but belongs on
 *  the GUI thread. It lives to the end of the process. */
ZEPLET_EXPORT InterfaceManager *zepletInterface();

} // namespace zeplet
