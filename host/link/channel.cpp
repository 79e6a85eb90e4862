#include "link/channel_p.h"

#include "link/limits.h"

#include <QCoreApplication>

namespace rpc
{

const QEvent::Type Channel::wakeEvent = static_cast<QEvent::Type>(QEvent::registerEventType());

Answer Waiter::wait(int timeout)
{
    if (m_done.tryAcquire(1, timeout))
        return m_answer;
    int expected = Waiting;
    if (m_state.compare_exchange_strong(expected, Abandoned))
        return {Answer::Status::TimedOut, {}, 0, QStringLiteral("no answer in time")};
    m_done.acquire(); // the answer is being put in place at this moment
    return m_answer;
}

bool Waiter::complete(const Answer &answer)
{
    int expected = Waiting;
    if (!m_state.compare_exchange_strong(expected, Completed))
        return false;
    m_answer = answer;
    m_done.release();
    return true;
}

Channel::Channel(QObject *client, QObject *connection)
    : m_client(client)
    , m_connection(connection)
{
}

void Channel::close()
{
    const QMutexLocker lock(&m_mutex);
    m_client = nullptr;
    m_connection = nullptr;
    m_incoming.clear();
    m_outgoing.clear();
}

bool Channel::send(Outgoing &&outgoing)
{
    const QMutexLocker lock(&m_mutex);
    if (!m_connection)
        return false;
    if (outgoing.bytes > 0 && m_outgoingBytes + outgoing.bytes + socketBytes > maxUnsentBytes)
        return false;
    m_outgoingBytes += outgoing.bytes;
    m_outgoing.push_back(std::move(outgoing));
    if (m_outgoing.size() == 1)
        QCoreApplication::postEvent(m_connection, new QEvent(wakeEvent), Qt::HighEventPriority);
    return true;
}

std::vector<Outgoing> Channel::takeOutgoing()
{
    const QMutexLocker lock(&m_mutex);
    m_outgoingBytes = 0;
    return std::exchange(m_outgoing, {});
}

bool Channel::put(Incoming &&incoming)
{
    const QMutexLocker lock(&m_mutex);
    if (!m_client)
        return true;
    const bool full = m_incoming.size() >= maxUndelivered
        || m_incomingBytes + incoming.bytes > maxUndeliveredBytes;
    if (full && incoming.bytes > 0)
        return false;
    m_incomingBytes += incoming.bytes;
    m_incoming.push_back(std::move(incoming));
    wakeClient();
    return true;
}

bool Channel::take(Incoming *incoming)
{
    const QMutexLocker lock(&m_mutex);
    if (m_incoming.empty())
        return false;
    *incoming = std::move(m_incoming.front());
    m_incoming.pop_front();
    m_incomingBytes -= incoming->bytes;
    if (!m_incoming.empty())
        wakeClient(); // a handler may run an event loop, which has to go on with the rest
    return true;
}

void Channel::awake()
{
    const QMutexLocker lock(&m_mutex);
    m_clientWoken = false;
}

void Channel::wakeClient()
{
    if (m_clientWoken || !m_client)
        return;
    m_clientWoken = true;
    QCoreApplication::postEvent(m_client, new QEvent(wakeEvent));
}

} // namespace rpc
