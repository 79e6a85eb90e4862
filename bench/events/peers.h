#pragma once

#include <QDateTime>
#include <QHash>
#include <QObject>
#include <QString>
#include <QVariant>

#include <atomic>
#include <memory>
#include <vector>

#include <zeplet/events/zepleteventsystem.h>

// What the bus is measured against: Qt's own signals, with the bookkeeping that the bus does for
// every call.

/// The record of an event, made with Qt's own calls.
struct QtEvent {
    QtEvent(int eventType, const QString &eventSource, const QVariant &eventData);

    int type;
    QString source;
    QVariant data;
    QDateTime timestamp;
    quint64 seq;
    QString id;
    QHash<QString, QVariant> properties;
};

class QtPublisher : public QObject
{
    Q_OBJECT
signals:
    void published(const QtEvent &event);
};

/// The statistics of one subscriber.
struct PeerStatistics {
    void count(std::atomic<quint64> &total);

    quint64 invokeCount = 0;
    QDateTime lastInvokedTime;
};

/// A Qt signal with directly connected subscribers that keep count, time and total.
class QtPeer
{
public:
    explicit QtPeer(int subscribers);

    QtPublisher publisher;
    quint64 hits = 0;

private:
    std::atomic<quint64> m_total {0};
    std::vector<PeerStatistics> m_statistics;
};

/// A bus of its own, with subscribers of one type, that ends with this object.
class OurBus
{
public:
    explicit OurBus(int subscribers, zeplet::ZepletEventType type = zeplet::RCRunStart);
    ~OurBus();

    void add(int subscribers, zeplet::ZepletEventType type, quint64 *hits);

    zeplet::ZepletEventSystem *const bus = zeplet::zepletEvent();
    QObject context;
    quint64 hits = 0;
};
