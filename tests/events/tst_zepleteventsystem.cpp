#include <QPointer>
#include <QSignalSpy>
#include <QTest>
#include <QThread>

#include <algorithm>
#include <memory>
#include <stdexcept>
#include <thread>

#include <zeplet/events/zepleteventsystem.h>

#include "testcolumns.h"

using namespace zeplet;

namespace
{

/// Takes part in the dispatch through any of the three handler classes.
enum Kind { Plain, Filtered, Once };

/// A context object that cuts its connections, or uses the bus while it is being connected.
class StubbornContext : public QObject
{
public:
    int connections = 0;

protected:
    void connectNotify(const QMetaMethod &) override
    {
        ++connections;
        zepletEvent()->hasSubscription("any");
    }
};

} // namespace

using Action = std::function<void(const QString &id)>;
using Ending = std::function<void(std::unique_ptr<QObject> &context, const QString &id)>;

Q_DECLARE_METATYPE(Kind)
Q_DECLARE_METATYPE(Action)
Q_DECLARE_METATYPE(Ending)

class TestZepletEventSystem : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_bus = ZepletEventSystem::instance();
        m_context = std::make_unique<QObject>();
        m_calls = 0;
    }

    void cleanup()
    {
        ZepletEventSystem::destroyInstance();
        m_context.reset();
    }

    void singleton()
    {
        QCOMPARE(zepletEvent(), m_bus);
        QVERIFY(!m_bus->parent());
        m_bus->subscribe(RCRunStart, counter(), "p", m_context.get());
        m_bus->registerCustomEventType("mine");
        m_bus->publish(RCRunStart);

        QSignalSpy removed(m_bus, &ZepletEventSystem::subscriptionRemoved);
        ZepletEventSystem::destroyInstance();
        ZepletEventSystem::destroyInstance();
        QCOMPARE(removed.count(), 0);

        m_bus = zepletEvent();
        QCOMPARE(m_bus->totalSubscriptionCount(), 0);
        QCOMPARE(m_bus->totalEventsPublished(), quint64(0));
        QCOMPARE(m_bus->registerCustomEventType("again"), UserEventStart);
    }

    void subscribing_data()
    {
        const auto row = testcolumns<Kind, int>("kind", "calls");
        row("plain", Plain, 2);
        row("filtered", Filtered, 2);
        row("once", Once, 1);
    }

    void subscribing()
    {
        QFETCH(Kind, kind);
        QSignalSpy added(m_bus, &ZepletEventSystem::subscriptionAdded);
        const QString id = subscribe(kind, RCRunStart, counter(), m_context.get());
        QCOMPARE(added.count(), 1);
        QCOMPARE(added.first(),
                 (QVariantList {id, QVariant::fromValue(RCRunStart), QStringLiteral("p")}));
        QCOMPARE(id.size(), 36);
        QVERIFY(m_bus->hasSubscription(id));
        QCOMPARE(m_bus->subscriptionCount(RCRunStart), 1);
        QCOMPARE(m_bus->subscriptionCount(QStringLiteral("p")), 1);
        QCOMPARE(m_bus->totalSubscriptionIds("p"), QStringList(id));
        QCOMPARE(m_bus->registeredEventTypes(), QList<ZepletEventType> {RCRunStart});

        m_bus->publish(RCRunStop);
        QCOMPARE(m_calls, 0);
        m_bus->publish(RCRunStart);
        m_bus->publish(RCRunStart);
        QTEST(m_calls, "calls");
    }

    void withoutContextIsStoredButNeverCalled()
    {
        const QString id = m_bus->subscribe(RCRunStart, counter(), "p");
        QVERIFY(m_bus->hasSubscription(id));
        QCOMPARE(m_bus->subscriptionCount(RCRunStart), 1);
        QCOMPARE(m_bus->totalSubscriptionCount(), 0);
        m_bus->publish(RCRunStart);
        QCOMPARE(m_calls, 0);
        QCOMPARE(m_bus->totalEventsHandled(), quint64(0));

        // The other two need no context.
        subscribe(Filtered, RCRunStart, counter(), nullptr);
        subscribe(Once, RCRunStart, counter(), nullptr);
        m_bus->publish(RCRunStart);
        QCOMPARE(m_calls, 2);
    }

    void everythingIsAccepted()
    {
        const auto odd = static_cast<ZepletEventType>(-5);
        const QString id = m_bus->subscribe(odd, {}, QString(), m_context.get());
        QCOMPARE(m_bus->totalSubscriptionIds(QString()), QStringList(id));
        m_bus->publish(odd);
        QCOMPARE(m_bus->totalEventsHandled(), quint64(1));
    }

    void publishing()
    {
        QStringList order;
        connect(m_bus, &ZepletEventSystem::eventPublished, m_context.get(),
                [&](const ZepletEvent &event) {
                    order.append("signal " + event.source);
                    QCOMPARE(m_bus->totalEventsPublished(), quint64(1));
                });
        m_bus->subscribeFiltered(
            RCRunStart, [](const ZepletEvent &event) { return event.data == QVariant(7); },
            [&order](const ZepletEvent &event) { order.append("handler " + event.source); });
        m_bus->subscribeFiltered(
            RCRunStart, [](const ZepletEvent &event) { return event.data == QVariant(8); },
            [&order](const ZepletEvent &) { order.append("wrong"); });
        m_bus->publish(RCRunStart, 7, "source");
        QCOMPARE(order, (QStringList {"signal source", "handler source"}));
    }

    void oneShotGetsOneEvent()
    {
        QSignalSpy removed(m_bus, &ZepletEventSystem::subscriptionRemoved);
        QString id;
        int nested = 0;
        id = m_bus->subscribeOnce(RCRunStart, [&](const ZepletEvent &) {
            ++m_calls;
            QVERIFY(m_bus->hasSubscription(id));
            // It counts as fired when it returns, so that an event of its own type reaches it once
            // more.
            if (nested++ == 0)
                m_bus->publish(RCRunStart);
        });
        m_bus->publish(RCRunStart);
        QCOMPARE(m_calls, 2);
        QVERIFY(!m_bus->hasSubscription(id));
        QCOMPARE(removed.count(), 1);
        QCOMPARE(removed.first().first().toString(), id);
        m_bus->publish(RCRunStart);
        QCOMPARE(m_calls, 2);
    }

    // Also in the eyes of those that are called after it.
    void oneShotStaysToTheEndOfTheDispatch()
    {
        QStringList ids;
        for (int i = 0; i < 8; ++i) {
            ids.append(m_bus->subscribeOnce(RCRunStart, [this, &ids](const ZepletEvent &) {
                m_calls += int(std::count_if(ids.cbegin(), ids.cend(), [this](const QString &id) {
                    return m_bus->hasSubscription(id);
                }));
            }));
        }
        m_bus->publish(RCRunStart);
        QCOMPARE(m_calls, 8 * 8);
        QCOMPARE(m_bus->subscriptionCount(RCRunStart), 0);
    }

    void nestedPublishRunsFirst()
    {
        QStringList order;
        m_bus->subscribeFiltered(RCRunStart, {}, [&](const ZepletEvent &event) {
            order.append("in " + event.source);
            if (event.source == QLatin1String("1"))
                m_bus->publish(RCRunStart, {}, "2");
            order.append("out " + event.source);
        });
        m_bus->publish(RCRunStart, {}, "1");
        QCOMPARE(order, (QStringList {"in 1", "in 2", "out 2", "out 1"}));
    }

    void changesDuringDispatch()
    {
        // Whoever comes first removes the other and adds a third one.
        QString ids[2];
        QString third;
        for (int i = 0; i < 2; ++i) {
            ids[i] = m_bus->subscribeFiltered(RCRunStart, {}, [&, i](const ZepletEvent &) {
                ++m_calls;
                m_bus->unsubscribe(ids[1 - i]);
                if (third.isEmpty())
                    third = m_bus->subscribeFiltered(RCRunStart, {}, counter());
            });
        }
        m_bus->publish(RCRunStart);
        QCOMPARE(m_calls, 2);
        QCOMPARE(m_bus->subscriptionCount(RCRunStart), 1);
        m_bus->publish(RCRunStart);
        QCOMPARE(m_calls, 3);
    }

    void exceptionLeavesTheBusUsable()
    {
        bool throws = true;
        m_bus->subscribeFiltered(RCRunStart, {}, [&throws](const ZepletEvent &) {
            if (throws)
                throw std::runtime_error("plugin");
        });
        QVERIFY_EXCEPTION_THROWN(m_bus->publish(RCRunStart), std::runtime_error);
        QCOMPARE(m_bus->totalEventsPublished(), quint64(1));
        QCOMPARE(m_bus->totalEventsHandled(), quint64(0));

        throws = false;
        const QString once = m_bus->subscribeOnce(RCRunStart, counter());
        m_bus->publish(RCRunStart);
        QCOMPARE(m_calls, 1);
        QVERIFY(!m_bus->hasSubscription(once));
        QCOMPARE(m_bus->totalEventsHandled(), quint64(2));
    }

    void asyncKeepsTheEventAndTheOrder()
    {
        QVector<ZepletEvent> received;
        m_bus->subscribeFiltered(RCRunStart, {},
                                 [&received](const ZepletEvent &event) { received.append(event); });
        ZepletEvent event(RCRunStart, "first", 1);
        event.setProperty("x", 1);
        m_bus->publishAsync(event);
        event.source = "changed later";
        m_bus->publishAsync(RCRunStart, 2, "second");
        QCOMPARE(m_bus->totalEventsPublished(), quint64(0));
        QVERIFY(received.isEmpty());

        QTRY_COMPARE(received.size(), 2);
        QCOMPARE(m_bus->totalEventsPublished(), quint64(2));
        QCOMPARE(received[0].source, QString("first"));
        QCOMPARE(received[0].id, event.id);
        QCOMPARE(received[0].seq, event.seq);
        QCOMPARE(received[0].timestamp, event.timestamp);
        QCOMPARE(received[0].property("x"), QVariant(1));
        QCOMPARE(received[1].source, QString("second"));
        QCOMPARE(received[1].data, QVariant(2));
    }

    void asyncRunsOnTheThreadOfTheBus()
    {
        QThread *ran = nullptr;
        m_bus->subscribeFiltered(RCRunStart, {},
                                 [&ran](const ZepletEvent &) { ran = QThread::currentThread(); });
        QThread *published = nullptr;
        std::thread([&] {
            m_bus->publish(RCRunStart);
            published = ran;
            ran = nullptr;
            m_bus->publishAsync(RCRunStart);
        }).join();
        QVERIFY(published && published != thread());
        QTRY_COMPARE(ran, thread());
    }

    void asyncEndsWithTheBus()
    {
        m_bus->publishAsync(RCRunStart);
        ZepletEventSystem::destroyInstance();
        m_bus = zepletEvent();
        m_bus->subscribeFiltered(RCRunStart, {}, counter());
        QCoreApplication::sendPostedEvents();
        QCOMPARE(m_calls, 0);
    }

    void unsubscribing()
    {
        QSignalSpy removed(m_bus, &ZepletEventSystem::subscriptionRemoved);
        const auto fill = [this] {
            QString last;
            for (const QString plugin : {"p", "p", "q"}) {
                m_bus->subscribe(RCRunStart, counter(), plugin, m_context.get());
                last = m_bus->subscribe(RCRunStop, counter(), plugin, m_context.get());
            }
            return last;
        };
        const QString id = fill();
        QVERIFY(m_bus->unsubscribe(id));
        QCOMPARE(removed.takeFirst(),
                 (QVariantList {id, QVariant::fromValue(RCRunStop), QStringLiteral("q")}));
        QVERIFY(!m_bus->unsubscribe(id));
        QVERIFY(!m_bus->unsubscribe(QString()));
        QCOMPARE(removed.count(), 0);

        QCOMPARE(m_bus->unsubscribeByTypeAndPlugin("p", RCRunStart), 2);
        QCOMPARE(m_bus->unsubscribeByTypeAndPlugin("p", RCRunStart), 0);
        QCOMPARE(m_bus->unsubscribeByType(RCRunStart), 1);
        QCOMPARE(m_bus->unsubscribeByPlugin("p"), 2);
        QCOMPARE(m_bus->unsubscribeByPlugin("p"), 0);
        QCOMPARE(removed.count(), 5);
        QVERIFY(m_bus->registeredEventTypes().isEmpty());
    }

    // The captured objects of what is cleaned up may use the bus too.
    void cleanupIsSilent()
    {
        int left = -1;
        std::shared_ptr<void> captured(
            nullptr, [&](void *) { left = m_bus->subscriptionCount(RCRunStart); });
        m_bus->subscribe(
            RCRunStart, [captured](const ZepletEvent &) {}, "p");
        captured.reset();
        const QString valid = m_bus->subscribe(RCRunStart, counter(), "p", m_context.get());
        QSignalSpy removed(m_bus, &ZepletEventSystem::subscriptionRemoved);
        m_bus->cleanupInvalidSubscriptions();
        QCOMPARE(removed.count(), 0);
        QCOMPARE(left, 1);
        QCOMPARE(m_bus->totalSubscriptionIds("p"), QStringList(valid));
    }

    // An exception drops the removal of the one-shots that have fired; what is cleaned up in their
    // stead is forgotten for the dying context as well.
    void cleanupOfFiredOneShots()
    {
        for (int i = 0; i < 8; ++i)
            m_bus->subscribeOnce(RCRunStart, counter(), "p", m_context.get());
        m_bus->subscribeFiltered(RCRunStart, {}, [this](const ZepletEvent &) {
            if (m_calls > 0)
                throw std::runtime_error("plugin");
        });
        try {
            m_bus->publish(RCRunStart);
        } catch (const std::runtime_error &) {
            QCOMPARE(m_bus->subscriptionCount(RCRunStart), 9);
        }
        m_bus->cleanupInvalidSubscriptions();
        QCOMPARE(m_bus->subscriptionCount(RCRunStart), 9 - m_calls);
        m_context.reset();
        QCOMPARE(m_bus->subscriptionCount(RCRunStart), 1);
    }

    void statistics()
    {
        for (int i = 0; i < 3; ++i)
            m_bus->subscribe(RCRunStart, counter(), "p", m_context.get());
        m_bus->publish(RCRunStart);
        m_bus->publish(RCRunStop);
        QCOMPARE(m_bus->totalEventsPublished(), quint64(2));
        QCOMPARE(m_bus->totalEventsHandled(), quint64(3));
        m_bus->resetStatistics();
        QCOMPARE(m_bus->totalEventsPublished(), quint64(0));
        QCOMPARE(m_bus->totalEventsHandled(), quint64(0));
    }

    void customTypes()
    {
        QVERIFY(m_bus->customEventTypeName(UserEventStart).isEmpty());
        QCOMPARE(m_bus->registerCustomEventType("mine"), UserEventStart);
        const ZepletEventType second = m_bus->registerCustomEventType("mine");
        QCOMPARE(int(second), 0x8001);
        QCOMPARE(m_bus->customEventTypeName(second), QString("mine"));
        QVERIFY(m_bus->customEventTypeName(RCRunStart).isEmpty());

        ZepletEventType last = second;
        for (int i = 2; i < 32768; ++i)
            last = m_bus->registerCustomEventType("more");
        QCOMPARE(int(last), 0xFFFF);
        for (int i = 0; i < 2; ++i) {
            QTest::ignoreMessage(QtWarningMsg,
                                 "ZepletEventSystem: No more custom event types available!");
            QCOMPARE(m_bus->registerCustomEventType("too many"), None);
        }
    }

    void queuedSignals()
    {
        QVector<QString> received;
        connect(
            m_bus, &ZepletEventSystem::eventPublished, m_context.get(),
            [&received](const ZepletEvent &event) { received.append(event.id); },
            Qt::QueuedConnection);
        connect(
            m_bus, &ZepletEventSystem::subscriptionAdded, m_context.get(),
            [&received](const QString &id, ZepletEventType, const QString &) {
                // Queued, so that the lock is free and the bus may be used.
                QVERIFY(zepletEvent()->hasSubscription(id));
                received.append(id);
            },
            Qt::QueuedConnection);
        const ZepletEvent event(RCRunStart, "s", 1);
        m_bus->publish(event);
        const QString id = m_bus->subscribeFiltered(RCRunStart, {}, {});
        QTRY_COMPARE(received, (QVector<QString> {event.id, id}));
    }

    void contextDeathIsSilent()
    {
        QSignalSpy removed(m_bus, &ZepletEventSystem::subscriptionRemoved);
        QObject other;
        for (Kind kind : {Plain, Filtered, Once})
            subscribe(kind, RCRunStart, counter(), m_context.get());
        const QString kept = subscribe(Plain, RCRunStart, counter(), &other);
        QCOMPARE(m_bus->totalSubscriptionCount(), 4);
        m_context.reset();
        QCOMPARE(m_bus->totalSubscriptionCount(), 1);
        QCOMPARE(m_bus->totalSubscriptionIds("p"), QStringList(kept));
        QCOMPARE(removed.count(), 0);
        m_bus->publish(RCRunStart);
        QCOMPARE(m_calls, 1);
    }

    void contextDiesDuringDispatch_data()
    {
        const auto row = testcolumns<Kind, Ending>("kind", "end");
        const Ending reset = [](auto &context, const QString &) { context.reset(); };
        row("plain", Plain, reset);
        row("filtered", Filtered, reset);
        row("once", Once, reset);
        // The usual way in which a plugin goes. Unsubscribing alone would leave the call due.
        row("unsubscribed, then deleted", Plain, [](auto &context, const QString &id) {
            zepletEvent()->unsubscribe(id);
            context.reset();
        });
        row("on another thread", Plain, [](auto &context, const QString &) {
            std::thread([&context] { context.reset(); }).join();
        });
    }

    // The order of calls is unspecified, so two subscribers with a context each: the first one
    // called ends the other's.
    void contextDiesDuringDispatch()
    {
        QFETCH(Kind, kind);
        QFETCH(Ending, end);
        std::unique_ptr<QObject> contexts[2];
        QString ids[2];
        for (int i = 0; i < 2; ++i) {
            contexts[i] = std::make_unique<QObject>();
            const auto endOther = [&, i](const ZepletEvent &) {
                ++m_calls;
                end(contexts[1 - i], ids[1 - i]);
            };
            ids[i] = subscribe(kind, RCRunStart, endOther, contexts[i].get());
        }
        m_bus->publish(RCRunStart);
        QCOMPARE(m_calls, 1);
        QCOMPARE(m_bus->totalEventsHandled(), quint64(1));
        QCOMPARE(m_bus->subscriptionCount(RCRunStart), kind == Once ? 0 : 1);

        // One may also delete its own.
        m_bus->unsubscribeByType(RCRunStart);
        subscribe(
            kind, RCRunStart, [this](const ZepletEvent &) { m_context.reset(); }, m_context.get());
        m_bus->publish(RCRunStart);
        QCOMPARE(m_bus->subscriptionCount(RCRunStart), 0);
    }

    void contextIsConnectedOnceUnlessItCutItsConnections()
    {
        auto context = std::make_unique<StubbornContext>();
        for (int i = 0; i < 5; ++i)
            m_bus->unsubscribe(m_bus->subscribe(RCRunStart, counter(), "p", context.get()));
        QCOMPARE(context->connections, 1);
        context->disconnect();
        m_bus->subscribe(RCRunStart, counter(), "p", context.get());
        QCOMPARE(context->connections, 2);
        context.reset();
        QCOMPARE(m_bus->subscriptionCount(RCRunStart), 0);
    }

    void releaseRunsWithoutTheLock_data()
    {
        const auto row = testcolumns<Action>("action");
        row("by id", [](const QString &id) { zepletEvent()->unsubscribe(id); });
        row("by plugin", [](const QString &) { zepletEvent()->unsubscribeByPlugin("p"); });
        row("by type", [](const QString &) { zepletEvent()->unsubscribeByType(RCRunStart); });
        row("by both",
            [](const QString &) { zepletEvent()->unsubscribeByTypeAndPlugin("p", RCRunStart); });
        row("one-shot", [](const QString &) { zepletEvent()->publish(RCRunStart); });
        row("context", [this](const QString &) { m_context.reset(); });
        row("destruction", [](const QString &) { ZepletEventSystem::destroyInstance(); });
    }

    // With a lock held, the destructor of the captured object would wait for ever.
    void releaseRunsWithoutTheLock()
    {
        QFETCH(Action, action);
        int left = -1;
        std::shared_ptr<void> captured(nullptr, [this, &left](void *) {
            m_bus->publish(RCRunStop);
            left = m_bus->subscriptionCount(RCRunStart);
        });
        const QString id = m_bus->subscribeOnce(
            RCRunStart, [captured](const ZepletEvent &) {}, "p", m_context.get());
        captured.reset();
        QCOMPARE(left, -1);
        action(id);
        QCOMPARE(left, 0);
    }

    // A captured context object that dies with the bus, and one that subscribes once more.
    void capturedObjectsMayUseTheDyingBus()
    {
        auto owned = std::make_shared<QObject>();
        m_bus->subscribe(
            RCRunStart, [owned](const ZepletEvent &) {}, "p", owned.get());
        QPointer<QObject> watched = owned.get();
        owned.reset();
        std::shared_ptr<void> late(nullptr, [this](void *) {
            m_bus->subscribe(RCRunStart, counter(), "late", m_context.get());
        });
        m_bus->subscribeFiltered(RCRunStart, {}, [late](const ZepletEvent &) {});
        late.reset();

        ZepletEventSystem::destroyInstance();
        QVERIFY(watched.isNull());
        m_context.reset();
    }

    // For a subscription that lasts as long as the bus does.
    void theBusMayBeTheContext()
    {
        m_bus->subscribe(RCRunStart, counter(), "p", m_bus);
        m_bus->publish(RCRunStart);
        QCOMPARE(m_calls, 1);
        ZepletEventSystem::destroyInstance();
        m_bus = zepletEvent();
        m_bus->publish(RCRunStart);
        QCOMPARE(m_calls, 1);
    }

private:
    QString subscribe(Kind kind, ZepletEventType type, const ZepletEventHandler::Callback &callback,
                      QObject *context, const QString &plugin = "p")
    {
        switch (kind) {
        case Plain:
            return m_bus->subscribe(type, callback, plugin, context);
        case Filtered:
            return m_bus->subscribeFiltered(type, {}, callback, plugin, context);
        case Once:
            return m_bus->subscribeOnce(type, callback, plugin, context);
        }
        return {};
    }

    ZepletEventHandler::Callback counter()
    {
        return [this](const ZepletEvent &) { ++m_calls; };
    }

    ZepletEventSystem *m_bus = nullptr;
    std::unique_ptr<QObject> m_context;
    int m_calls = 0;
};

QTEST_GUILESS_MAIN(TestZepletEventSystem)
#include "tst_zepleteventsystem.moc"
