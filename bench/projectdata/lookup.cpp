#include "../ostrel/points.h"
#include "project.h"

#include <ostrel/moduleobject.h>
#include <zeplet/interface/interfacemanager.h>
#include <zeplet/projectdata/pointrecords.h>

#include <QJsonObject>

#include <benchmark/benchmark.h>

using ostrel::ModuleObject;

namespace
{
constexpr int records = 10000;
const QString field = QStringLiteral("name");

QString someName(const QString &letter)
{
    static int looks = 0;
    return letter + QString::number(++looks * 7919 % records);
}

ModuleObject *points()
{
    Project::instance().prepare(records);
    return m("tavik.project.point._list");
}

// Variables with the same positions as the points have.
ModuleObject *variables()
{
    ModuleObject *list = m("tavik.project.var._list");
    if (list->childCount() == records)
        return list;
    QJsonArray made;
    for (const QJsonValue &point : pointRecords()) {
        made.append(QJsonObject {{"id", made.size()},
                                 {"name", QString("v%1").arg(made.size())},
                                 {"type", "robtarget"},
                                 {"pers", false},
                                 {"description", ""},
                                 {"value", point["value"]["[0][0][0]"]}});
    }
    list->importFromJson(nullptr, made, true, true, false);
    return list;
}

void findPoint(benchmark::State &state)
{
    ModuleObject *list = points();
    for (auto _ : state)
        benchmark::DoNotOptimize(zeplet::findPointByName(list, someName("P"), nullptr));
}

void walkPoints(benchmark::State &state)
{
    ModuleObject *list = points();
    for (auto _ : state) {
        const QString name = someName("P");
        int place = 0;
        while (list->childAt(place)->getStr(field, QString()).compare(name, Qt::CaseInsensitive))
            ++place;
        benchmark::DoNotOptimize(list->childAt(place));
    }
}

void pointObject(benchmark::State &state)
{
    points();
    for (auto _ : state)
        benchmark::DoNotOptimize(zeplet::zepletInterface()->getPointObjDataByName(someName("p")));
}

void lookupAndExport(benchmark::State &state, ModuleObject *list, const QString &letter)
{
    for (auto _ : state) {
        ModuleObject *record = list->childAt(list->indexOf(field, someName(letter)));
        benchmark::DoNotOptimize(record->exportToJson(true).toObject());
    }
}

void pointExport(benchmark::State &state)
{
    lookupAndExport(state, points(), "p");
}

void variableObject(benchmark::State &state)
{
    variables();
    for (auto _ : state)
        benchmark::DoNotOptimize(zeplet::zepletInterface()->getVarObjDataByName(someName("v")));
}

void variableExport(benchmark::State &state)
{
    lookupAndExport(state, variables(), "v");
}
} // namespace

BENCHMARK(findPoint)->Name("point_find/ours")->Unit(benchmark::kMicrosecond);
BENCHMARK(walkPoints)->Name("point_find/walk")->Unit(benchmark::kMicrosecond);
BENCHMARK(pointObject)->Name("point_object/ours")->Unit(benchmark::kMicrosecond);
BENCHMARK(pointExport)->Name("point_object/export")->Unit(benchmark::kMicrosecond);
BENCHMARK(variableObject)->Name("variable_object/ours")->Unit(benchmark::kMicrosecond);
BENCHMARK(variableExport)->Name("variable_object/export")->Unit(benchmark::kMicrosecond);
