#pragma once

#include <QMetaObject>
#include <QSharedData>
#include <QSharedPointer>

#include <atomic>
#include <utility>
#include <vector>

#include "zepleteventsubscription.h"

namespace zeplet
{

struct StoredSubscription;
using StoredPointer = QSharedPointer<StoredSubscription>;
using StoredPointers = std::vector<StoredPointer>;

/// A list whose members know their place in it, so that removing one takes constant time.
template <typename Pointer>
class PlacedList
{
public:
    /// `place` is the member in which a record keeps its index in this list.
    using Place = int StoredSubscription::*;

    void append(const Pointer &record, Place place)
    {
        (*record).*place = static_cast<int>(m_records.size());
        m_records.push_back(record);
    }

    /// The last record moves into the gap.
    void remove(StoredSubscription &record, Place place)
    {
        const auto index = static_cast<std::size_t>(std::exchange(record.*place, -1));
        if (index + 1 < m_records.size()) {
            std::swap(m_records[index], m_records.back());
            (*m_records[index]).*place = static_cast<int>(index);
        }
        m_records.pop_back();
    }

    const std::vector<Pointer> &records() const { return m_records; }

private:
    std::vector<Pointer> m_records;
};

/// The subscribers of one type, shared between the index and the dispatches that are running.
struct SharedSubscribers : QSharedData {
    PlacedList<StoredPointer> list;
};
using SubscribersPointer = QExplicitlySharedDataPointer<SharedSubscribers>;

/// The list for a change: a copy, if a dispatch still reads this one. Qt's own containers ask for
/// sharing without acquiring, which does not order the reads of a dispatch that just ended before
/// the change.
inline PlacedList<StoredPointer> &writable(SubscribersPointer &subscribers)
{
    if (!subscribers)
        subscribers = new SharedSubscribers;
    else if (subscribers->ref.loadAcquire() != 1)
        subscribers = new SharedSubscribers(*subscribers);
    return subscribers->list;
}

/// What is known of one context object, shared by all subscriptions that were ever bound to it:
/// also one that was removed during a dispatch, and is still due in it, must not run once the
/// object is gone.
struct SubscriptionContext {
    std::atomic<bool> destroyed {false};
    PlacedList<StoredSubscription *> subscriptions;
    /// To the object's destroyed().
    QMetaObject::Connection connection;
};

/// The time of the calls of one dispatch. The clock is read for every call; the QDateTime, which
/// costs as much again, is made once for each millisecond.
class InvocationClock
{
public:
    const QDateTime &now()
    {
        const qint64 milliseconds = QDateTime::currentMSecsSinceEpoch();
        if (milliseconds != m_milliseconds) {
            m_milliseconds = milliseconds;
            m_time.setMSecsSinceEpoch(milliseconds);
        }
        return m_time;
    }

private:
    // Copied, because a new one in UTC costs several times as much.
    static const QDateTime &startOfTime();

    qint64 m_milliseconds = -1;
    QDateTime m_time = startOfTime();
};

/// A subscription in the manager, with its places in all containers.
struct StoredSubscription final : ZepletEventSubscription {
    explicit StoredSubscription(const ZepletEventSubscription &subscription);
    StoredSubscription(const QString &plugin, ZepletEventType type,
                       QSharedPointer<ZepletEventHandler> eventHandler);

    /// Whether a dispatch may call it: valid, and the context object has not died.
    bool isCallable() const { return !isOrphaned() && handler && handler->isValid(); }
    bool isOrphaned() const
    {
        return context && context->destroyed.load(std::memory_order_acquire);
    }
    /// handleEvent() for a subscription that is known to be callable.
    void invoke(const ZepletEvent &event, InvocationClock &clock)
    {
        handler->handleEvent(event);
        ++invokeCount;
        lastInvokedTime = clock.now();
    }

    // The keys under which it is stored. The public members could be changed by who holds the
    // record.
    const QString storedId;
    const QString storedPlugin;
    const ZepletEventType storedType;
    const bool storedOneShot;

    int typePlace = -1;
    int pluginPlace = -1;
    int contextPlace = -1;
    /// Null without a context object.
    QSharedPointer<SubscriptionContext> context;
};

} // namespace zeplet
