#pragma once

#include <QMetaObject>
#include <QSharedData>
#include <QSharedPointer>
#include <QVarLengthArray>

#include <atomic>
#include <utility>
#include <vector>

#include "utcclock_p.h"
#include "zepleteventsubscription.h"

namespace zeplet
{

struct StoredSubscription;
using StoredPointer = QSharedPointer<StoredSubscription>;
using StoredPointers = std::vector<StoredPointer>;

/// A list whose members know their place in it, so that removing one takes constant time.
template <typename Pointer, typename Container = std::vector<Pointer>>
class PlacedList
{
public:
    /// `place` is the member in which a record keeps its index in this list.
    using Place = int StoredSubscription::*;

    void append(Pointer record, Place place)
    {
        (*record).*place = size();
        m_records.push_back(std::move(record));
    }

    /// Returns the list's pointer to the record. The last record moves into the gap.
    Pointer remove(StoredSubscription &record, Place place)
    {
        const int index = std::exchange(record.*place, -1);
        Pointer removed = std::move(at(index));
        if (index + 1 < size()) {
            at(index) = std::move(m_records.back());
            (*at(index)).*place = index;
        }
        m_records.pop_back();
        return removed;
    }

    int size() const { return static_cast<int>(m_records.size()); }
    const Container &records() const { return m_records; }

private:
    Pointer &at(int index) { return m_records[static_cast<typename Container::size_type>(index)]; }

    Container m_records;
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

/// The subscriptions of one type.
struct TypeSubscriptions : QSharedData {
    explicit TypeSubscriptions(ZepletEventType eventType)
        : type(eventType)
    {
    }

    const ZepletEventType type;
    SubscribersPointer subscribers;
};
using TypePointer = QExplicitlySharedDataPointer<TypeSubscriptions>;

/// The subscriptions of one plugin.
struct PluginSubscriptions : QSharedData {
    explicit PluginSubscriptions(const QString &pluginName)
        : name(pluginName)
    {
    }

    const QString name;
    PlacedList<StoredSubscription *> list;
};
using PluginPointer = QExplicitlySharedDataPointer<PluginSubscriptions>;

/// What is known of one context object, shared by all subscriptions that were ever bound to it:
/// also one that was removed during a dispatch, and is still due in it, must not run once the
/// object is gone.
struct alignas(64) SubscriptionContext : QSharedData {
    // Most objects have one or two, and come by the thousand: all of it in one line of memory.
    using Few = QVarLengthArray<StoredSubscription *, 2>;

    explicit SubscriptionContext(QObject *context)
        : object(context)
    {
    }

    QObject *const object;
    std::atomic<bool> destroyed {false};
    PlacedList<StoredSubscription *, Few> subscriptions;
    /// To the object's destroyed().
    QMetaObject::Connection connection;
};
using ContextPointer = QExplicitlySharedDataPointer<SubscriptionContext>;

/// A subscription in the manager, with its places in all containers.
struct StoredSubscription final : ZepletEventSubscription {
    static uint hashOf(const QString &id);

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
    const uint storedIdHash;
    const ZepletEventType storedType;
    const bool storedOneShot;
    // Set by the manager that stores it. The type's entry owns the record, not the other way round.
    TypeSubscriptions *ofType = nullptr;
    PluginPointer ofPlugin;

    int typePlace = -1;
    int pluginPlace = -1;
    int contextPlace = -1;
    /// Null without a context object.
    ContextPointer context;
};

} // namespace zeplet
