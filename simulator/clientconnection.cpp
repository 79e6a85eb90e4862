#include "clientconnection.h"

#include <QJsonObject>
#include <QTimer>
#include <link/limits.h>

namespace simulator
{

namespace
{

/** A request is known by its method and, where the hub passes something on, by that as well. */
QStringList namesOf(const rpc::Message &request)
{
    if (request.method == QLatin1String("hub.command"))
        return {request.method, request.params[QStringLiteral("key")].toString()};
    if (request.method == QLatin1String("hub.plugin"))
        return {request.method, request.params[QStringLiteral("command")].toString()};
    return {request.method};
}

/** An id that the client did not choose. */
QJsonValue otherId(const QJsonValue &id)
{
    if (id.isString())
        return QJsonValue(id.toString() + QStringLiteral("-unasked"));
    return QJsonValue(id.toDouble() + 1000000);
}
} // namespace

ClientConnection::ClientConnection(QWebSocket *socket, QTcpSocket *transport,
                                   const EndpointContext &context, QObject *parent)
    : QObject(parent)
    , m_socket(socket)
    , m_transport(transport)
    , m_context(context)
{
    m_socket->setParent(nullptr); // it came from a server, which would delete it as well
    m_socket->setMaxAllowedIncomingFrameSize(rpc::maxFrameBytes);
    m_socket->setMaxAllowedIncomingMessageSize(rpc::maxFrameBytes);
    connect(socket, &QWebSocket::textMessageReceived, this, &ClientConnection::onText);
    connect(socket, &QWebSocket::binaryMessageReceived, this, &ClientConnection::onBinary);
    connect(socket, &QWebSocket::disconnected, this, &ClientConnection::onDisconnected);
}

ClientConnection::~ClientConnection()
{
    m_socket->disconnect(this);
    m_socket.reset();
    if (m_transport)
        m_transport->deleteLater();
}

void ClientConnection::notify(const rpc::Message &notification)
{
    send(rpc::encode(notification));
}

void ClientConnection::setSilent(bool silent)
{
    if (m_silent == silent || m_transport.isNull())
        return;
    m_silent = silent;
    // The WebSocket answers pings by itself as soon as it learns that there is something to read.
    m_transport->blockSignals(silent);
    if (silent)
        return;
    m_heldBytes = 0;
    for (const QByteArray &frame : std::exchange(m_held, {}))
        send(frame);
    if (m_transport->state() != QAbstractSocket::ConnectedState)
        drop();
    else if (m_transport->bytesAvailable() > 0)
        emit m_transport->readyRead();
}

void ClientConnection::drop()
{
    if (m_transport)
        m_transport->blockSignals(false);
    m_socket->abort();
    onDisconnected();
}

void ClientConnection::onText(const QString &text)
{
    if (m_ended)
        return;
    emit received(text);
    rpc::Message message;
    QString trouble;
    if (!rpc::decode(text.toUtf8(), &message, &trouble)) {
        close(QWebSocketProtocol::CloseCodeProtocolError, trouble);
        return;
    }
    if (message.kind == rpc::Message::Kind::Request
        || message.kind == rpc::Message::Kind::Notification)
        handle(message);
    else
        emit problem(QStringLiteral("an answer that nobody asked for is ignored"));
}

void ClientConnection::onBinary()
{
    if (!m_ended)
        close(QWebSocketProtocol::CloseCodeDatatypeNotSupported,
              QStringLiteral("a binary frame is no JSON-RPC 2.0 object"));
}

void ClientConnection::onDisconnected()
{
    if (std::exchange(m_gone, true))
        return;
    if (m_socket->closeCode() == QWebSocketProtocol::CloseCodeTooMuchData)
        emit problem(QStringLiteral("client closed: a frame is larger than %1 bytes")
                         .arg(rpc::maxFrameBytes));
    m_ended = true;
    emit gone();
}

void ClientConnection::handle(const rpc::Message &request)
{
    const QStringList names = namesOf(request);
    for (const QString &name : names)
        m_context.requests.add(name, request.params);
    if (const auto fault = m_context.faults.take(names))
        meet(*fault, request);
    else
        reply(request, answerTo(request));
}

void ClientConnection::meet(const Fault &fault, const rpc::Message &request)
{
    switch (fault.kind) {
    case FaultKind::LateAnswer:
        replyLater(request, fault.ms);
        break;
    case FaultKind::WrongAnswer:
        reply(request, rpc::Message::answer(request.id, fault.answer));
        break;
    case FaultKind::RepeatedAnswer: {
        const rpc::Message answer = answerTo(request);
        reply(request, answer);
        reply(request, answer);
        break;
    }
    case FaultKind::UnaskedAnswer:
        reply(request, rpc::Message::answer(otherId(request.id), fault.answer));
        break;
    case FaultKind::Refused:
        reply(request,
              rpc::Message::refusal(request.id, rpc::refused,
                                    QStringLiteral("refused by a simulated fault")));
        break;
    case FaultKind::DroppedLink:
        drop();
        break;
    case FaultKind::MalformedFrame:
        send(QByteArrayLiteral("{\"jsonrpc\": \"2.0\", \"id\": "));
        break;
    default:
        break;
    }
}

rpc::Message ClientConnection::answerTo(const rpc::Message &request)
{
    const Reply reply = m_context.commands.run(request.method, request.params, m_session);
    if (reply.isDone())
        return rpc::Message::answer(request.id, reply.result);
    return rpc::Message::refusal(request.id, reply.code, reply.reason);
}

void ClientConnection::reply(const rpc::Message &request, const rpc::Message &answer)
{
    if (request.kind == rpc::Message::Kind::Notification)
        return;
    const QByteArray frame = rpc::encode(answer);
    if (frame.size() <= rpc::maxFrameBytes) {
        send(frame);
        return;
    }
    send(rpc::encode(rpc::Message::refusal(
        request.id, rpc::refused, QStringLiteral("the answer does not fit into one frame"))));
}

void ClientConnection::replyLater(const rpc::Message &request, int ms)
{
    if (m_late >= rpc::maxPending) {
        close(QWebSocketProtocol::CloseCodePolicyViolated,
              QStringLiteral("too many requests wait for a late answer"));
        return;
    }
    ++m_late;
    QTimer::singleShot(ms, this, [this, request, answer = answerTo(request)] {
        --m_late;
        reply(request, answer);
    });
}

void ClientConnection::send(const QByteArray &frame)
{
    if (m_ended)
        return;
    if (m_heldBytes + m_socket->bytesToWrite() + frame.size() > rpc::maxUnsentBytes) {
        emit problem(QStringLiteral("client closed: it does not read what it is sent"));
        drop();
        return;
    }
    if (m_silent) {
        m_held += frame;
        m_heldBytes += frame.size();
        return;
    }
    m_socket->sendTextMessage(QString::fromUtf8(frame));
}

void ClientConnection::close(QWebSocketProtocol::CloseCode code, const QString &reason)
{
    constexpr int maxReasonBytes = 120; // RFC 6455, section 5.5: 125 bytes less the code
    m_ended = true;
    emit problem(QStringLiteral("client closed: ") + reason);
    m_socket->close(code, QString::fromUtf8(reason.toUtf8().left(maxReasonBytes)));
}

} // namespace simulator
