#include "../heap.h"
#include "../ostrel/points.h"
#include "project.h"

#include <ostrel/moduleobject.h>

#include <QJsonDocument>

#include <benchmark/benchmark.h>

namespace
{
constexpr int records = 10000;

// As it is after an edit: the tree and what is kept for the next.
void ours(benchmark::State &state)
{
    Project &project = Project::instance();
    const Project::WithoutRsync withoutRsync;
    for (auto _ : state) {
        m("tavik.project.point._list")->clear(nullptr);
        const size_t before = heapInUse();
        project.load(records);
        project.edit();
        state.counters["megabytes"] = double(heapInUse() - before) / 1e6;
    }
}

void qJson(benchmark::State &state)
{
    const QByteArray &text = pointText();
    for (auto _ : state) {
        const size_t before = heapInUse();
        const QJsonArray tree = QJsonDocument::fromJson(text).array();
        state.counters["megabytes"] = double(heapInUse() - before) / 1e6;
        benchmark::DoNotOptimize(&tree);
    }
}
} // namespace

BENCHMARK(ours)->Name("point_memory/ours")->Iterations(1);
BENCHMARK(qJson)->Name("point_memory/qjson")->Iterations(1);
