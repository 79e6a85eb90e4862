#include <ostrel/moduleobject.h>

#include <QJsonObject>
#include <QStandardItemModel>

#include <benchmark/benchmark.h>

using ostrel::ModuleObject;

namespace
{
const QString key = QStringLiteral("tavik.project.var.built");

// Four levels with the breadth of a panel's store.
QJsonObject storeContent()
{
    QJsonObject content {{"built", 7}};
    for (const char *name : {"var", "project", "tavik"}) {
        for (int i = 0; i < 20; ++i)
            content.insert(QString("setting_%1").arg(i), i);
        content = QJsonObject {{name, content}};
    }
    for (const char *name : {"brisa", "kivra", "nexo", "ostrel"})
        content.insert(name, QJsonObject());
    return content;
}

void lookupOurs(benchmark::State &state)
{
    m(QString())->importFromJson(nullptr, storeContent(), true, true, false);
    for (auto _ : state)
        benchmark::DoNotOptimize(m(key)->getInt(0));
}

void lookupGetter(benchmark::State &state)
{
    ModuleObject root;
    root.importFromJson(nullptr, storeContent(), true, true, false);
    for (auto _ : state)
        benchmark::DoNotOptimize(root.getInt(key, 0));
}

void lookupQJson(benchmark::State &state)
{
    const QJsonObject root = storeContent();
    const QStringList steps = key.split('.');
    for (auto _ : state) {
        benchmark::DoNotOptimize(root.value(steps[0])
                                     .toObject()
                                     .value(steps[1])
                                     .toObject()
                                     .value(steps[2])
                                     .toObject()
                                     .value(steps[3])
                                     .toInt());
    }
}

void setOurs(benchmark::State &state)
{
    ModuleObject root;
    ModuleObject *node = root.r(key);
    int sum = 0;
    QObject::connect(node, &ModuleObject::changed, node,
                     [&](const QVariant &now) { sum += now.toInt(); });
    int value = 0;
    for (auto _ : state)
        node->set(nullptr, ++value, true);
    benchmark::DoNotOptimize(sum);
}

void setQStandardItem(benchmark::State &state)
{
    QStandardItemModel model;
    auto *item = new QStandardItem;
    model.appendRow(item);
    int sum = 0;
    QObject::connect(&model, &QStandardItemModel::itemChanged, &model,
                     [&](QStandardItem *now) { sum += now->data().toInt(); });
    int value = 0;
    for (auto _ : state)
        item->setData(++value);
    benchmark::DoNotOptimize(sum);
}
} // namespace

BENCHMARK(lookupOurs)->Name("store_lookup/ours");
BENCHMARK(lookupGetter)->Name("store_lookup/ours_getter");
BENCHMARK(lookupQJson)->Name("store_lookup/qjson");
BENCHMARK(setOurs)->Name("store_set/ours");
BENCHMARK(setQStandardItem)->Name("store_set/qstandarditem");
