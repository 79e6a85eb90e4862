#pragma once

#include "link/limits.h"

#include <QJsonObject>
#include <QObject>
#include <QString>
#include <QUrl>
#include <functional>
#include <memory>

namespace rpc
{

class IoThread;

/** How a request ended. */
struct Answer {
    enum class Status {
        Result, ///< value is the peer's result
        Refused, ///< the peer's error: code and reason
        TimedOut, ///< no answer in time; one that comes later is dropped
        Lost, ///< the link was lost meanwhile
        NotSent ///< no link, too much under way, or too large; reason says which
    };
    Status status = Status::NotSent;
    QJsonValue value;
    int code = 0;
    QString reason;

    bool isResult() const { return status == Status::Result; }
};

/**
 * The panel's end of one endpoint. Its socket lives on the I/O thread, connects by itself again
 * after each loss, and notices a peer gone silent within five seconds. Everything that arrives is
 * delivered on the thread of the client, in the order in which it arrived; while call() waits,
 * nothing is delivered. What a receiver throws is caught and logged, and the next delivery goes on.
 * All members belong to the thread of the client, and none but call() waits.
 */
class Client : public QObject
{
    Q_OBJECT

public:
    using Callback = std::function<void(const Answer &)>;

    /** name stands in log lines and takes no part in the protocol. ioThread outlives the client. */
    Client(const QString &name, IoThread *ioThread, QObject *parent = nullptr,
           const Liveness &liveness = usualLiveness);
    ~Client() override;

    /** Connects to a ws:// address and stays connected until close(). Closes what was open. */
    void open(const QUrl &url);
    /** Ends the link on purpose: down(true) is emitted before it returns, if the link was up. */
    void close();
    /** Ends this session as a fault of the peer, with a log line; the client connects again. */
    void drop(const QString &reason);

    /** Between up() and down(), and still true as far as the I/O thread knows. */
    bool isUp() const;

    /** Sends and returns at once; true when accepted. The callback comes once, later, on this
     *  thread. timeout in ms; 0 or less: defaultTimeout. */
    bool send(const QString &method, const QJsonValue &argument, int timeout,
              const Callback &callback = {});

    /** Sends and blocks until the answer, the loss of the link, or timeout ms; runs no event loop.
     *  0 or less: defaultTimeout. */
    Answer call(const QString &method, const QJsonValue &argument, int timeout);

    /** Reads an object that the link is of no use without: next gets it, later. Where it is
     * refused, does not come within five seconds or is no object, the session is dropped. */
    void require(const QString &method, const std::function<void(const QJsonObject &)> &next);

    /** Logs a notification that makes no sense to its receiver, once in a session. */
    void logUnknown(const QString &method);

    /** Logs why a request of this client came to no result, if nothing has said so yet. */
    void logFailure(const QString &method, const Answer &answer) const;

    static constexpr int defaultTimeout = 4800;

    bool event(QEvent *event) override;

Q_SIGNALS:
    void up();
    /** expected: close() ended it. */
    void down(bool expected);
    void notified(const QString &method, const QJsonValue &params);

private:
    class Private;
    std::unique_ptr<Private> d;
};

/** Why there is no result, in one line: what the peer wrote where it refused. */
QString reasonOf(const Answer &answer);

/** What a peer has written, shortened for a log line. */
QString inOneLine(const QString &text);

/** Calls function; what it throws is caught and logged with its text. context names the delivery.
 */
void deliver(const QString &context, const std::function<void()> &function);

} // namespace rpc
