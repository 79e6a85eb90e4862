#include <zeplet/log/flog.h>
#include <zeplet/log/pluginlogfilemanager.h>
#include <zeplet/log/qlog.h>

#include "logfiles.h"
#include "messagecapture.h"

#include <QTemporaryDir>
#include <QtTest>

#include <thread>
#include <vector>

using namespace zeplet;

namespace
{

constexpr int threads = 8;
// Short in the normal suite; ZEPLET_STRESS_ROUNDS makes it longer.
const int linesPerThread = 100 * qMax(5, qEnvironmentVariableIntValue("ZEPLET_STRESS_ROUNDS"));

template <typename Work>
void runOnThreads(Work work)
{
    std::vector<std::thread> running;
    for (int thread = 0; thread < threads; ++thread) {
        running.emplace_back([=] { work(thread); });
    }
    for (std::thread &thread : running) {
        thread.join();
    }
}

} // namespace

class StressLog : public QObject
{
    Q_OBJECT

private slots:
    void everyLineArrivesWhole()
    {
        const QTemporaryDir directory;
        const QString base = directory.filePath("zeplet/shared");
        const QString filling(700, QLatin1Char('.'));
        MessageCapture capture;
        runOnThreads([&](int thread) {
            for (int i = 0; i < linesPerThread; ++i) {
                FLog("", "", base, "log") << thread << "/" << i << filling << ";";
                QLog("", "", "") << thread;
            }
        });
        QCOMPARE(capture.take().size(), threads * linesPerThread);

        // Many rounds fill more than one file; a thread never goes back to an earlier one.
        QStringList lines;
        for (const QString &file : logfiles::below(directory.path())) {
            lines += logfiles::read(directory.filePath(file)).split('\n', Qt::SkipEmptyParts);
        }
        QCOMPARE(lines.size(), threads * linesPerThread);
        std::vector<int> next(threads, 0);
        for (const QString &line : qAsConst(lines)) {
            const int thread = line.section('/', 0, 0).toInt();
            // A thread's lines come in its order, and nothing comes between their parts.
            const QString number = QString::number(next[size_t(thread)]++);
            QCOMPARE(line, QString::number(thread) + '/' + number + filling + ';');
        }
    }

    void rotatesOnce()
    {
        const QTemporaryDir directory;
        const QString base = directory.filePath("zeplet/rotating");
        QVERIFY(logfiles::makeSparse(base + '_' + logfiles::today() + ".log", 10485760));
        runOnThreads([&](int) {
            for (int i = 0; i < linesPerThread; ++i) {
                FLog("", "", base, "log") << "x";
            }
        });
        const QString second = base + '_' + logfiles::today() + "_1.log";
        QCOMPARE(logfiles::read(second), QString("x\n").repeated(threads * linesPerThread));
        QCOMPARE(logfiles::below(directory.path()).size(), 2);
    }

    void cleanUpWhileLogging()
    {
        const QTemporaryDir directory;
        const QString root = directory.filePath("zeplet");
        PluginLogFileManager &manager = *PluginLogFileManager::instance();
        MessageCapture capture;
        runOnThreads([&](int thread) {
            const QString base = root + "/p" + QString::number(thread);
            for (int i = 0; i < linesPerThread / 10; ++i) {
                FLog("", "", base, "log") << "text";
                if (thread == 0) {
                    manager.cleanupOldFiles(base, 0, false);
                }
                if (thread == 1) {
                    manager.recoverFromWriteFailure(base);
                }
                if (thread == 2) {
                    manager.rescanTotalLogSize(root);
                }
            }
        });
        const QStringList messages = capture.take();
        QVERIFY(!messages.filter("Cleaned old log file:").isEmpty());
        QVERIFY(messages.filter(" failed").isEmpty());
    }
};

QTEST_GUILESS_MAIN(StressLog)
#include "stress_log.moc"
