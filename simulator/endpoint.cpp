#include "endpoint.h"

#include <QJsonObject>
#include <QTimer>
#include <link/limits.h>

namespace simulator
{

namespace
{
/** A frame of the greatest size with its header has to fit. */
constexpr qint64 kReadBuffer = rpc::maxFrameBytes + qint64(64) * 1024;
} // namespace

Endpoint::Endpoint(const QString &name, const EndpointContext &context, QObject *parent)
    : QObject(parent)
    , m_name(name)
    , m_context(context)
    , m_webSockets(QStringLiteral("zeplet-simulator"), QWebSocketServer::NonSecureMode)
{
    connect(&m_listener, &QTcpServer::newConnection, this, &Endpoint::accept);
    connect(&m_webSockets, &QWebSocketServer::newConnection, this, &Endpoint::upgraded);
}

Endpoint::~Endpoint()
{
    m_listener.close();
    dropClients();
    // They, and the sockets below them, still report to members of this object when they go.
    qDeleteAll(findChildren<ClientConnection *>());
}

bool Endpoint::open(quint16 port, QString *error)
{
    if (isOpen())
        return true;
    if (!m_listener.listen(QHostAddress::LocalHost, port != 0 ? port : m_port)) {
        *error = QStringLiteral("%1: port %2: %3")
                     .arg(m_name)
                     .arg(port != 0 ? port : m_port)
                     .arg(m_listener.errorString());
        return false;
    }
    m_reserved.abort();
    m_port = m_listener.serverPort();
    return true;
}

void Endpoint::close()
{
    if (!isOpen())
        return;
    m_listener.close();
    dropClients();
    m_reserved.bind(QHostAddress::LocalHost, m_port, QAbstractSocket::ReuseAddressHint);
}

void Endpoint::notify(const QString &method, const QJsonObject &params)
{
    const rpc::Message message = rpc::Message::notification(method, params);
    const auto clients = m_clients; // one that does not read is dropped meanwhile
    for (ClientConnection *client : clients)
        client->notify(message);
}

void Endpoint::setSilent(bool silent)
{
    m_silent = silent;
    const auto clients = m_clients;
    for (ClientConnection *client : clients)
        client->setSilent(silent);
}

void Endpoint::dropClients()
{
    const auto clients = m_clients;
    for (ClientConnection *client : clients)
        client->drop();
    // What is left is in its handshake; one may go while another is aborted.
    const auto transports = m_transports;
    for (const QPointer<QTcpSocket> &transport : transports) {
        if (transport)
            transport->abort();
    }
}

QStringList Endpoint::watches() const
{
    QSet<QString> keys;
    for (const ClientConnection *client : m_clients)
        keys.unite(client->watches());
    QStringList sorted = keys.values();
    sorted.sort();
    return sorted;
}

void Endpoint::accept()
{
    while (QTcpSocket *transport = m_listener.nextPendingConnection()) {
        if (m_transports.size() >= kMaxClients) {
            report(QStringLiteral("connection refused: %1 clients at most").arg(kMaxClients));
            transport->abort();
            transport->deleteLater();
            continue;
        }
        admit(transport);
        m_webSockets.handleConnection(transport);
    }
}

void Endpoint::admit(QTcpSocket *transport)
{
    const quint16 peer = transport->peerPort();
    m_transports.insert(peer, transport);
    m_inHandshake.insert(peer);
    connect(transport, &QObject::destroyed, this, [this, peer] {
        m_transports.remove(peer);
        m_inHandshake.remove(peer);
    });
    // The listener, which owns it, would keep it as long as it lives itself.
    connect(transport, &QTcpSocket::disconnected, this, [this, transport, peer] {
        if (m_inHandshake.contains(peer))
            transport->deleteLater();
    });
    QTimer::singleShot(m_handshakeMs, transport, [this, transport, peer] {
        if (!m_inHandshake.contains(peer))
            return;
        report(QStringLiteral("client closed: no handshake within %1 ms").arg(m_handshakeMs));
        transport->abort();
    });
    transport->setReadBufferSize(kReadBuffer);
    // A small frame must not wait for the peer's ACK of the one before.
    transport->setSocketOption(QAbstractSocket::LowDelayOption, 1);
}

void Endpoint::upgraded()
{
    while (QWebSocket *socket = m_webSockets.nextPendingConnection()) {
        m_inHandshake.remove(socket->peerPort());
        add(socket, m_transports.value(socket->peerPort()));
    }
}

void Endpoint::add(QWebSocket *socket, QTcpSocket *transport)
{
    auto *client = new ClientConnection(socket, transport, m_context, this);
    connect(client, &ClientConnection::received, this,
            [this](const QString &text) { emit received(m_name, text); });
    connect(client, &ClientConnection::problem, this, &Endpoint::report);
    connect(client, &ClientConnection::gone, this, [this, client] { remove(client); });
    // A WebSocket that goes cuts all connections of the socket below it, ours to destroyed() as
    // well.
    connect(client, &QObject::destroyed, this,
            [this, peer = socket->peerPort()] { m_transports.remove(peer); });
    m_clients += client;
    client->setSilent(m_silent);
}

void Endpoint::remove(ClientConnection *client)
{
    m_clients.removeOne(client);
    client->deleteLater();
}

void Endpoint::report(const QString &line)
{
    emit problem(m_name + QStringLiteral(": ") + line);
}

} // namespace simulator
