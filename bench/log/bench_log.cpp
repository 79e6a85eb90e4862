#include <benchmark/benchmark.h>

#include <QtGlobal>

#include <future>
#include <thread>

namespace
{

void discard(QtMsgType, const QMessageLogContext &, const QString &) { }

} // namespace

int main(int argc, char **argv)
{
    // What a host does with messages is its own affair.
    qInstallMessageHandler(discard);
    // As in a panel the process has more than one thread, which makes locks and allocations real.
    std::promise<void> end;
    std::thread second([&] { end.get_future().wait(); });

    benchmark::Initialize(&argc, argv);
    const bool isKnown = !benchmark::ReportUnrecognizedArguments(argc, argv);
    if (isKnown) {
        benchmark::RunSpecifiedBenchmarks();
    }
    end.set_value();
    second.join();
    return isKnown ? 0 : 1;
}
