#pragma once

#include "clientconnection.h"

#include <QHash>
#include <QObject>
#include <QSet>
#include <QTcpServer>
#include <QTcpSocket>
#include <QVector>
#include <QWebSocketServer>

namespace simulator
{

/**
 * One WebSocket server on loopback with its clients. While it is closed it keeps its port reserved,
 * so that a connection is refused and it can open again on the same one. Lives on the simulator's
 * thread.
 */
class Endpoint : public QObject
{
    Q_OBJECT

public:
    static constexpr int kMaxClients = 32;

    Endpoint(const QString &name, const EndpointContext &context, QObject *parent = nullptr);
    ~Endpoint() override;

    /** 0: the port that it had before, or else any free one. */
    bool open(quint16 port, QString *error);
    void close();
    bool isOpen() const { return m_listener.isListening(); }
    quint16 port() const { return m_port; }

    /** Sends to all clients. */
    void notify(const QString &method, const QJsonObject &params);
    void setSilent(bool silent);
    void dropClients();
    /** Who has not asked for a WebSocket by then takes the place of a client in vain. */
    void setHandshakeLimit(int ms) { m_handshakeMs = ms; }

    int clientCount() const { return m_clients.size(); }
    /** The keys that any client watches, sorted. */
    QStringList watches() const;

signals:
    void received(const QString &endpoint, const QString &text);
    void problem(const QString &line);

private:
    void accept();
    void admit(QTcpSocket *transport);
    void upgraded();
    void add(QWebSocket *socket, QTcpSocket *transport);
    void remove(ClientConnection *client);
    void report(const QString &line);

    QString m_name;
    EndpointContext m_context;
    QHash<quint16, QPointer<QTcpSocket>> m_transports; ///< by the client's port
    QSet<quint16> m_inHandshake; ///< those that have not asked for a WebSocket yet
    QTcpServer m_listener;
    QWebSocketServer m_webSockets; ///< for the handshake only; it listens nowhere
    QTcpSocket m_reserved; ///< bound to the port, never listening
    QVector<ClientConnection *> m_clients;
    quint16 m_port = 0;
    int m_handshakeMs = 5000;
    bool m_silent = false;
};

} // namespace simulator
