#include "peers.h"

#include <benchmark/benchmark.h>
#include <boost/signals2.hpp>

using namespace zeplet;

namespace
{

void dispatchOurs(benchmark::State &state, int subscribers)
{
    OurBus ours(subscribers);
    const ZepletEvent event(RCRunStart, "bench", 1);
    for (auto _ : state)
        ours.bus->publish(event);
    benchmark::DoNotOptimize(ours.hits);
}

void dispatchQt(benchmark::State &state, int subscribers)
{
    QtPeer peer(subscribers);
    const QtEvent event(RCRunStart, "bench", 1);
    for (auto _ : state)
        emit peer.publisher.published(event);
    benchmark::DoNotOptimize(peer.hits);
}

void dispatchBoost(benchmark::State &state, int subscribers)
{
    boost::signals2::signal<void(const QtEvent &)> signal;
    std::vector<PeerStatistics> statistics(static_cast<std::size_t>(subscribers));
    std::atomic<quint64> total {0};
    quint64 hits = 0;
    for (PeerStatistics &subscriber : statistics) {
        signal.connect([&subscriber, &total, &hits](const QtEvent &) {
            ++hits;
            subscriber.count(total);
        });
    }
    const QtEvent event(RCRunStart, "bench", 1);
    for (auto _ : state)
        signal(event);
    benchmark::DoNotOptimize(hits);
}

void publishOurs(benchmark::State &state)
{
    OurBus ours(10);
    const QString source = "bench";
    const QVariant data = 1;
    for (auto _ : state)
        ours.bus->publish(RCRunStart, data, source);
    benchmark::DoNotOptimize(ours.hits);
}

void publishQt(benchmark::State &state)
{
    QtPeer peer(10);
    const QString source = "bench";
    const QVariant data = 1;
    for (auto _ : state)
        emit peer.publisher.published(QtEvent(RCRunStart, source, data));
    benchmark::DoNotOptimize(peer.hits);
}

void dispatchAmongOthers(benchmark::State &state, int others)
{
    OurBus ours(10);
    quint64 never = 0;
    for (int i = 0; i < others; ++i)
        ours.add(1, static_cast<ZepletEventType>(UserEventStart + i % 1000), &never);
    const ZepletEvent event(RCRunStart, "bench", 1);
    for (auto _ : state)
        ours.bus->publish(event);
    benchmark::DoNotOptimize(ours.hits);
}

BENCHMARK_CAPTURE(dispatchOurs, 10, 10)->Name("dispatch_10/ours");
BENCHMARK_CAPTURE(dispatchQt, 10, 10)->Name("dispatch_10/qt");
BENCHMARK_CAPTURE(dispatchBoost, 10, 10)->Name("dispatch_10/boost");
BENCHMARK_CAPTURE(dispatchOurs, 100, 100)->Name("dispatch_100/ours");
BENCHMARK_CAPTURE(dispatchQt, 100, 100)->Name("dispatch_100/qt");
BENCHMARK_CAPTURE(dispatchBoost, 100, 100)->Name("dispatch_100/boost");
BENCHMARK_CAPTURE(dispatchOurs, 1000, 1000)->Name("dispatch_1000/ours");
BENCHMARK_CAPTURE(dispatchQt, 1000, 1000)->Name("dispatch_1000/qt");
BENCHMARK_CAPTURE(dispatchBoost, 1000, 1000)->Name("dispatch_1000/boost");
BENCHMARK(publishOurs)->Name("publish_10/ours");
BENCHMARK(publishQt)->Name("publish_10/qt");
BENCHMARK_CAPTURE(dispatchAmongOthers, 10000, 10000)->Name("other_types/ours");
BENCHMARK_CAPTURE(dispatchAmongOthers, 0, 0)->Name("other_types/without");

} // namespace
