#include "peers.h"

#include <QUuid>

QtEvent::QtEvent(int eventType, const QString &eventSource, const QVariant &eventData)
    : type(eventType)
    , source(eventSource)
    , data(eventData)
    , timestamp(QDateTime::currentDateTimeUtc())
    , id(QUuid::createUuid().toString(QUuid::WithoutBraces))
{
    static std::atomic<quint64> counter {0};
    seq = counter.fetch_add(1) + 1;
}

void PeerStatistics::count(std::atomic<quint64> &total)
{
    ++invokeCount;
    lastInvokedTime = QDateTime::currentDateTimeUtc();
    total.fetch_add(1, std::memory_order_relaxed);
}

QtPeer::QtPeer(int subscribers)
    : m_statistics(static_cast<std::size_t>(subscribers))
{
    for (PeerStatistics &statistics : m_statistics) {
        QObject::connect(
            &publisher, &QtPublisher::published, &publisher,
            [this, &statistics](const QtEvent &) {
                ++hits;
                statistics.count(m_total);
            },
            Qt::DirectConnection);
    }
}

OurBus::OurBus(int subscribers, zeplet::ZepletEventType type)
{
    add(subscribers, type, &hits);
}

OurBus::~OurBus()
{
    zeplet::ZepletEventSystem::destroyInstance();
}

void OurBus::add(int subscribers, zeplet::ZepletEventType type, quint64 *counter)
{
    for (int i = 0; i < subscribers; ++i)
        bus->subscribe(
            type, [counter](const zeplet::ZepletEvent &) { ++*counter; }, "bench", &context);
}
