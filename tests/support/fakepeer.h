#pragma once

#include <link/message.h>

#include <QHash>
#include <QMutex>
#include <QSemaphore>
#include <QThread>
#include <QUrl>
#include <QVector>
#include <functional>

class QWebSocket;
class QWebSocketServer;

/**
 * A small peer for the host's clients: one endpoint on a loopback port of its own, in a thread of
 * its own. What it answers is scripted per method; a method without a script is refused. All
 * members may be called from the test's thread; those that touch the sockets wait for the peer.
 */
class FakePeer : public QObject
{
    Q_OBJECT

public:
    /** Gets the request, and gives the frames to send back, in order. Runs on the peer's thread. */
    using Script = std::function<QVector<QByteArray>(const rpc::Message &request)>;

    FakePeer();
    ~FakePeer() override;

    QUrl url() const;

    void script(const QString &method, const Script &script);
    void answer(const QString &method, const QJsonValue &result);
    void refuse(const QString &method, const QString &reason);
    void ignore(const QString &method);

    void notify(const QString &method, const QJsonValue &params);
    void sendText(const QString &text);
    void sendBinary(const QByteArray &bytes);
    /** Raw bytes below the WebSocket, to the client that came last; also while it stands still. */
    void sendRaw(const QByteArray &bytes);
    void dropClients();
    /** Stops listening and drops all clients, or listens again on the same port. */
    void setListening(bool on);
    /** While it stands still, it reads nothing and answers nothing, not even a ping. */
    void standStill();
    void goOn();

    int received(const QString &method) const;
    rpc::Message last(const QString &method) const;
    /** All requests, in the order of their arrival. */
    QVector<rpc::Message> requests() const;
    int clients() const;
    /** The reason with which the last client closed. */
    QString closeReason() const;

private:
    void accept();
    void receive(QWebSocket *socket, const QString &text);
    void onPeer(const std::function<void()> &function) const;

    QThread m_thread;
    QObject *m_worker; ///< lives on the peer's thread, with the server and its sockets
    QWebSocketServer *m_server = nullptr;
    QVector<QWebSocket *> m_sockets;
    quint16 m_port = 0;
    mutable QMutex m_mutex; ///< guards what follows
    QHash<QString, Script> m_scripts;
    QVector<rpc::Message> m_requests;
    QString m_closeReason;
    qintptr m_descriptor = -1; ///< of the client that came last
    QSemaphore m_goOn;
};
