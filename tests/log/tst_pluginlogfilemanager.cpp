#include <zeplet/log/flog.h>
#include <zeplet/log/pluginlogfilemanager.h>

#include "logfiles.h"
#include "messagecapture.h"

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
    void init();
    void cleanup();

    void properName_data();
    void properName();
    void rotatesOnceFull();
    void largestIndexDoesNotOverflow();
    void streamMovesOnToTheNextFile();
    void rotationCleansUp();
    void newDayStartsAtIndexZero();
    void directoryIsMadeAgain();

    void cleansUp_data();
    void cleansUp();
    void missingRootIsLeftMissing();
    void linksAreLeftAlone();

    void growthBeyondTheBudgetCleansUp();
    void sizeOfOneFileIsCountedOnce();
    void foreignFileNameIsNotCounted();
    void recoveryDeletesTheOldest_data();
    void recoveryDeletesTheOldest();
    void handlerMayLogDuringCleanUp();

private:
    QString path(const QString &name) const { return m_root + '/' + name; }
    void make(const QVector<LogFile> &files) const;

    PluginLogFileManager &m_manager = *PluginLogFileManager::instance();
    QScopedPointer<QTemporaryDir> m_directory;
    QString m_root;
};

void TestPluginLogFileManager::init()
{
    m_directory.reset(new QTemporaryDir);
    m_root = m_directory->filePath("zeplet");
    QVERIFY(QDir().mkpath(m_root));
    m_manager.rescanTotalLogSize(m_root);
}

void TestPluginLogFileManager::cleanup()
{
    m_directory.reset();
}

void TestPluginLogFileManager::make(const QVector<LogFile> &files) const
{
    const QDateTime now = QDateTime::fromSecsSinceEpoch(1700000000);
    for (const LogFile &file : files) {
        QVERIFY(logfiles::makeSparse(path(file.path), file.size, now.addSecs(-file.age)));
    }
}

void TestPluginLogFileManager::properName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("ext");
    QTest::addColumn<QStringList>("present");
    QTest::addColumn<QString>("expected");
    const QStringList none;
    QTest::newRow("nothing there") << "n0"
                                   << "log" << none << "n0_%1.log";
    QTest::newRow("first file") << "n1"
                                << "log" << QStringList("n1_%1.log") << "n1_%1.log";
    QTest::newRow("gap") << "n2"
                         << "log" << QStringList({"n2_%1.log", "n2_%1_3.log"}) << "n2_%1_3.log";
    QTest::newRow("by number, not by letter")
        << "n3"
        << "log" << QStringList({"n3_%1_9.log", "n3_%1_10.log"}) << "n3_%1_10.log";
    QTest::newRow("longer name is another")
        << "n4"
        << "log" << QStringList({"n4_x_%1_5.log", "xn4_%1_5.log"}) << "n4_%1.log";
    QTest::newRow("other days are others")
        << "n5"
        << "log" << QStringList({"n5_20240506_7.log", "n5_20240506.log"}) << "n5_%1.log";
    QTest::newRow("other extension") << "n6"
                                     << "log" << QStringList("n6_%1_4.txt") << "n6_%1.log";
    QTest::newRow("own extension") << "n7"
                                   << "tar.x" << QStringList("n7_%1_4.tar.x") << "n7_%1_4.tar.x";
    QTest::newRow("index zero, no file") << "n8"
                                         << "log" << QStringList("n8_%1_x.log") << "n8_%1.log";
    QTest::newRow("pattern characters are text")
        << "n[9]*"
        << "log" << QStringList("n[9]*_%1_2.log") << "n[9]*_%1_2.log";
    QTest::newRow("dots in the name")
        << "com.maker.p"
        << "log" << QStringList("com.maker.p_%1_2.log") << "com.maker.p_%1_2.log";
    QTest::newRow("in a directory")
        << "sub/n10"
        << "log" << QStringList("sub/n10_%1_1.log") << "sub/n10_%1_1.log";
}

void TestPluginLogFileManager::properName()
{
    QFETCH(QString, name);
    QFETCH(QString, ext);
    QFETCH(QStringList, present);
    QFETCH(QString, expected);
    for (QString &file : present) {
        QVERIFY(logfiles::makeSparse(path(file.replace("%1", logfiles::today())), 10));
    }
    const QString file = path(expected.replace("%1", logfiles::today()));
    QCOMPARE(m_manager.getProperLogFileName(path(name), ext), file);
    // The stream takes the same way.
    FLog("", "", path(name), ext) << "line";
    QVERIFY(logfiles::read(file).endsWith("line\n"));
}

void TestPluginLogFileManager::rotatesOnceFull()
{
    const QString base = path("rotates");
    const auto file
        = [&](int index) { return m_manager.buildFileName(base, logfiles::today(), index, "log"); };
    QVERIFY(logfiles::makeSparse(file(0), Full - 1));
    QCOMPARE(m_manager.getProperLogFileName(base, "log"), file(0));
    QVERIFY(logfiles::makeSparse(file(0), Full));
    QCOMPARE(m_manager.getProperLogFileName(base, "log"), file(1));
    QCOMPARE(m_manager.getProperLogFileName(base, "log"), file(1));
    QVERIFY(logfiles::makeSparse(file(1), Full));
    QCOMPARE(m_manager.getProperLogFileName(base, "log"), file(2));
}

void TestPluginLogFileManager::largestIndexDoesNotOverflow()
{
    const QString base = path("huge");
    const QString last = m_manager.buildFileName(base, logfiles::today(), 2147483647, "log");
    QVERIFY(logfiles::makeSparse(last, Full));
    QCOMPARE(m_manager.getProperLogFileName(base, "log"), last);
}

void TestPluginLogFileManager::streamMovesOnToTheNextFile()
{
    const QString base = path("stream");
    const QString first = m_manager.buildFileName(base, logfiles::today(), 0, "log");
    const QString second = m_manager.buildFileName(base, logfiles::today(), 1, "log");
    QVERIFY(logfiles::makeSparse(first, Full - 1));
    FLog("", "", base, "log") << "last of the first";
    QCOMPARE(QFileInfo(first).size(), Full - 1 + 18);
    FLog("", "", base, "log") << "first of the second";
    QCOMPARE(QFileInfo(first).size(), Full - 1 + 18);
    QCOMPARE(logfiles::read(second), QString("first of the second\n"));
}

void TestPluginLogFileManager::rotationCleansUp()
{
    make({{"old_20240506.log", 195 * MiB, 100}, {"older_20240506.log", 1 * MiB, 200}});
    const QString base = path("crowd");
    const QString first = m_manager.buildFileName(base, logfiles::today(), 0, "log");
    QVERIFY(logfiles::makeSparse(first, Full));
    m_manager.rescanTotalLogSize(m_root);

    MessageCapture capture;
    m_manager.getProperLogFileName(base, "log");
    QCOMPARE(capture.take(),
             QStringList({"Cleaned old log file: older_20240506.log size: 1048576",
                          "Cleaned old log file: old_20240506.log size: 204472320"}));
    QVERIFY(QFileInfo::exists(first));
}

void TestPluginLogFileManager::newDayStartsAtIndexZero()
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
}

void TestPluginLogFileManager::directoryIsMadeAgain()
{
    const QString base = path("deep/er/again");
    const QString file = m_manager.getProperLogFileName(base, "log");
    QVERIFY(QFileInfo(base).dir().exists());
    QVERIFY(QDir(m_root).removeRecursively());
    QCOMPARE(m_manager.getProperLogFileName(base, "log"), file);
    FLog("", "", base, "log") << "back";
    QCOMPARE(logfiles::read(file), QString("back\n"));
}

void TestPluginLogFileManager::cleansUp_data()
{
    QTest::addColumn<QVector<LogFile>>("files");
    QTest::addColumn<qint64>("target");
    QTest::addColumn<bool>("force");
    QTest::addColumn<QStringList>("left");
    const QVector<LogFile> byAge {
        {"b.log", 10, 300}, {"sub/c.log", 20, 200}, {"a.log", 30, 100}, {"sub/x/d.log", 40, 50}};
    QTest::newRow("within the target")
        << byAge << qint64(100) << false
        << QStringList({"a.log", "b.log", "sub/c.log", "sub/x/d.log"});
    QTest::newRow("just above it")
        << byAge << qint64(99) << false << QStringList({"a.log", "sub/c.log", "sub/x/d.log"});
    QTest::newRow("oldest first, over all directories")
        << byAge << qint64(70) << false << QStringList({"a.log", "sub/x/d.log"});
    QTest::newRow("everything") << byAge << qint64(-1) << false << QStringList();
    QTest::newRow("forced, one is enough")
        << byAge << qint64(100) << true << QStringList({"a.log", "sub/c.log", "sub/x/d.log"});
    QTest::newRow("forced, more are needed")
        << byAge << qint64(50) << true << QStringList({"sub/x/d.log"});
    QTest::newRow("one time: by path")
        << QVector<LogFile> {{"b.log", 1, 9}, {"a/z.log", 1, 9}, {"a.log", 1, 9}, {"c.log", 1, 9}}
        << qint64(2) << false << QStringList({"b.log", "c.log"});
    QTest::newRow("other files stay")
        << QVector<LogFile> {{"a.txt", 90, 9}, {"a.log.1", 9, 9}, {"log", 9, 9}, {"b.log", 5, 1}}
        << qint64(0) << false << QStringList({"a.log.1", "a.txt", "log"});
    QTest::newRow("hidden ones stay")
        << QVector<LogFile> {{".log", 9, 9},
                             {".a.log", 9, 9},
                             {".trash/a.log", 9, 9},
                             {"b.log", 5, 1}}
        << qint64(0) << false << QStringList({".a.log", ".log", ".trash/a.log"});
}

void TestPluginLogFileManager::cleansUp()
{
    QFETCH(QVector<LogFile>, files);
    QFETCH(qint64, target);
    QFETCH(bool, force);
    make(files);
    MessageCapture capture;
    m_manager.rescanTotalLogSize(m_root);
    m_manager.cleanupOldFiles(path("any/base"), target, force);
    QStringList left = logfiles::below(m_root);
    QTEST(left, "left");
}

void TestPluginLogFileManager::missingRootIsLeftMissing()
{
    QVERIFY(QDir().rmdir(m_root));
    m_manager.cleanupOldFiles(path("p"), 0, true);
    QVERIFY(!QFileInfo::exists(m_root));
}

void TestPluginLogFileManager::linksAreLeftAlone()
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

void TestPluginLogFileManager::growthBeyondTheBudgetCleansUp()
{
    make({{"a_20240506.log", 100 * MiB, 300}, {"b_20240506.log", 100 * MiB, 200}});
    m_manager.rescanTotalLogSize(m_root);
    MessageCapture capture;
    m_manager.updateFileSize(path("grows_20240506.log"), 0);
    QCOMPARE(capture.take(), QStringList());
    // That was the budget to the byte; now one line exceeds it.
    const QString base = path("stream2");
    FLog("", "", base, "log") << "one line more";
    QCOMPARE(capture.take(), QStringList("Cleaned old log file: a_20240506.log size: 104857600"));
}

void TestPluginLogFileManager::sizeOfOneFileIsCountedOnce()
{
    make({{"only_20240506.log", 1, 1}});
    m_manager.rescanTotalLogSize(m_root);
    MessageCapture capture;
    // 150 MiB three times over would exceed the budget; a shrunken file gives room back.
    for (const qint64 size : {150 * MiB, 150 * MiB, 150 * MiB, 20 * MiB}) {
        m_manager.updateFileSize(path("twice_20240506.log"), size);
    }
    m_manager.updateFileSize(path("other_20240506_3.log"), 179 * MiB);
    QCOMPARE(capture.take(), QStringList());
    m_manager.updateFileSize(path("third_20240506.log"), 2 * MiB);
    QCOMPARE(capture.take(), QStringList("Cleaned old log file: only_20240506.log size: 1"));
}

void TestPluginLogFileManager::foreignFileNameIsNotCounted()
{
    make({{"kept_20240506.log", 1, 1}});
    m_manager.rescanTotalLogSize(m_root);
    m_manager.updateFileSize(path("no_date.log"), 500 * MiB);
    QVERIFY(QFileInfo::exists(path("kept_20240506.log")));
}

void TestPluginLogFileManager::recoveryDeletesTheOldest_data()
{
    QTest::addColumn<QVector<LogFile>>("files");
    QTest::addColumn<QString>("total");
    QTest::addColumn<QStringList>("left");
    QTest::newRow("within the target: one")
        << QVector<LogFile> {{"a.log", 25 * MiB, 9}, {"b.log", 25 * MiB, 1}} << "50.00"
        << QStringList("b.log");
    QTest::newRow("above it: down to it")
        << QVector<LogFile> {{"a.log", 1 * MiB, 9}, {"b.log", 4 * MiB, 5}, {"c.log", 190 * MiB, 1}}
        << "195.00" << QStringList("c.log");
    QTest::newRow("two decimals") << QVector<LogFile> {{"a.log", MiB / 3, 9}} << "0.33"
                                  << QStringList();
    QTest::newRow("nothing to delete") << QVector<LogFile>() << "0.00" << QStringList();
}

void TestPluginLogFileManager::recoveryDeletesTheOldest()
{
    QFETCH(QVector<LogFile>, files);
    QFETCH(QString, total);
    make(files);
    if (files.isEmpty()) {
        QVERIFY(QDir().rmdir(m_root));
    }
    MessageCapture capture;
    m_manager.recoverFromWriteFailure(path("p/q"));
    QCOMPARE(capture.take().value(0),
             "W: [zeplet-log-cleanup] write failure, try to free old logs. dir=" + m_root
                 + " total=" + total + "MB target=190.00MB forceDeleteOne=true");
    QStringList left = logfiles::below(m_root);
    QTEST(left, "left");
    QVERIFY(QFileInfo::exists(m_root));
}

void TestPluginLogFileManager::handlerMayLogDuringCleanUp()
{
    make({{"a.log", 1, 2}, {"b.log", 1, 1}});
    m_manager.rescanTotalLogSize(m_root);
    const QString base = m_directory->filePath("elsewhere/handler");
    MessageCapture capture([&](const QString &line) { FLog("", "", base, "log") << line; });
    m_manager.cleanupOldFiles(path("p"), 0, false);
    QCOMPARE(logfiles::read(m_manager.buildFileName(base, logfiles::today(), 0, "log")),
             QString("Cleaned old log file: a.log size: 1\nCleaned old log file: b.log size: 1\n"));
}

QTEST_GUILESS_MAIN(TestPluginLogFileManager)
#include "tst_pluginlogfilemanager.moc"
