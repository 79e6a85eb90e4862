#include <QCoreApplication>
#include <QTest>

#include <atomic>
#include <memory>
#include <thread>
#include <vector>

#include <zeplet/events/zepleteventsystem.h>

using namespace zeplet;

namespace
{

constexpr int Threads = 4;

int rounds()
{
    bool given = false;
    const int count = qEnvironmentVariableIntValue("ZEPLET_STRESS_ROUNDS", &given);
    return given ? count : 1;
}

// One subscription must not be dispatched on two threads at once: each thread has a type of its
// own.
ZepletEventType typeOf(int thread)
{
    return static_cast<ZepletEventType>(UserEventStart + thread);
}

void runOnThreads(const std::function<void(int)> &work)
{
    std::vector<std::thread> threads;
    for (int i = 0; i < Threads; ++i)
        threads.emplace_back([&work, i] { work(i); });
    for (std::thread &thread : threads)
        thread.join();
}

} // namespace

/// Everything that any thread may do with the bus, on several threads at the same time.
class StressBus : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_bus = zepletEvent(); }
    void cleanup() { ZepletEventSystem::destroyInstance(); }

    void everythingAtOnce();
    void contextsDieUnderLoad();
    void asyncFromAllThreads();
    void instancesUnderLoad();

private:
    void useEverything(int thread, std::atomic<quint64> &calls);

    ZepletEventSystem *m_bus = nullptr;
};

void StressBus::everythingAtOnce()
{
    std::atomic<quint64> calls {0};
    runOnThreads([&](int thread) {
        for (int round = 0; round < rounds() * 20; ++round)
            useEverything(thread, calls);
    });
    QCOMPARE(m_bus->totalEventsHandled(), calls.load());
    QVERIFY(m_bus->registeredEventTypes().isEmpty());
}

void StressBus::useEverything(int thread, std::atomic<quint64> &calls)
{
    const ZepletEventType type = typeOf(thread);
    const QString plugin = QString::number(thread % 2);
    const auto count = [&calls](const ZepletEvent &) { ++calls; };
    QObject context;
    QStringList ids;
    for (int i = 0; i < 10; ++i) {
        ids.append(m_bus->subscribe(type, count, plugin, &context));
        ids.append(m_bus->subscribeFiltered(type, {}, count, plugin));
        m_bus->subscribeOnce(type, count, plugin, &context);
    }
    for (int i = 0; i < 10; ++i) {
        m_bus->publish(type, i, plugin);
        // All of these look into what the other threads are changing and dispatching.
        m_bus->totalSubscriptionCount();
        m_bus->subscriptionCount(plugin);
        m_bus->totalSubscriptionIds(plugin);
        m_bus->registeredEventTypes();
        m_bus->cleanupInvalidSubscriptions();
        m_bus->customEventTypeName(m_bus->registerCustomEventType(plugin));
        m_bus->unsubscribe(ids.takeLast());
    }
    m_bus->unsubscribeByTypeAndPlugin(plugin, type);
}

// Contexts are made here and die on another thread, while their type is being published: no call
// may start after an object has said that it is destroyed.
void StressBus::contextsDieUnderLoad()
{
    struct Context : QObject {
        explicit Context(std::atomic<bool> &flag)
            : alive(flag)
        {
            alive = true;
        }
        std::atomic<bool> &alive;
    };
    constexpr int Contexts = 50;
    std::atomic<int> late {0};
    for (int round = 0; round < rounds() * 5; ++round) {
        std::vector<std::atomic<bool>> alive(Contexts);
        std::vector<std::unique_ptr<Context>> contexts;
        for (auto &flag : alive) {
            contexts.push_back(std::make_unique<Context>(flag));
            for (int i = 0; i < 3; ++i) {
                m_bus->subscribe(
                    RCRunStart,
                    [&flag, &late](const ZepletEvent &) {
                        // Whoever deletes waits for the dispatch that is running.
                        late += flag ? 0 : 1;
                    },
                    "p", contexts.back().get());
            }
        }
        std::atomic<int> running {0};
        std::atomic<bool> done {false};
        std::thread publisher([&] {
            while (!done) {
                ++running;
                m_bus->publish(RCRunStart);
            }
        });
        for (auto &context : contexts) {
            std::atomic<bool> &flag = context->alive;
            context.reset();
            // The call that was starting when the object died belongs to the next dispatch but one
            // at most.
            const int seen = running;
            while (running < seen + 2)
                std::this_thread::yield();
            flag = false;
        }
        done = true;
        publisher.join();
        QCOMPARE(m_bus->subscriptionCount(RCRunStart), 0);
    }
    QCOMPARE(late.load(), 0);
}

void StressBus::asyncFromAllThreads()
{
    const int events = rounds() * 200;
    std::vector<int> last(Threads, -1);
    int disorder = 0;
    int received = 0;
    for (int thread = 0; thread < Threads; ++thread) {
        m_bus->subscribeFiltered(typeOf(thread), {}, [&, thread](const ZepletEvent &event) {
            auto &previous = last[static_cast<std::size_t>(thread)];
            disorder += event.data.toInt() == previous + 1 ? 0 : 1;
            previous = event.data.toInt();
            ++received;
        });
    }
    std::thread publishers([&] {
        runOnThreads([&](int thread) {
            for (int i = 0; i < events; ++i)
                m_bus->publishAsync(typeOf(thread), i);
        });
    });
    while (received < Threads * events)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    publishers.join();
    QCOMPARE(disorder, 0);
    QCOMPARE(m_bus->totalEventsPublished(), quint64(Threads * events));
}

void StressBus::instancesUnderLoad()
{
    for (int round = 0; round < rounds() * 20; ++round) {
        ZepletEventSystem::destroyInstance();
        std::vector<ZepletEventSystem *> seen(Threads);
        runOnThreads([&](int thread) {
            ZepletEventSystem *bus = zepletEvent();
            seen[static_cast<std::size_t>(thread)] = bus;
            bus->subscribeFiltered(typeOf(thread), {}, [](const ZepletEvent &) {});
            bus->publish(typeOf(thread));
        });
        QCOMPARE(std::count(seen.begin(), seen.end(), seen.front()), Threads);
        QCOMPARE(zepletEvent()->totalEventsHandled(), quint64(Threads));
    }
    m_bus = zepletEvent();
}

QTEST_GUILESS_MAIN(StressBus)
#include "stress_bus.moc"
