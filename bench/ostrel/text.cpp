#include "points.h"

#include <ostrel/moduleobject.h>

#include <QJsonDocument>

#include <benchmark/benchmark.h>
#include <rapidjson/document.h>
#include <rapidjson/prettywriter.h>
#include <rapidjson/stringbuffer.h>

namespace
{
void outOurs(benchmark::State &state)
{
    ostrel::ModuleObject root;
    root.fromJsonText(nullptr, pointText());
    for (auto _ : state)
        benchmark::DoNotOptimize(root.toJsonText(true));
}

void outQJson(benchmark::State &state)
{
    const QJsonDocument document(pointRecords());
    for (auto _ : state)
        benchmark::DoNotOptimize(document.toJson());
}

void outRapidJson(benchmark::State &state)
{
    rapidjson::Document document;
    document.Parse<rapidjson::kParseFullPrecisionFlag>(pointText().constData());
    for (auto _ : state) {
        rapidjson::StringBuffer text;
        rapidjson::PrettyWriter<rapidjson::StringBuffer> writer(text);
        document.Accept(writer);
        benchmark::DoNotOptimize(text.GetString());
    }
}

void inOurs(benchmark::State &state)
{
    const QByteArray &text = pointText();
    for (auto _ : state) {
        ostrel::ModuleObject root;
        benchmark::DoNotOptimize(root.fromJsonText(nullptr, text));
    }
}

void inQJson(benchmark::State &state)
{
    const QByteArray &text = pointText();
    for (auto _ : state)
        benchmark::DoNotOptimize(QJsonDocument::fromJson(text));
}

void inRapidJson(benchmark::State &state)
{
    const QByteArray &text = pointText();
    for (auto _ : state) {
        rapidjson::Document document;
        document.Parse<rapidjson::kParseFullPrecisionFlag>(text.constData(), size_t(text.size()));
        benchmark::DoNotOptimize(document);
    }
}
} // namespace

BENCHMARK(outOurs)->Name("store_text_out/ours")->Unit(benchmark::kMillisecond);
BENCHMARK(outQJson)->Name("store_text_out/qjson")->Unit(benchmark::kMillisecond);
BENCHMARK(outRapidJson)->Name("store_text_out/rapidjson")->Unit(benchmark::kMillisecond);
BENCHMARK(inOurs)->Name("store_text_in/ours")->Unit(benchmark::kMillisecond);
BENCHMARK(inQJson)->Name("store_text_in/qjson")->Unit(benchmark::kMillisecond);
BENCHMARK(inRapidJson)->Name("store_text_in/rapidjson")->Unit(benchmark::kMillisecond);
