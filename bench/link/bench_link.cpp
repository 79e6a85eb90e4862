// A blocking request over the link beside a ping-pong of as many bytes over a plain TCP socket.
// Both peers answer from a thread of this process, and the process keeps to one CPU: what differs
// is the work, and not which cores are awake.

#include <benchmark/benchmark.h>
#include <link/client.h>
#include <link/iothread.h>
#include <link/message.h>

#include <QCoreApplication>
#include <QEventLoop>
#include <QJsonObject>
#include <QSemaphore>
#include <QTcpServer>
#include <QTcpSocket>
#include <QThread>
#include <QWebSocket>
#include <QWebSocketServer>
#include <array>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sched.h>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>

namespace
{

const QString command = QStringLiteral("io.io_signal.get_signal_value");

QJsonObject argument()
{
    return {{"signal_value", QJsonObject()}};
}

QJsonObject result()
{
    return {{"signal_value", QJsonObject {{"DI1", true}, {"DI2", false}, {"AO1", 2.5}}}};
}

/** Answers each request with result(), on a thread of its own. */
class WebSocketPeer
{
public:
    WebSocketPeer()
        : m_worker(new QObject)
    {
        m_worker->moveToThread(&m_thread);
        m_thread.start();
        QMetaObject::invokeMethod(
            m_worker, [this] { listen(); }, Qt::BlockingQueuedConnection);
    }

    ~WebSocketPeer()
    {
        m_worker->deleteLater();
        m_thread.quit();
        m_thread.wait();
    }

    QUrl url() const { return m_url; }

private:
    void listen()
    {
        auto *server = new QWebSocketServer(QString(), QWebSocketServer::NonSecureMode, m_worker);
        auto *tcp = new QTcpServer(m_worker);
        QObject::connect(tcp, &QTcpServer::newConnection, m_worker, [=] {
            QTcpSocket *socket = tcp->nextPendingConnection();
            socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
            server->handleConnection(socket);
        });
        QObject::connect(server, &QWebSocketServer::newConnection, m_worker, [=] {
            QWebSocket *socket = server->nextPendingConnection();
            QObject::connect(socket, &QWebSocket::textMessageReceived, socket,
                             [=](const QString &text) { answer(socket, text); });
        });
        tcp->listen(QHostAddress::LocalHost);
        m_url = QUrl(QStringLiteral("ws://127.0.0.1:%1").arg(tcp->serverPort()));
    }

    static void answer(QWebSocket *socket, const QString &text)
    {
        rpc::Message request;
        QString problem;
        if (!rpc::decode(text.toUtf8(), &request, &problem))
            qFatal("the peer got a malformed frame");
        const QByteArray frame = rpc::encode(rpc::Message::answer(request.id, result()));
        socket->sendTextMessage(QString::fromUtf8(frame));
        socket->flush();
    }

    QThread m_thread;
    QObject *m_worker;
    QUrl m_url;
};

/** Reads requestBytes and writes answerBytes, on a thread of its own, until the other end closes.
 */
class TcpPeer
{
public:
    TcpPeer(size_t requestBytes, size_t answerBytes)
    {
        const int listener = ::socket(AF_INET, SOCK_STREAM, 0);
        sockaddr_in address = {};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t length = sizeof(address);
        auto *generic = reinterpret_cast<sockaddr *>(&address);
        m_socket = ::socket(AF_INET, SOCK_STREAM, 0);
        if (::bind(listener, generic, length) || ::listen(listener, 1)
            || ::getsockname(listener, generic, &length) || ::connect(m_socket, generic, length))
            qFatal("no TCP connection on loopback");
        const int peer = ::accept(listener, nullptr, nullptr);
        ::close(listener);
        noDelay(m_socket);
        noDelay(peer);
        m_thread = std::thread([=] {
            std::vector<char> buffer(std::max(requestBytes, answerBytes));
            while (readAll(peer, buffer.data(), requestBytes))
                writeAll(peer, buffer.data(), answerBytes);
            ::close(peer);
        });
    }

    ~TcpPeer()
    {
        ::close(m_socket);
        m_thread.join();
    }

    int socket() const { return m_socket; }

    static bool readAll(int socket, char *data, size_t size)
    {
        return ::recv(socket, data, size, MSG_WAITALL) == static_cast<ssize_t>(size);
    }

    static bool writeAll(int socket, const char *data, size_t size)
    {
        return ::send(socket, data, size, MSG_NOSIGNAL) == static_cast<ssize_t>(size);
    }

private:
    static void noDelay(int socket)
    {
        const int on = 1;
        ::setsockopt(socket, IPPROTO_TCP, TCP_NODELAY, &on, sizeof(on));
    }

    int m_socket;
    std::thread m_thread;
};

void requestOverLink(benchmark::State &state)
{
    WebSocketPeer peer;
    rpc::IoThread thread;
    rpc::Client client(QStringLiteral("bench"), &thread);
    QEventLoop loop;
    QObject::connect(&client, &rpc::Client::up, &loop, &QEventLoop::quit);
    client.open(peer.url());
    loop.exec();
    for (auto _ : state) {
        const rpc::Answer answer = client.call(command, argument(), 5000);
        if (!answer.isResult())
            state.SkipWithError("no answer");
        benchmark::DoNotOptimize(answer);
    }
    client.close();
}

void pingPongOverTcp(benchmark::State &state)
{
    const QByteArray request = rpc::encode(rpc::Message::request(1, command, argument()));
    const QByteArray answer = rpc::encode(rpc::Message::answer(1, result()));
    const auto requestBytes = static_cast<size_t>(request.size());
    const auto answerBytes = static_cast<size_t>(answer.size());
    TcpPeer peer(requestBytes, answerBytes);
    std::vector<char> buffer(answerBytes);
    for (auto _ : state) {
        if (!TcpPeer::writeAll(peer.socket(), request.constData(), requestBytes)
            || !TcpPeer::readAll(peer.socket(), buffer.data(), answerBytes))
            state.SkipWithError("no answer");
    }
}

void keepToOneCpu()
{
    cpu_set_t set;
    CPU_ZERO(&set);
    CPU_SET(sched_getcpu(), &set);
    if (sched_setaffinity(0, sizeof(set), &set))
        qWarning("the process can't be kept to one CPU");
}

BENCHMARK(requestOverLink)->Name("link_request/ours")->UseRealTime();
BENCHMARK(pingPongOverTcp)->Name("link_request/tcp")->UseRealTime();

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    qputenv("QT_LOGGING_RULES", "host.link.info=false");
    benchmark::Initialize(&argc, argv);
    keepToOneCpu();
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
