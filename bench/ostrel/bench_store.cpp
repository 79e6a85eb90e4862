#include <benchmark/benchmark.h>

#include <QGuiApplication>

#include <future>
#include <thread>

int main(int argc, char **argv)
{
    QGuiApplication application(argc, argv);
    // As in a panel the process has more than one thread, which makes locks and allocations real.
    std::promise<void> end;
    std::thread second([&] { end.get_future().wait(); });

    benchmark::Initialize(&argc, argv);
    const bool isKnown = !benchmark::ReportUnrecognizedArguments(argc, argv);
    if (isKnown)
        benchmark::RunSpecifiedBenchmarks();
    end.set_value();
    second.join();
    return isKnown ? 0 : 1;
}
