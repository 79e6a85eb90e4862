#include "peers.h"

#include <QSemaphore>

#include <benchmark/benchmark.h>

#include <thread>

using namespace zeplet;

namespace
{

constexpr int Batch = 20000;
constexpr int Subscribers = 10;

void publishMany(ZepletEventType type, int count)
{
    const ZepletEvent event(type, "bench", 1);
    for (int i = 0; i < count; ++i)
        zepletEvent()->publish(event);
}

/// A thread that publishes a type of its own, one batch for each release of `start`.
class Publisher
{
public:
    Publisher()
        : m_thread([this] {
            for (start.acquire(); !m_stop; start.acquire()) {
                publishMany(RCRunStop, Batch / 2);
                finished.release();
            }
        })
    {
    }
    ~Publisher()
    {
        m_stop = true;
        start.release();
        m_thread.join();
    }

    QSemaphore start;
    QSemaphore finished;

private:
    std::atomic<bool> m_stop {false};
    std::thread m_thread;
};

struct alignas(64) Hits {
    quint64 count = 0;
};

void twoThreads(benchmark::State &state)
{
    Hits mine;
    Hits other;
    OurBus ours(0);
    ours.add(Subscribers, RCRunStart, &mine.count);
    ours.add(Subscribers, RCRunStop, &other.count);
    Publisher publisher;
    for (auto _ : state) {
        publisher.start.release();
        publishMany(RCRunStart, Batch / 2);
        publisher.finished.acquire();
    }
}

void oneThread(benchmark::State &state)
{
    Hits mine;
    OurBus ours(0);
    ours.add(Subscribers, RCRunStart, &mine.count);
    ours.add(Subscribers, RCRunStop, &mine.count);
    for (auto _ : state) {
        publishMany(RCRunStart, Batch / 2);
        publishMany(RCRunStop, Batch / 2);
    }
}

// The same number of events in both: the real time tells.
BENCHMARK(twoThreads)->Name("two_threads/ours");
BENCHMARK(oneThread)->Name("two_threads/one_thread");

} // namespace
