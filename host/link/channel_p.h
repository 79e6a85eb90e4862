#pragma once

#include "link/client.h"

#include <QDeadlineTimer>
#include <QEvent>
#include <QMutex>
#include <QSemaphore>
#include <QString>
#include <atomic>
#include <deque>
#include <memory>
#include <vector>

namespace rpc
{

/** A caller that blocks until the I/O thread completes it, or until it gives up. */
class Waiter
{
public:
    /** Blocks up to timeout ms. The answer, or TimedOut: what comes later finds nobody. */
    Answer wait(int timeout);
    /** False where the caller has given up. */
    bool complete(const Answer &answer);

private:
    enum State { Waiting, Completed, Abandoned };
    std::atomic<int> m_state {Waiting};
    QSemaphore m_done;
    Answer m_answer;
};

/** From the client to its connection: one request, or (with an empty frame) the wish to drop the
 *  session. */
struct Outgoing {
    quint64 session = 0;
    qint64 id = 0;
    QString text;
    qint64 bytes = 0;
    QDeadlineTimer deadline;
    std::shared_ptr<Waiter> waiter; ///< null: the answer goes to the client's thread
};

/** From the connection to its client. */
struct Incoming {
    enum class Kind { Up, Down, Notification, Answer };
    Kind kind = Kind::Up;
    quint64 session = 0;
    qint64 id = 0;
    qint64 bytes = 0; ///< of the frame that brought it; 0 where this end made it
    QString text; ///< the method of a notification, the reason of a loss
    Answer answer; ///< its value also carries the params of a notification
};

/**
 * The two bounded queues between a client and its connection, and what either may ask about the
 * other without waiting. Each end wakes the other with one event, however much is queued. Any
 * thread; it outlives both ends.
 */
class Channel
{
public:
    static const QEvent::Type wakeEvent;

    Channel(QObject *client, QObject *connection);

    /** The client is gone or has closed: nothing is put or woken any more. */
    void close();

    /** False where closed, or where too much waits already. */
    bool send(Outgoing &&outgoing);
    std::vector<Outgoing> takeOutgoing();

    /** False where too much waits for the client already; true where it has closed. */
    bool put(Incoming &&incoming);
    bool take(Incoming *incoming);
    /** To be called before take() when the wake event came, so that the next put() wakes again. */
    void awake();

    std::atomic<quint64> session {0}; ///< the number of the session that is up; 0: none
    std::atomic<qint64> socketBytes {0}; ///< what the socket has not written yet

private:
    void wakeClient();

    QMutex m_mutex;
    QObject *m_client;
    QObject *m_connection;
    std::vector<Outgoing> m_outgoing;
    qint64 m_outgoingBytes = 0;
    std::deque<Incoming> m_incoming;
    qint64 m_incomingBytes = 0;
    bool m_clientWoken = false;
};

} // namespace rpc
