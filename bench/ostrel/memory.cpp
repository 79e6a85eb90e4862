#include "../heap.h"
#include "points.h"

#include <ostrel/moduleobject.h>

#include <QJsonDocument>

#include <benchmark/benchmark.h>

namespace
{
// Loads the records as a host does, from the text of their file; what stays is the tree.
template <typename Load>
void measure(benchmark::State &state, Load load)
{
    const int nodes = countNodes(pointRecords());
    const QByteArray &text = pointText();
    for (auto _ : state) {
        const size_t before = heapInUse();
        const auto tree = load(text);
        state.counters["bytes_per_node"] = double(heapInUse() - before) / nodes;
        benchmark::DoNotOptimize(&tree);
    }
    state.counters["nodes"] = nodes;
}

void memoryOurs(benchmark::State &state)
{
    measure(state, [](const QByteArray &text) {
        auto root = std::make_unique<ostrel::ModuleObject>();
        root->fromJsonText(nullptr, text);
        return root;
    });
}

// Filled from a JSON value, the tree takes the other way in.
void memoryImported(benchmark::State &state)
{
    measure(state, [](const QByteArray &) {
        auto root = std::make_unique<ostrel::ModuleObject>();
        root->importFromJson(nullptr, pointRecords(), true, true, false);
        return root;
    });
}

void memoryQJson(benchmark::State &state)
{
    measure(state, [](const QByteArray &text) { return QJsonDocument::fromJson(text).array(); });
}
} // namespace

BENCHMARK(memoryOurs)->Name("store_memory/ours")->Iterations(1);
BENCHMARK(memoryImported)->Name("store_memory/ours_imported")->Iterations(1);
BENCHMARK(memoryQJson)->Name("store_memory/qjson")->Iterations(1);
