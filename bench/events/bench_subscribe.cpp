#include "peers.h"

#include <benchmark/benchmark.h>
#include <boost/signals2.hpp>

#include <deque>

using namespace zeplet;

namespace
{

constexpr int Live = 10000;

/// Context objects, taken in turn.
class Contexts
{
public:
    explicit Contexts(int count)
        : m_objects(static_cast<std::size_t>(count))
    {
    }
    QObject *next() { return &m_objects[m_next++ % m_objects.size()]; }

private:
    std::deque<QObject> m_objects;
    std::size_t m_next = 0;
};

void subscribeOurs(benchmark::State &state, int contexts)
{
    OurBus ours(0);
    {
        Contexts objects(contexts);
        quint64 hits = 0;
        const QString plugin = "bench";
        const auto callback = [&hits](const ZepletEvent &) { ++hits; };
        for (int i = 0; i < Live; ++i)
            ours.bus->subscribe(RCRunStart, callback, plugin, objects.next());
        for (auto _ : state)
            ours.bus->unsubscribe(
                ours.bus->subscribe(RCRunStart, callback, plugin, objects.next()));
    }
}

void subscribeQt(benchmark::State &state, int contexts)
{
    QtPublisher publisher;
    Contexts objects(contexts);
    quint64 hits = 0;
    const auto callback = [&hits](const QtEvent &) { ++hits; };
    for (int i = 0; i < Live; ++i)
        QObject::connect(&publisher, &QtPublisher::published, objects.next(), callback);
    for (auto _ : state)
        QObject::disconnect(
            QObject::connect(&publisher, &QtPublisher::published, objects.next(), callback));
}

void subscribeBoost(benchmark::State &state)
{
    boost::signals2::signal<void(const QtEvent &)> signal;
    quint64 hits = 0;
    const auto callback = [&hits](const QtEvent &) { ++hits; };
    for (int i = 0; i < Live; ++i)
        signal.connect(callback);
    for (auto _ : state)
        signal.connect(callback).disconnect();
}

BENCHMARK_CAPTURE(subscribeOurs, 1, 1)->Name("subscribe_1/ours");
BENCHMARK_CAPTURE(subscribeQt, 1, 1)->Name("subscribe_1/qt");
BENCHMARK(subscribeBoost)->Name("subscribe_1/boost");
BENCHMARK_CAPTURE(subscribeOurs, 100, 100)->Name("subscribe_100/ours");
BENCHMARK_CAPTURE(subscribeQt, 100, 100)->Name("subscribe_100/qt");
BENCHMARK_CAPTURE(subscribeOurs, 10000, 10000)->Name("subscribe_10000/ours");
BENCHMARK_CAPTURE(subscribeQt, 10000, 10000)->Name("subscribe_10000/qt");

} // namespace
