#include "fakepeer.h"

#include <QTcpSocket>
#include <QWebSocket>
#include <QWebSocketServer>
#include <sys/socket.h>

FakePeer::FakePeer()
    : m_worker(new QObject)
{
    m_worker->moveToThread(&m_thread);
    m_thread.start();
    onPeer([this] {
        m_server = new QWebSocketServer(QString(), QWebSocketServer::NonSecureMode, m_worker);
        connect(m_server, &QWebSocketServer::newConnection, m_server, [this] { accept(); });
    });
    setListening(true);
}

FakePeer::~FakePeer()
{
    onPeer([this] { delete m_worker; });
    m_thread.quit();
    m_thread.wait();
}

QUrl FakePeer::url() const
{
    return QUrl(QStringLiteral("ws://127.0.0.1:%1").arg(m_port));
}

void FakePeer::script(const QString &method, const Script &script)
{
    const QMutexLocker lock(&m_mutex);
    m_scripts.insert(method, script);
}

void FakePeer::answer(const QString &method, const QJsonValue &result)
{
    script(method, [result](const rpc::Message &request) {
        return QVector<QByteArray> {rpc::encode(rpc::Message::answer(request.id, result))};
    });
}

void FakePeer::refuse(const QString &method, const QString &reason)
{
    script(method, [reason](const rpc::Message &request) {
        return QVector<QByteArray> {
            rpc::encode(rpc::Message::refusal(request.id, rpc::refused, reason))};
    });
}

void FakePeer::ignore(const QString &method)
{
    script(method, [](const rpc::Message &) { return QVector<QByteArray>(); });
}

void FakePeer::notify(const QString &method, const QJsonValue &params)
{
    sendText(QString::fromUtf8(rpc::encode(rpc::Message::notification(method, params))));
}

void FakePeer::sendText(const QString &text)
{
    onPeer([&] {
        for (QWebSocket *socket : qAsConst(m_sockets)) {
            socket->sendTextMessage(text);
            socket->flush();
        }
    });
}

void FakePeer::sendBinary(const QByteArray &bytes)
{
    onPeer([&] {
        for (QWebSocket *socket : qAsConst(m_sockets))
            socket->sendBinaryMessage(bytes);
    });
}

void FakePeer::sendRaw(const QByteArray &bytes)
{
    const QMutexLocker lock(&m_mutex);
    const auto length = static_cast<size_t>(bytes.size());
    if (::send(static_cast<int>(m_descriptor), bytes.constData(), length, MSG_NOSIGNAL) < 0)
        qWarning("the fake peer can't send raw bytes");
}

void FakePeer::dropClients()
{
    onPeer([this] {
        for (QWebSocket *socket : QVector<QWebSocket *>(m_sockets))
            socket->abort();
    });
}

void FakePeer::setListening(bool on)
{
    onPeer([=] {
        if (on && m_server->listen(QHostAddress::LocalHost, m_port))
            m_port = m_server->serverPort();
        if (!on)
            m_server->close();
    });
    if (!on)
        dropClients();
}

void FakePeer::standStill()
{
    QMetaObject::invokeMethod(
        m_worker, [this] { m_goOn.acquire(); }, Qt::QueuedConnection);
}

void FakePeer::goOn()
{
    m_goOn.release();
}

int FakePeer::received(const QString &method) const
{
    int count = 0;
    for (const rpc::Message &request : requests())
        count += request.method == method;
    return count;
}

rpc::Message FakePeer::last(const QString &method) const
{
    rpc::Message last;
    for (const rpc::Message &request : requests()) {
        if (request.method == method)
            last = request;
    }
    return last;
}

QVector<rpc::Message> FakePeer::requests() const
{
    const QMutexLocker lock(&m_mutex);
    return m_requests;
}

int FakePeer::clients() const
{
    int count = 0;
    onPeer([&] { count = m_sockets.size(); });
    return count;
}

QString FakePeer::closeReason() const
{
    const QMutexLocker lock(&m_mutex);
    return m_closeReason;
}

void FakePeer::accept()
{
    while (QWebSocket *socket = m_server->nextPendingConnection()) {
        {
            const QMutexLocker lock(&m_mutex);
            m_descriptor = m_server->findChildren<QTcpSocket *>().last()->socketDescriptor();
        }
        m_sockets.append(socket);
        connect(socket, &QWebSocket::textMessageReceived, socket,
                [=](const QString &text) { receive(socket, text); });
        connect(socket, &QWebSocket::disconnected, socket, [=] {
            m_sockets.removeAll(socket);
            const QMutexLocker lock(&m_mutex);
            m_closeReason = socket->closeReason();
            socket->deleteLater();
        });
    }
}

void FakePeer::receive(QWebSocket *socket, const QString &text)
{
    rpc::Message request;
    QString problem;
    if (!rpc::decode(text.toUtf8(), &request, &problem))
        qWarning("the fake peer got a malformed frame: %s", qPrintable(problem));
    Script script;
    {
        const QMutexLocker lock(&m_mutex);
        m_requests.append(request);
        script = m_scripts.value(request.method);
    }
    if (!script) {
        script = [](const rpc::Message &unknown) {
            return QVector<QByteArray> {rpc::encode(rpc::Message::refusal(
                unknown.id, rpc::methodNotFound, QStringLiteral("unknown method")))};
        };
    }
    for (const QByteArray &frame : script(request))
        socket->sendTextMessage(QString::fromUtf8(frame));
    socket->flush();
}

void FakePeer::onPeer(const std::function<void()> &function) const
{
    QMetaObject::invokeMethod(m_worker, function, Qt::BlockingQueuedConnection);
}
