#include "link/client.h"

#include "link/connection_p.h"
#include "link/iothread.h"
#include "link/linklog_p.h"
#include "link/message.h"

#include <QElapsedTimer>
#include <QThread>
#include <exception>

namespace rpc
{

Q_LOGGING_CATEGORY(linkLog, "host.link")

namespace
{

/** A flood is delivered in slices of this length, so that the thread gets to its other events. */
constexpr int deliverySlice = 8; // ms
/** What the first reads of a new link may take. */
constexpr int requiredLimit = 5000; // ms

Answer notSent(const QString &reason)
{
    return {Answer::Status::NotSent, {}, 0, reason};
}

} // namespace

class Client::Private
{
public:
    bool prepare(const QString &method, const QJsonValue &argument, int timeout, Outgoing *outgoing,
                 QString *problem);
    bool post(const QString &method, Outgoing &&outgoing);
    void endCallbacks();
    void process(Client *q, Incoming &incoming);
    void finish(qint64 id, const Answer &answer);

    QString name;
    IoThread *ioThread = nullptr;
    Liveness liveness = usualLiveness;
    std::shared_ptr<Channel> channel; ///< null: closed
    Connection *connection = nullptr; ///< belongs to the I/O thread
    quint64 session = 0; ///< the one this side has heard of; 0: none
    quint64 unknownLogged = 0; ///< the session in which logUnknown() has logged
    qint64 lastId = 0;
    QHash<qint64, Callback> callbacks;
};

Client::Client(const QString &name, IoThread *ioThread, QObject *parent, const Liveness &liveness)
    : QObject(parent)
    , d(new Private)
{
    d->liveness = liveness;
    d->name = name;
    d->ioThread = ioThread;
}

Client::~Client()
{
    close();
}

void Client::open(const QUrl &url)
{
    close();
    d->unknownLogged = 0;
    d->connection = new Connection(d->name, url, d->liveness);
    d->channel = std::make_shared<Channel>(this, d->connection);
    d->connection->setChannel(d->channel);
    d->ioThread->adopt(d->connection);
    QMetaObject::invokeMethod(d->connection, &Connection::connectToPeer, Qt::QueuedConnection);
}

void Client::close()
{
    if (!d->channel)
        return;
    d->channel->close();
    d->channel.reset();
    d->connection->deleteLater();
    d->connection = nullptr;
    const bool wasUp = d->session != 0;
    d->session = 0;
    d->endCallbacks();
    if (wasUp)
        deliver(d->name, [this] { Q_EMIT down(true); });
}

void Client::drop(const QString &reason)
{
    if (!isUp())
        return;
    Outgoing outgoing;
    outgoing.session = d->session;
    outgoing.text = reason;
    d->channel->send(std::move(outgoing));
}

bool Client::isUp() const
{
    return d->session != 0 && d->channel->session == d->session;
}

bool Client::send(const QString &method, const QJsonValue &argument, int timeout,
                  const Callback &callback)
{
    Outgoing outgoing;
    QString problem;
    if (!d->prepare(method, argument, timeout, &outgoing, &problem))
        return false;
    const qint64 id = outgoing.id;
    if (!d->post(method, std::move(outgoing)))
        return false;
    d->callbacks.insert(id, callback);
    return true;
}

Answer Client::call(const QString &method, const QJsonValue &argument, int timeout)
{
    Outgoing outgoing;
    QString problem;
    if (!d->prepare(method, argument, timeout, &outgoing, &problem))
        return notSent(problem);
    const auto waiter = std::make_shared<Waiter>();
    const QDeadlineTimer deadline = outgoing.deadline;
    outgoing.waiter = waiter;
    if (!d->post(method, std::move(outgoing)))
        return notSent(QStringLiteral("too much waits to be sent"));
    return waiter->wait(static_cast<int>(deadline.remainingTime()));
}

void Client::require(const QString &method, const std::function<void(const QJsonObject &)> &next)
{
    send(method, {}, requiredLimit, [=](const Answer &answer) {
        if (answer.isResult() && answer.value.isObject())
            next(answer.value.toObject());
        else if (answer.isResult())
            drop(method + QStringLiteral(": not an object"));
        else if (answer.status != Answer::Status::Lost)
            drop(method + QStringLiteral(": ") + inOneLine(answer.reason));
    });
}

void Client::logUnknown(const QString &method)
{
    if (d->unknownLogged == d->session)
        return;
    d->unknownLogged = d->session;
    qCWarning(linkLog).noquote() << d->name
            + QStringLiteral(": a notification without meaning here: ") + inOneLine(method);
}

// A lost link, and a request that was not sent, have had their lines.
void Client::logFailure(const QString &method, const Answer &answer) const
{
    if (answer.status == Answer::Status::Refused)
        qCWarning(linkLog).noquote()
            << d->name + QStringLiteral(": %1 refused: ").arg(method) + inOneLine(answer.reason);
    else if (answer.status == Answer::Status::TimedOut)
        qCWarning(linkLog).noquote()
            << d->name + QStringLiteral(": %1: no answer in time").arg(method);
}

bool Client::event(QEvent *event)
{
    if (event->type() != Channel::wakeEvent)
        return QObject::event(event);
    const std::shared_ptr<Channel> channel = d->channel;
    if (!channel)
        return true;
    channel->awake();
    QElapsedTimer slice;
    slice.start();
    Incoming incoming;
    while (slice.elapsed() < deliverySlice && channel == d->channel && channel->take(&incoming))
        d->process(this, incoming);
    return true;
}

bool Client::Private::prepare(const QString &method, const QJsonValue &argument, int timeout,
                              Outgoing *outgoing, QString *problem)
{
    if (session == 0 || channel->session != session) {
        *problem = QStringLiteral("no link");
        return false;
    }
    if (callbacks.size() >= maxPending) {
        *problem = QStringLiteral("too many requests wait for their answers");
        qCWarning(linkLog).noquote()
            << name + QStringLiteral(": %1 not sent: ").arg(method) + *problem;
        return false;
    }
    const QByteArray frame = encode(Message::request(lastId + 1, method, argument));
    if (frame.size() > maxFrameBytes) {
        *problem = QStringLiteral("its frame would be larger than 16 MiB");
        qCWarning(linkLog).noquote()
            << name + QStringLiteral(": %1 not sent: ").arg(method) + *problem;
        return false;
    }
    outgoing->session = session;
    outgoing->id = ++lastId;
    outgoing->text = QString::fromUtf8(frame);
    outgoing->bytes = frame.size();
    outgoing->deadline = QDeadlineTimer(timeout > 0 ? timeout : defaultTimeout, Qt::PreciseTimer);
    return true;
}

bool Client::Private::post(const QString &method, Outgoing &&outgoing)
{
    if (channel->send(std::move(outgoing)))
        return true;
    qCWarning(linkLog).noquote() << name
            + QStringLiteral(": %1 not sent: too much waits to be sent").arg(method);
    return false;
}

void Client::Private::endCallbacks()
{
    const QHash<qint64, Callback> ended = std::exchange(callbacks, {});
    for (const Callback &callback : ended) {
        if (callback)
            deliver(name, [&] {
                callback({Answer::Status::Lost, {}, 0, QStringLiteral("the link was lost")});
            });
    }
}

void Client::Private::process(Client *q, Incoming &incoming)
{
    switch (incoming.kind) {
    case Incoming::Kind::Up:
        session = incoming.session;
        deliver(name, [q] { Q_EMIT q->up(); });
        break;
    case Incoming::Kind::Down:
        session = 0;
        endCallbacks();
        deliver(name, [q] { Q_EMIT q->down(false); });
        break;
    case Incoming::Kind::Notification:
        deliver(name, [&] { Q_EMIT q->notified(incoming.text, incoming.answer.value); });
        break;
    case Incoming::Kind::Answer:
        finish(incoming.id, incoming.answer);
        break;
    }
}

void Client::Private::finish(qint64 id, const Answer &answer)
{
    const Callback callback = callbacks.take(id);
    if (callback)
        deliver(name, [&] { callback(answer); });
}

QString reasonOf(const Answer &answer)
{
    switch (answer.status) {
    case Answer::Status::TimedOut:
        return Client::tr("no answer in time");
    case Answer::Status::Lost:
        return Client::tr("the link was lost");
    default:
        break;
    }
    const QString reason = inOneLine(answer.reason);
    return reason.isEmpty() ? Client::tr("no reason was given") : reason;
}

QString inOneLine(const QString &text)
{
    return text.left(300).simplified();
}

void deliver(const QString &context, const std::function<void()> &function)
{
    try {
        function();
    } catch (const std::exception &exception) {
        qCWarning(linkLog).noquote() << context + QStringLiteral(": a receiver threw: ")
                + QString::fromUtf8(exception.what());
    } catch (...) {
        qCWarning(linkLog).noquote()
            << context + QStringLiteral(": a receiver threw no exception object");
    }
}

} // namespace rpc
