#include "peers.h"

#include <QCoreApplication>

#include <benchmark/benchmark.h>

using namespace zeplet;

namespace
{

constexpr int Batch = 100;
constexpr int Subscribers = 10;

void asyncOurs(benchmark::State &state)
{
    OurBus ours(Subscribers);
    const ZepletEvent event(RCRunStart, "bench", 1);
    for (auto _ : state) {
        for (int i = 0; i < Batch; ++i)
            ours.bus->publishAsync(event);
        QCoreApplication::processEvents();
    }
    benchmark::DoNotOptimize(ours.hits);
}

// The record and the dispatch of Qt.
void asyncQt(benchmark::State &state)
{
    QtPeer peer(Subscribers);
    const QtEvent event(RCRunStart, "bench", 1);
    QtPublisher *publisher = &peer.publisher;
    for (auto _ : state) {
        for (int i = 0; i < Batch; ++i) {
            QMetaObject::invokeMethod(
                publisher, [publisher, copy = event] { emit publisher->published(copy); },
                Qt::QueuedConnection);
        }
        QCoreApplication::processEvents();
    }
    benchmark::DoNotOptimize(peer.hits);
}

// The dispatch of the bus: shows what posting alone costs.
void asyncQtToBus(benchmark::State &state)
{
    OurBus ours(Subscribers);
    const ZepletEvent event(RCRunStart, "bench", 1);
    ZepletEventSystem *bus = ours.bus;
    for (auto _ : state) {
        for (int i = 0; i < Batch; ++i) {
            QMetaObject::invokeMethod(
                bus, [bus, copy = event] { bus->publish(copy); }, Qt::QueuedConnection);
        }
        QCoreApplication::processEvents();
    }
    benchmark::DoNotOptimize(ours.hits);
}

BENCHMARK(asyncOurs)->Name("async_10/ours");
BENCHMARK(asyncQt)->Name("async_10/qt");
BENCHMARK(asyncQtToBus)->Name("async_10/qt_to_bus");

} // namespace
