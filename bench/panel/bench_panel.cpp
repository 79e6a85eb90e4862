// Start of the panel's process to the end of its first paint. Each start is a process of its own:
// this program again, with the moment of its birth and a plugin directory as arguments.
#include "mainwindow.h"
#include "panelapplication.h"
#include "panelsession.h"
#include "pluginloader.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace
{

constexpr int pluginCount = 100;

qint64 nanoseconds()
{
    return std::chrono::nanoseconds(std::chrono::steady_clock::now().time_since_epoch()).count();
}

/** Ends the process after the first paint, with the time since its birth and the small plugins. */
class FirstPaint : public QObject
{
public:
    FirstPaint(qint64 birth, const panel::PanelSession &session)
        : m_birth(birth)
        , m_session(session)
    {
        session.window().installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            QTimer::singleShot(0, this, [this] { report(); });
        return false;
    }

private:
    void report() const
    {
        int running = 0;
        for (const panel::PluginRecord &record : m_session.loader().records())
            running += record.state == panel::PluginRecord::Running
                && record.name().startsWith(QLatin1String("small_plugin_"));
        std::printf("%lld %d\n", static_cast<long long>(nanoseconds() - m_birth), running);
        std::fflush(stdout);
        std::_Exit(0);
    }

    qint64 m_birth;
    const panel::PanelSession &m_session;
};

int runChild(int argc, char **argv)
{
    panel::PanelApplication application(argc, argv);
    panel::PanelOptions options;
    options.pluginDirectories = QStringList {application.arguments().at(3)};
    options.runtimeDirectory = application.arguments().at(4);
    options.settingsFile = options.runtimeDirectory + QStringLiteral("/settings.json");
    panel::PanelSession session(options);
    QString error;
    if (!session.start(&error))
        return 1;
    const FirstPaint firstPaint(application.arguments().at(2).toLongLong(), session);
    session.window().update();
    return application.exec();
}

/** Copies of the small plugin, each with a name of its own in tag and code. */
void fill(const QString &directory, int count)
{
    QFile source(QStringLiteral(SMALL_PLUGIN));
    if (!source.open(QIODevice::ReadOnly))
        qFatal("%s can't be read", SMALL_PLUGIN);
    const QByteArray content = source.readAll();
    for (int i = 0; i < count; ++i) {
        const QByteArray name = "small_plugin_" + QByteArray::number(i).rightJustified(3, '0');
        QFile file(directory + '/' + name + ".so");
        if (!file.open(QIODevice::WriteOnly)
            || file.write(QByteArray(content).replace("small_plugin_000", name)) < 0)
            qFatal("%s can't be written", qPrintable(file.fileName()));
    }
}

void panelStart(benchmark::State &state, int count)
{
    const QTemporaryDir directory;
    const QString plugins = directory.filePath(QStringLiteral("plugins"));
    QDir().mkpath(plugins);
    fill(plugins, count);
    for (auto _ : state) {
        QProcess child;
        child.setStandardErrorFile(QProcess::nullDevice());
        child.start(QStringLiteral("/proc/self/exe"),
                    {"--child", QString::number(nanoseconds()), plugins,
                     directory.filePath(QStringLiteral("run"))});
        child.waitForFinished();
        const QList<QByteArray> answer = child.readAllStandardOutput().trimmed().split(' ');
        // The panel's own plugins run in both, and do not count.
        if (answer.size() != 2 || answer.at(1).toInt() != count) {
            state.SkipWithError("the panel did not start with its plugins");
            break;
        }
        state.SetIterationTime(answer.at(0).toDouble() / 1e9);
    }
}

} // namespace

BENCHMARK_CAPTURE(panelStart, with100, pluginCount)
    ->Name("panel_start/with100")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(3);
BENCHMARK_CAPTURE(panelStart, without, 0)
    ->Name("panel_start/without")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(3);

int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (argc == 5 && qstrcmp(argv[1], "--child") == 0)
        return runChild(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
