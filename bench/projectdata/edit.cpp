#include "project.h"
#include "syncclock.h"

#include <QFile>
#include <QProcess>

#include <benchmark/benchmark.h>
#include <chrono>
#include <ctime>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
double now()
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

void whole(benchmark::State &state)
{
    Project &project = Project::instance();
    project.prepare(int(state.range(0)));
    for (auto _ : state) {
        const double start = now();
        project.edit();
        state.SetIterationTime(now() - start);
    }
}

// Everything but rsync and the sync of the disk: an rsync that ends at once leaves what it costs to
// start a process and to wait for it with us, and the clock around the syncs is taken off.
void ownShare(benchmark::State &state)
{
    Project &project = Project::instance();
    project.prepare(int(state.range(0)));
    const Project::WithoutRsync withoutRsync;
    for (auto _ : state) {
        const double start = now();
        const double synced = secondsInSync();
        project.edit();
        state.SetIterationTime(now() - start - (secondsInSync() - synced));
    }
}

// The first edit after the project was opened, when nothing is kept yet.
void firstEdit(benchmark::State &state)
{
    Project &project = Project::instance();
    for (auto _ : state) {
        project.load(int(state.range(0)));
        const double start = now();
        project.edit();
        state.SetIterationTime(now() - start);
    }
}

// Changes a few digits of the file, and its time by whole seconds, as an edit does. Not timed.
void touchFile(const QString &path)
{
    static int edits = 0;
    QFile file(path);
    struct stat old = {};
    const bool opened = file.open(QIODevice::ReadWrite) && ::fstat(file.handle(), &old) == 0;
    QByteArray content = file.readAll();
    const int at = content.indexOf("\"x\": ", edits * 7919 % (content.size() / 2));
    content.replace(at + 5, 1, QByteArray::number(1 + edits++ % 9));
    const timespec times[2] = {{0, UTIME_NOW}, {old.st_mtim.tv_sec + 1, 0}};
    if (!opened || at < 0 || !file.seek(0) || file.write(content) != content.size() || !file.flush()
        || ::futimens(file.handle(), times) != 0 || ::fsync(file.handle()) != 0)
        qFatal("%s can't be changed", qPrintable(path));
}

void rsyncAlone(benchmark::State &state)
{
    Project &project = Project::instance();
    project.prepare(int(state.range(0)));
    for (auto _ : state) {
        touchFile(project.file());
        const double start = now();
        QProcess rsync;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("RSYNC_PASSWORD", "729413");
        rsync.setProcessEnvironment(environment);
        rsync.start("rsync",
                    {"-tvz", "--timeout=10", "--contimeout=10", "--progress", project.file(),
                     "brisa@127.0.0.1::" + Project::remotePath()});
        if (!rsync.waitForFinished(30000) || rsync.exitCode() != 0)
            qFatal("rsync failed: %s", rsync.readAllStandardError().constData());
        state.SetIterationTime(now() - start);
    }
}

void perSize(benchmark::internal::Benchmark *benchmark)
{
    benchmark->Arg(10)->Arg(1000)->Arg(10000)->Iterations(3)->UseManualTime()->Unit(
        benchmark::kMillisecond);
}
} // namespace

BENCHMARK(whole)->Name("point_edit/ours")->Apply(perSize);
BENCHMARK(ownShare)->Name("point_edit/own_share")->Apply(perSize);
BENCHMARK(rsyncAlone)->Name("point_edit/rsync")->Apply(perSize);
BENCHMARK(firstEdit)
    ->Name("point_edit/first")
    ->Arg(10000)
    ->Iterations(1)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
