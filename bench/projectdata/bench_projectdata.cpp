#include "project.h"

#include <QApplication>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <future>
#include <thread>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    // Lines of the logs go to their files as in a panel, but not among the results.
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &text) {
        if (type == QtCriticalMsg || type == QtFatalMsg)
            std::fprintf(stderr, "%s\n", qPrintable(text));
    });
    // As in a panel the process has more than one thread, which makes locks and allocations real.
    std::promise<void> end;
    std::thread second([&] { end.get_future().wait(); });

    benchmark::Initialize(&argc, argv);
    const bool isKnown = !benchmark::ReportUnrecognizedArguments(argc, argv);
    if (isKnown)
        benchmark::RunSpecifiedBenchmarks();
    Project::close();
    end.set_value();
    second.join();
    return isKnown ? 0 : 1;
}
