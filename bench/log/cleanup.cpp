#include <benchmark/benchmark.h>

#include <zeplet/log/pluginlogfilemanager.h>

#include <QDir>
#include <QTemporaryDir>

#include <chrono>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

constexpr int plugins = 4;
constexpr int filesPerPlugin = 250;
constexpr off_t fileSize = 209715;

/** 200 MiB of allocated log files below "zeplet", a directory for each plugin. */
bool fill(const QString &root)
{
    for (int i = 0; i < plugins * filesPerPlugin; ++i) {
        const QString directory = root + QStringLiteral("/plugin") + QString::number(i % plugins);
        const QString path
            = directory + QStringLiteral("/plugin_20240506_") + QString::number(i) + ".log";
        QDir().mkpath(directory);
        const int file = ::open(qPrintable(path), O_WRONLY | O_CREAT | O_CLOEXEC, 0666);
        const bool isAllocated = ::posix_fallocate(file, 0, fileSize) == 0;
        ::close(file);
        if (!isAllocated) {
            return false;
        }
    }
    return true;
}

qint64 rawCleanUp(int parent, const char *name)
{
    qint64 freed = 0;
    DIR *directory = ::fdopendir(::openat(parent, name, O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    while (const dirent *entry = ::readdir(directory)) {
        if (entry->d_name[0] == '.') {
            continue;
        }
        struct stat status = {};
        ::fstatat(::dirfd(directory), entry->d_name, &status, AT_SYMLINK_NOFOLLOW);
        if (S_ISDIR(status.st_mode)) {
            freed += rawCleanUp(::dirfd(directory), entry->d_name);
        } else if (::unlinkat(::dirfd(directory), entry->d_name, 0) == 0) {
            freed += status.st_size;
        }
    }
    ::closedir(directory);
    return freed;
}

/**
 * In memory where the system has such a place: a disk's journal takes ten times as long as either
 * side, now and then, and would hide any difference.
 */
QString quietPlace()
{
    const QString memory = QStringLiteral("/dev/shm");
    return (QDir(memory).exists() ? memory : QDir::tempPath())
        + QStringLiteral("/bench_log-XXXXXX");
}

/** Times `cleanUp` alone; the files are made, and looked for afterwards, off the clock. */
template <typename CleanUp>
void measure(benchmark::State &state, CleanUp cleanUp)
{
    zeplet::PluginLogFileManager &manager = *zeplet::PluginLogFileManager::instance();
    for (auto _ : state) {
        const QTemporaryDir directory(quietPlace());
        const QString root = directory.filePath(QStringLiteral("zeplet"));
        if (!fill(root)) {
            state.SkipWithError("no room for the files");
            break;
        }
        manager.rescanTotalLogSize(root);
        const auto start = std::chrono::steady_clock::now();
        cleanUp(manager, root);
        const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
        state.SetIterationTime(taken.count());
        if (!QDir(root + QStringLiteral("/plugin0")).isEmpty(QDir::Files)) {
            state.SkipWithError("files were left");
        }
    }
}

void logCleanUpOurs(benchmark::State &state)
{
    measure(state, [](zeplet::PluginLogFileManager &manager, const QString &root) {
        manager.cleanupOldFiles(root + QStringLiteral("/monitor"), 0, false);
    });
}
BENCHMARK(logCleanUpOurs)->Name("log_cleanup/ours")->UseManualTime();

void logCleanUpRaw(benchmark::State &state)
{
    measure(state, [](zeplet::PluginLogFileManager &, const QString &root) {
        benchmark::DoNotOptimize(rawCleanUp(AT_FDCWD, qPrintable(root)));
    });
}
BENCHMARK(logCleanUpRaw)->Name("log_cleanup/raw")->UseManualTime();

} // namespace
