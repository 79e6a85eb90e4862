#include "link/connection_p.h"

#include "link/linklog_p.h"
#include "link/message.h"

#include <QNetworkProxy>
#include <QTcpSocket>
#include <QWebSocket>
#include <algorithm>
#include <cmath>

namespace rpc
{
namespace
{

/** A session that lived this long was a good one: the next attempt comes at once again. ms. */
constexpr int goodSession = 2000;
/** Answers that nobody waits for are logged at most once in this time, with their number. ms. */
constexpr int unaskedPause = 1000;

Answer lost()
{
    return {Answer::Status::Lost, {}, 0, QStringLiteral("the link was lost")};
}

Answer toAnswer(const Message &message)
{
    if (message.kind == Message::Kind::Answer)
        return {Answer::Status::Result, message.result, 0, {}};
    return {Answer::Status::Refused, message.data, message.code, message.reason};
}

/** The request that an answer names; 0, which no request has, where it names none of this link. */
qint64 requestOf(const QJsonValue &id)
{
    constexpr double exactIntegers = 9007199254740992.0; // 2^53: no request counts beyond it
    const double number = id.toDouble();
    return std::fabs(number) < exactIntegers ? static_cast<qint64>(number) : 0;
}

} // namespace

Connection::Connection(const QString &name, const QUrl &url, const Liveness &liveness)
    : m_name(name)
    , m_url(url)
    , m_liveness(liveness)
    , m_ticker(new QTimer(this))
    , m_retry(new QTimer(this))
    , m_expiry(new QTimer(this))
{
    m_ticker->setInterval(m_liveness.pingInterval);
    m_retry->setSingleShot(true);
    m_expiry->setSingleShot(true);
    m_expiry->setTimerType(Qt::PreciseTimer);
    connect(m_ticker, &QTimer::timeout, this, &Connection::tick);
    connect(m_retry, &QTimer::timeout, this, &Connection::connectToPeer);
    connect(m_expiry, &QTimer::timeout, this, &Connection::expire);
}

Connection::~Connection()
{
    dropPending();
    if (!m_socket)
        return;
    m_socket->disconnect(this);
    if (m_session)
        m_socket->close(QWebSocketProtocol::CloseCodeGoingAway,
                        QStringLiteral("the panel closed the link"));
    else
        m_socket->abort(); // nothing can be told to a peer that was not reached yet
}

bool Connection::event(QEvent *event)
{
    if (event->type() != Channel::wakeEvent)
        return QObject::event(event);
    sendQueued();
    return true;
}

void Connection::connectToPeer()
{
    m_socket = new QWebSocket(QString(), QWebSocketProtocol::VersionLatest, this);
    m_socket->setProxy(QNetworkProxy::NoProxy);
    m_socket->setMaxAllowedIncomingFrameSize(maxFrameBytes);
    m_socket->setMaxAllowedIncomingMessageSize(maxFrameBytes);
    connect(m_socket, &QWebSocket::connected, this, &Connection::sessionUp);
    connect(m_socket, &QWebSocket::textMessageReceived, this, &Connection::receive);
    connect(m_socket, &QWebSocket::binaryMessageReceived, this,
            [this] { cutOff(QStringLiteral("a binary frame"), Cause::Fault); });
    connect(m_socket, &QWebSocket::pong, this, [this] { m_heard.start(); });
    connect(m_socket, &QWebSocket::stateChanged, this, &Connection::stateChanged);
    connect(m_socket, QOverload<QAbstractSocket::SocketError>::of(&QWebSocket::error), this,
            [this] { endSession(m_socket->errorString(), Cause::Status); });
    m_heard.start();
    m_ticked.start();
    m_ticker->start();
    m_socket->open(m_url);
    watchTcpSocket();
}

// A large frame may take longer than the silence allowed: each piece of it is a sign of life, which
// only the socket below the WebSocket shows.
void Connection::watchTcpSocket()
{
    if (!m_socket)
        return;
    if (const auto *tcp = m_socket->findChild<QTcpSocket *>())
        connect(tcp, &QTcpSocket::readyRead, this, [this] { m_heard.start(); });
}

void Connection::sessionUp()
{
    // Without it, the kernel holds a small frame back until the one before it is acknowledged.
    if (auto *tcp = m_socket->findChild<QTcpSocket *>())
        tcp->setSocketOption(QAbstractSocket::LowDelayOption, 1);
    connect(m_socket, &QWebSocket::bytesWritten, this,
            [this] { m_channel->socketBytes = m_socket->bytesToWrite(); });
    m_session = ++m_sessions;
    m_sessionAge.start();
    m_reported.clear();
    m_channel->session = m_session;
    qCInfo(linkLog).noquote() << m_name + QStringLiteral(": connected to ") + m_url.toString();
    Incoming incoming;
    incoming.kind = Incoming::Kind::Up;
    incoming.session = m_session;
    m_channel->put(std::move(incoming));
}

void Connection::tick()
{
    // A late tick says that this thread stood still: what the peer sent meanwhile is unread yet.
    const bool late = m_ticked.restart() > 2 * m_liveness.pingInterval;
    if (late)
        m_heard.start();
    if (m_heard.elapsed() < m_liveness.maxSilence) {
        if (m_session)
            m_socket->ping();
        return;
    }
    cutOff(QStringLiteral("the peer has gone silent"), m_session ? Cause::Fault : Cause::Status);
}

void Connection::stateChanged(QAbstractSocket::SocketState state)
{
    if (!m_session)
        return; // an attempt that fails is told by the error
    if (state != QAbstractSocket::ClosingState && state != QAbstractSocket::UnconnectedState)
        return;
    const auto code = m_socket->closeCode();
    const bool usual = code == QWebSocketProtocol::CloseCodeNormal
        || code == QWebSocketProtocol::CloseCodeGoingAway
        || code == QWebSocketProtocol::CloseCodeAbnormalDisconnection;
    const QString reason = m_socket->closeReason();
    endSession(reason.isEmpty() ? QStringLiteral("closed by the peer") : reason,
               usual ? Cause::Status : Cause::Fault);
}

// Ends it from this side: the peer is told why, unless it has gone silent.
void Connection::cutOff(const QString &reason, Cause cause)
{
    QWebSocket *socket = m_socket;
    socket->disconnect(this);
    if (m_session && m_heard.elapsed() < m_liveness.maxSilence)
        socket->close(QWebSocketProtocol::CloseCodePolicyViolated, reason.left(40));
    else
        socket->abort();
    endSession(reason, cause);
}

void Connection::endSession(const QString &reason, Cause cause)
{
    if (!m_socket)
        return;
    m_ticker->stop();
    m_socket->disconnect(this);
    m_socket->deleteLater();
    m_socket = nullptr;
    report(reason, cause);
    dropPending();
    retryLater();
    if (!m_session)
        return;
    Incoming incoming;
    incoming.kind = Incoming::Kind::Down;
    incoming.session = m_session;
    incoming.text = reason;
    m_session = 0;
    m_channel->put(std::move(incoming));
}

void Connection::dropPending()
{
    m_channel->session = 0;
    m_channel->socketBytes = 0;
    for (const Pending &pending : qAsConst(m_pending)) {
        if (pending.waiter)
            pending.waiter->complete(lost());
    }
    m_pending.clear();
    m_expiry->stop();
}

void Connection::retryLater()
{
    const bool good = m_session && m_sessionAge.elapsed() >= goodSession;
    m_pause = good || m_pause == 0 ? firstPause : std::min(2 * m_pause, lastPause);
    m_retry->start(m_pause);
}

// Attempts that fail alike are told once.
void Connection::report(const QString &reason, Cause cause)
{
    if (!m_session && reason == m_reported)
        return;
    m_reported = reason;
    const QString line = m_name
        + (m_session ? QStringLiteral(": link closed: ") : QStringLiteral(": no link: ")) + reason;
    if (cause == Cause::Fault)
        qCWarning(linkLog).noquote() << line;
    else
        qCInfo(linkLog).noquote() << line;
}

void Connection::sendQueued()
{
    for (Outgoing &outgoing : m_channel->takeOutgoing())
        sendOne(outgoing);
    if (!m_session)
        return;
    m_socket->flush();
    m_channel->socketBytes = m_socket->bytesToWrite();
}

void Connection::sendOne(Outgoing &outgoing)
{
    if (outgoing.session != m_session || !m_session) {
        if (outgoing.waiter)
            outgoing.waiter->complete(lost());
        return; // the client drops what waits when it hears of the loss
    }
    if (outgoing.bytes == 0) {
        cutOff(outgoing.text, Cause::Fault);
        return;
    }
    m_pending.insert(outgoing.id, {outgoing.deadline, outgoing.waiter});
    watchDeadline(outgoing.deadline);
    m_socket->sendTextMessage(outgoing.text);
}

void Connection::watchDeadline(const QDeadlineTimer &deadline)
{
    if (m_expiry->isActive() && m_expiryDue <= deadline)
        return;
    m_expiryDue = deadline;
    m_expiry->start(static_cast<int>(deadline.remainingTime()));
}

void Connection::expire()
{
    QDeadlineTimer next(QDeadlineTimer::Forever);
    for (auto it = m_pending.begin(); it != m_pending.end();) {
        if (!it->deadline.hasExpired()) {
            next = std::min(next, it->deadline);
            ++it;
            continue;
        }
        if (!it->waiter) {
            Incoming incoming;
            incoming.kind = Incoming::Kind::Answer;
            incoming.session = m_session;
            incoming.id = it.key();
            incoming.answer
                = {Answer::Status::TimedOut, {}, 0, QStringLiteral("no answer in time")};
            m_channel->put(std::move(incoming));
        }
        it = m_pending.erase(it);
    }
    if (!m_pending.isEmpty())
        watchDeadline(next);
}

void Connection::receive(const QString &text)
{
    m_heard.start();
    const QByteArray frame = text.toUtf8();
    Message message;
    QString problem;
    if (!decode(frame, &message, &problem)) {
        cutOff(QStringLiteral("malformed frame: ") + problem, Cause::Fault);
        return;
    }
    if (message.kind == Message::Kind::Request)
        cutOff(QStringLiteral("a request came from the peer: ") + inOneLine(message.method),
               Cause::Fault);
    else if (message.kind == Message::Kind::Notification)
        receiveNotification(message, frame.size());
    else
        receiveAnswer(message, frame.size());
}

void Connection::receiveNotification(const Message &message, qint64 bytes)
{
    Incoming incoming;
    incoming.kind = Incoming::Kind::Notification;
    incoming.session = m_session;
    incoming.bytes = bytes;
    incoming.text = message.method;
    incoming.answer.value = message.params;
    if (!m_channel->put(std::move(incoming)))
        cutOff(QStringLiteral("more arrives than the panel takes in"), Cause::Fault);
}

void Connection::receiveAnswer(const Message &message, qint64 bytes)
{
    const qint64 id = requestOf(message.id);
    const auto it = m_pending.find(id);
    if (it == m_pending.end()) {
        logUnasked(message.id.toVariant().toString());
        return;
    }
    const std::shared_ptr<Waiter> waiter = it->waiter;
    m_pending.erase(it);
    if (waiter) {
        if (!waiter->complete(toAnswer(message)))
            logUnasked(QString::number(id));
        return;
    }
    Incoming incoming;
    incoming.kind = Incoming::Kind::Answer;
    incoming.session = m_session;
    incoming.id = id;
    incoming.bytes = bytes;
    incoming.answer = toAnswer(message);
    if (!m_channel->put(std::move(incoming)))
        cutOff(QStringLiteral("more arrives than the panel takes in"), Cause::Fault);
}

void Connection::logUnasked(const QString &id)
{
    if (m_unaskedLogged.isValid() && m_unaskedLogged.elapsed() < unaskedPause) {
        ++m_unaskedSilent;
        return;
    }
    m_unaskedLogged.start();
    QString line = m_name + QStringLiteral(": answer ") + id.left(40)
        + QStringLiteral(" dropped: nobody waits for it");
    if (m_unaskedSilent > 0)
        line += QStringLiteral(" (and %1 more before it)").arg(m_unaskedSilent);
    m_unaskedSilent = 0;
    qCWarning(linkLog).noquote() << line;
}

} // namespace rpc
