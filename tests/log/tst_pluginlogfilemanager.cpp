#include <zeplet/log/flog.h>
#include <zeplet/log/pluginlogfilemanager.h>

#include "logfiles.h"
#include "messagecapture.h"
#include "testcolumns.h"

#include <QTemporaryDir>
#include <QtTest>

#include <ctime>

using namespace zeplet;

namespace
{

constexpr qint64 MiB = 1024 * 1024;
constexpr qint64 Full = 10 * MiB;

struct LogFile {
    QString path;
    qint64 size;
    int age;
};

} // namespace
Q_DECLARE_METATYPE(LogFile)

// The manager is one per process: each test has a root of its own and starts with a scan of it.
class TestPluginLogFileManager : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_directory.reset(new QTemporaryDir);
        m_root = m_directory->filePath("zeplet");
        QVERIFY(QDir().mkpath(m_root));
        m_manager.rescanTotalLogSize(m_root);
    }

    void cleanup() { m_directory.reset(); }

    void properName_data()
    {
        const auto row = testcolumns<QStringList, QString>("present", "expected");
        row("n0", {}, "n0_%1.log");
        row("n1", {"n1_%1.log"}, "n1_%1.log");
        row("n2", {"n2_%1.log", "n2_%1_3.log"}, "n2_%1_3.log"); // a gap
        row("n3", {"n3_%1_9.log", "n3_%1_10.log"}, "n3_%1_10.log"); // by number, not by letter
        row("n4", {"n4_x_%1_5.log", "xn4_%1_5.log"}, "n4_%1.log"); // longer names are others
        row("n5", {"n5_20240506_7.log", "n5_20240506.log"}, "n5_%1.log"); // other days are others
        row("n6", {"n6_%1_4.txt", "n6_%1_x.log"}, "n6_%1.log"); // as are other endings
        row("n[9]*", {"n[9]*_%1_2.log"}, "n[9]*_%1_2.log"); // pattern characters are text
        row("com.maker.p", {"com.maker.p_%1_2.log"}, "com.maker.p_%1_2.log");
        row("sub/n10", {"sub/n10_%1_1.log"}, "sub/n10_%1_1.log");
    }

    void properName()
    {
        QFETCH(QStringList, present);
        QFETCH(QString, expected);
        const QString base = path(QTest::currentDataTag());
        for (QString &file : present) {
            QVERIFY(logfiles::makeSparse(path(file.replace("%1", logfiles::today())), 10));
        }
        const QString file = path(expected.replace("%1", logfiles::today()));
        QCOMPARE(m_manager.getProperLogFileName(base, "log"), file);
        // The stream takes the same way.
        FLog("", "", base, "log") << "line";
        QVERIFY(logfiles::read(file).endsWith("line\n"));
    }

    void ownExtension()
    {
        const QString file = path("n_" + logfiles::today() + "_4.tar.x");
        QVERIFY(logfiles::makeSparse(file, 10));
        QCOMPARE(m_manager.getProperLogFileName(path("n"), "tar.x"), file);
    }

    void rotatesOnceFull()
    {
        const QString base = path("rotates");
        const auto file = [&](int index) { return today(base, index); };
        QVERIFY(logfiles::makeSparse(file(0), Full - 1));
        FLog("", "", base, "log") << "last of the first";
        QCOMPARE(QFileInfo(file(0)).size(), Full - 1 + 18);
        FLog("", "", base, "log") << "first of the second";
        QCOMPARE(QFileInfo(file(0)).size(), Full - 1 + 18);
        QCOMPARE(logfiles::read(file(1)), QString("first of the second\n"));
        QVERIFY(logfiles::makeSparse(file(1), Full));
        QCOMPARE(m_manager.getProperLogFileName(base, "log"), file(2));

        const QString last = today(path("huge"), 2147483647);
        QVERIFY(logfiles::makeSparse(last, Full));
        QCOMPARE(m_manager.getProperLogFileName(path("huge"), "log"), last);
    }

    void rotationCleansUp()
    {
        make({{"old_20240506.log", 195 * MiB, 100}, {"older_20240506.log", 1 * MiB, 200}});
        const QString base = path("crowd");
        const QString first = today(base, 0);
        QVERIFY(logfiles::makeSparse(first, Full));
        m_manager.rescanTotalLogSize(m_root);

        MessageCapture capture;
        m_manager.getProperLogFileName(base, "log");
        QCOMPARE(capture.take(),
                 QStringList({"Cleaned old log file: older_20240506.log size: 1048576",
                              "Cleaned old log file: old_20240506.log size: 204472320"}));
        QVERIFY(QFileInfo::exists(first));
    }

    void newDayStartsAtIndexZero()
    {
        const QByteArray zone = qgetenv("TZ");
        const auto setZone = [](const QByteArray &name) {
            name.isNull() ? qunsetenv("TZ") : qputenv("TZ", name);
            ::tzset();
        };
        const auto restore = qScopeGuard([&] { setZone(zone); });
        const QString base = path("days");
        const auto name = [&] { return m_manager.getProperLogFileName(base, "log"); };
        // These two clocks are 26 hours apart: never the same date.
        setZone("EARLY+12");
        const QString before = logfiles::today();
        QTRY_COMPARE(name(), m_manager.buildFileName(base, before, 0, "log"));
        QVERIFY(logfiles::makeSparse(name(), Full));
        QCOMPARE(name(), m_manager.buildFileName(base, before, 1, "log"));
        setZone("LATE-14");
        const QString after = logfiles::today();
        QVERIFY(before != after);
        QTRY_COMPARE(name(), m_manager.buildFileName(base, after, 0, "log"));
        setZone(zone);
        QTRY_VERIFY(name().contains(logfiles::today())); // the next test's date is this one
    }

    void directoryIsMadeAgain()
    {
        const QString base = path("deep/er/again");
        const QString file = m_manager.getProperLogFileName(base, "log");
        QVERIFY(QFileInfo(base).dir().exists());
        QVERIFY(QDir(m_root).removeRecursively());
        QCOMPARE(m_manager.getProperLogFileName(base, "log"), file);
        FLog("", "", base, "log") << "back";
        QCOMPARE(logfiles::read(file), QString("back\n"));
    }

    void cleansUp_data()
    {
        const auto row
            = testcolumns<QVector<LogFile>, int, bool, QString>("files", "target", "force", "left");
        const QVector<LogFile> byAge {{"b.log", 10, 300},
                                      {"sub/c.log", 20, 200},
                                      {"a.log", 30, 100},
                                      {"sub/x/d.log", 40, 50}};
        row("within the target", byAge, 100, false, "a.log b.log sub/c.log sub/x/d.log");
        row("just above it", byAge, 99, false, "a.log sub/c.log sub/x/d.log");
        row("oldest first, over all directories", byAge, 70, false, "a.log sub/x/d.log");
        row("everything", byAge, -1, false, "");
        row("forced, one is enough", byAge, 100, true, "a.log sub/c.log sub/x/d.log");
        row("forced, more are needed", byAge, 50, true, "sub/x/d.log");
        row("one time: by path",
            {{"b.log", 1, 9}, {"a/z.log", 1, 9}, {"a.log", 1, 9}, {"c.log", 1, 9}}, 2, false,
            "b.log c.log");
        row("other and hidden files stay",
            {{"a.txt", 90, 9},
             {"a.log.1", 9, 9},
             {"log", 9, 9},
             {".log", 9, 9},
             {".a.log", 9, 9},
             {".trash/a.log", 9, 9},
             {"b.log", 5, 1}},
            0, false, ".a.log .log .trash/a.log a.log.1 a.txt log");
    }

    void cleansUp()
    {
        QFETCH(QVector<LogFile>, files);
        QFETCH(int, target);
        QFETCH(bool, force);
        make(files);
        MessageCapture capture;
        m_manager.rescanTotalLogSize(m_root);
        m_manager.cleanupOldFiles(path("any/base"), target, force);
        const QString left = logfiles::below(m_root).join(' ');
        QTEST(left, "left");
    }

    void missingRootIsLeftMissing()
    {
        QVERIFY(QDir().rmdir(m_root));
        m_manager.cleanupOldFiles(path("p"), 0, true);
        QVERIFY(!QFileInfo::exists(m_root));
    }

    void linksAreLeftAlone()
    {
        const QString outside = m_directory->filePath("outside");
        QVERIFY(logfiles::makeSparse(outside + "/precious.log", 300 * MiB));
        QVERIFY(QFile::link(outside, path("way_out")));
        QVERIFY(QFile::link(outside + "/precious.log", path("link.log")));
        QVERIFY(QFile::link(m_root, path("loop")));
        make({{"own.log", 1, 1}});

        MessageCapture capture;
        m_manager.rescanTotalLogSize(m_root);
        // Would clean up at once if the linked file were counted.
        m_manager.updateFileSize(path("p_20240506.log"), 1);
        QCOMPARE(capture.take(), QStringList());
        m_manager.cleanupOldFiles(path("p"), -1, true);
        QCOMPARE(capture.take(), QStringList("Cleaned old log file: own.log size: 1"));
        QVERIFY(QFileInfo::exists(outside + "/precious.log"));
        QVERIFY(QFileInfo(path("link.log")).isSymLink());
    }

    void growthBeyondTheBudgetCleansUp()
    {
        make({{"a_20240506.log", 100 * MiB, 300}, {"b_20240506.log", 100 * MiB, 200}});
        m_manager.rescanTotalLogSize(m_root);
        MessageCapture capture;
        m_manager.updateFileSize(path("grows_20240506.log"), 0);
        QCOMPARE(capture.take(), QStringList());
        // That was the budget to the byte; now one line exceeds it.
        const QString base = path("stream2");
        FLog("", "", base, "log") << "one line more";
        QCOMPARE(capture.take(),
                 QStringList("Cleaned old log file: a_20240506.log size: 104857600"));
    }

    void sizeOfOneFileIsCountedOnce()
    {
        make({{"only_20240506.log", 1, 1}});
        m_manager.rescanTotalLogSize(m_root);
        MessageCapture capture;
        // 150 MiB three times over would exceed the budget; a shrunken file gives room back.
        for (const qint64 size : {150 * MiB, 150 * MiB, 150 * MiB, 20 * MiB}) {
            m_manager.updateFileSize(path("twice_20240506.log"), size);
        }
        m_manager.updateFileSize(path("other_20240506_3.log"), 179 * MiB);
        m_manager.updateFileSize(path("no_date.log"), 500 * MiB); // not counted at all
        QCOMPARE(capture.take(), QStringList());
        m_manager.updateFileSize(path("third_20240506.log"), 2 * MiB);
        QCOMPARE(capture.take(), QStringList("Cleaned old log file: only_20240506.log size: 1"));
    }

    void recoveryDeletesTheOldest_data()
    {
        const auto row = testcolumns<QVector<LogFile>, QString>("files", "left");
        row("50.00", {{"a.log", 25 * MiB, 9}, {"b.log", 25 * MiB, 1}}, "b.log"); // enough: one
        row("195.00", {{"a.log", 1 * MiB, 9}, {"b.log", 4 * MiB, 5}, {"c.log", 190 * MiB, 1}},
            "c.log"); // too much: down to the target
        row("0.33", {{"a.log", MiB / 3, 9}}, "");
        row("0.00", {}, "");
    }

    void recoveryDeletesTheOldest()
    {
        QFETCH(QVector<LogFile>, files);
        make(files);
        if (files.isEmpty()) {
            QVERIFY(QDir().rmdir(m_root));
        }
        MessageCapture capture;
        m_manager.recoverFromWriteFailure(path("p/q"));
        QCOMPARE(capture.take().value(0),
                 "W: [zeplet-log-cleanup] write failure, try to free old logs. dir=" + m_root
                     + " total=" + QTest::currentDataTag()
                     + "MB target=190.00MB forceDeleteOne=true");
        const QString left = logfiles::below(m_root).join(' ');
        QTEST(left, "left");
        QVERIFY(QFileInfo::exists(m_root));
    }

    void handlerMayLogDuringCleanUp()
    {
        make({{"a.log", 1, 2}, {"b.log", 1, 1}});
        m_manager.rescanTotalLogSize(m_root);
        const QString base = m_directory->filePath("elsewhere/handler");
        MessageCapture capture([&](const QString &line) { FLog("", "", base, "log") << line; });
        m_manager.cleanupOldFiles(path("p"), 0, false);
        QCOMPARE(
            logfiles::read(m_manager.buildFileName(base, logfiles::today(), 0, "log")),
            QString("Cleaned old log file: a.log size: 1\nCleaned old log file: b.log size: 1\n"));
    }

private:
    QString today(const QString &base, int index) const
    {
        return m_manager.buildFileName(base, logfiles::today(), index, "log");
    }
    QString path(const QString &name) const { return m_root + '/' + name; }
    void make(const QVector<LogFile> &files) const
    {
        const QDateTime now = QDateTime::fromSecsSinceEpoch(1700000000);
        for (const LogFile &file : files) {
            QVERIFY(logfiles::makeSparse(path(file.path), file.size, now.addSecs(-file.age)));
        }
    }

    PluginLogFileManager &m_manager = *PluginLogFileManager::instance();
    QScopedPointer<QTemporaryDir> m_directory;
    QString m_root;
};

QTEST_GUILESS_MAIN(TestPluginLogFileManager)
#include "tst_pluginlogfilemanager.moc"
