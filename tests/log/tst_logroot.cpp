#include <zeplet/log/pluginlogfilemanager.h>

#include "logfiles.h"
#include "messagecapture.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace zeplet;

// The first stream of a process finds what earlier runs left behind.
class TestLogRoot : public QObject
{
    Q_OBJECT

private slots:
    void firstUseCleansUpOnce()
    {
        constexpr qint64 MiB = 1024 * 1024;
        const QTemporaryDir directory;
        const QString root = directory.filePath("log/zeplet");
        const QDateTime past = QDateTime::fromSecsSinceEpoch(1700000000);
        QVERIFY(logfiles::makeSparse(root + "/a_20240506.log", 100 * MiB, past));
        QVERIFY(logfiles::makeSparse(root + "/sub/b_20240506.log", 100 * MiB, past.addSecs(1)));
        QVERIFY(logfiles::makeSparse(root + "/sub/c_20240506.log", 1, past.addSecs(2)));
        PluginLogFileManager &manager = *PluginLogFileManager::instance();
        QVERIFY(!manager.parent());

        MessageCapture capture;
        const QString name = manager.getProperLogFileName(root + "/p", "log");
        QCOMPARE(name, root + "/p_" + logfiles::today() + ".log");
        QCOMPARE(capture.take(),
                 QStringList("Cleaned old log file: a_20240506.log size: 104857600"));
        QCOMPARE(logfiles::below(root), QStringList({"sub/b_20240506.log", "sub/c_20240506.log"}));

        QVERIFY(logfiles::makeSparse(root + "/d_20240506.log", 300 * MiB, past.addSecs(3)));
        manager.initializeLogRoot(root + "/p");
        manager.getProperLogFileName(root + "/p", "log");
        QCOMPARE(capture.take(), QStringList());
    }
};

QTEST_GUILESS_MAIN(TestLogRoot)
#include "tst_logroot.moc"
