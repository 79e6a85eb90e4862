#include "peers.h"

#include <benchmark/benchmark.h>
#include <boost/signals2.hpp>

#include <deque>
#include <string>
#include <vector>

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

// Two ways to go: "subscribe" replaces the oldest of the live ones, as in a panel whose pages come
// and go; "subscribe_last" removes what was just added, while all of it is in the cache.
enum class Removes { Oldest, Last };

void subscribeOurs(benchmark::State &state, int contexts, Removes removes)
{
    OurBus ours(0);
    Contexts objects(contexts);
    const QString plugin = "bench";
    quint64 hits = 0;
    const auto subscribe = [&] {
        return ours.bus->subscribe(
            RCRunStart, [&hits](const ZepletEvent &) { ++hits; }, plugin, objects.next());
    };
    std::vector<QString> live(Live);
    for (QString &id : live)
        id = subscribe();
    std::size_t oldest = 0;
    for (auto _ : state) {
        QString id = subscribe();
        if (removes == Removes::Oldest)
            std::swap(live[oldest++ % Live], id);
        ours.bus->unsubscribe(id);
    }
}

void subscribeQt(benchmark::State &state, int contexts, Removes removes)
{
    QtPublisher publisher;
    Contexts objects(contexts);
    quint64 hits = 0;
    const auto connect = [&] {
        return QObject::connect(&publisher, &QtPublisher::published, objects.next(),
                                [&hits](const QtEvent &) { ++hits; });
    };
    std::vector<QMetaObject::Connection> live(Live);
    for (QMetaObject::Connection &connection : live)
        connection = connect();
    std::size_t oldest = 0;
    for (auto _ : state) {
        QMetaObject::Connection connection = connect();
        if (removes == Removes::Oldest)
            std::swap(live[oldest++ % Live], connection);
        QObject::disconnect(connection);
    }
}

void subscribeBoost(benchmark::State &state, Removes removes)
{
    boost::signals2::signal<void(const QtEvent &)> signal;
    quint64 hits = 0;
    const auto connect = [&] { return signal.connect([&hits](const QtEvent &) { ++hits; }); };
    std::vector<boost::signals2::connection> live(Live);
    for (boost::signals2::connection &connection : live)
        connection = connect();
    std::size_t oldest = 0;
    for (auto _ : state) {
        boost::signals2::connection connection = connect();
        if (removes == Removes::Oldest)
            std::swap(live[oldest++ % Live], connection);
        connection.disconnect();
    }
}

void registerAll(const std::string &row, Removes removes)
{
    for (const int contexts : {1, 100, 10000}) {
        const std::string name = row + "_" + std::to_string(contexts);
        benchmark::RegisterBenchmark((name + "/ours").c_str(), subscribeOurs, contexts, removes);
        benchmark::RegisterBenchmark((name + "/qt").c_str(), subscribeQt, contexts, removes);
    }
    // No context objects there.
    benchmark::RegisterBenchmark((row + "_1/boost").c_str(), subscribeBoost, removes);
}

const bool registered = [] {
    registerAll("subscribe", Removes::Oldest);
    registerAll("subscribe_last", Removes::Last);
    return true;
}();

} // namespace
