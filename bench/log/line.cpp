#include <benchmark/benchmark.h>

#include <zeplet/log/flog.h>

#include <QDir>
#include <QTemporaryDir>

#include <fcntl.h>
#include <spdlog/sinks/basic_file_sink.h>
#include <spdlog/spdlog.h>
#include <sys/stat.h>
#include <unistd.h>

// A line of about a hundred bytes: header, text and a number.
namespace
{

const QString prefix = QStringLiteral("[I|05/06 10:30:00.000]");
const QString text
    = QStringLiteral("<monitor> watched key changed, name=brisa.r.power, value=on, count=");

void logLineOurs(benchmark::State &state)
{
    const QTemporaryDir directory;
    const QString base = directory.filePath(QStringLiteral("zeplet/monitor"));
    const QString ext = QStringLiteral("log");
    const QString tag;
    const QVariant count = 4711;
    for (auto _ : state) {
        zeplet::FLog(prefix, tag, base, ext) << text << count;
    }
}
BENCHMARK(logLineOurs)->Name("log_line/ours");

void logLineRaw(benchmark::State &state)
{
    const QTemporaryDir directory;
    QDir(directory.path()).mkdir(QStringLiteral("zeplet"));
    const QByteArray path
        = directory.filePath(QStringLiteral("zeplet/monitor_20240506.log")).toUtf8();
    const QByteArray line = (prefix + text + QStringLiteral("4711\n")).toUtf8();
    struct stat status = {};
    for (auto _ : state) {
        const int file = ::open(path.constData(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0666);
        ::fstat(file, &status);
        if (::write(file, line.constData(), size_t(line.size())) != line.size()) {
            state.SkipWithError("write failed");
        }
        ::close(file);
    }
}
BENCHMARK(logLineRaw)->Name("log_line/raw");

// Keeps its file open between lines, and so would miss one that somebody deletes.
void logLineSpdlog(benchmark::State &state)
{
    const QTemporaryDir directory;
    const std::string path = directory.filePath(QStringLiteral("monitor.log")).toStdString();
    const auto sink = std::make_shared<spdlog::sinks::basic_file_sink_mt>(path);
    spdlog::logger logger("monitor", sink);
    logger.set_pattern("[I|%m/%d %H:%M:%S.%e]%v");
    logger.flush_on(spdlog::level::info);
    const std::string line = text.toStdString();
    for (auto _ : state) {
        logger.info("{}{}", line, 4711);
    }
}
BENCHMARK(logLineSpdlog)->Name("log_line/spdlog");

} // namespace
