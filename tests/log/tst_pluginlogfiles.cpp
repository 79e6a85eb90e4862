#include <zeplet/log/pluginlogfiles.h>

#include <QtTest>

using namespace zeplet;

class TestPluginLogFiles : public QObject
{
    Q_OBJECT

private slots:
    void meta()
    {
        const struct {
            const char *baseName, *name, *date;
            int index;
        } rows[] = {
            {"p_20240506", "p", "20240506", 0},
            {"p_20240506_12", "p", "20240506", 12},
            {"p_x_20240506", "p_x", "20240506", 0},
            {"p_x_20240506_3", "p_x", "20240506", 3},
            {"p_7_20240506", "p_7", "20240506", 0},
            {"__p__20240506", "__p_", "20240506", 0},
            {"p_20240506_20240507", "p", "20240506", 20240507},
            {"p_20000101", "p", "20000101", 0},
            {"p_29991231", "p", "29991231", 0},
            {"p_20249999", "p", "20249999", 0}, // by range alone
        };
        for (const auto &row : rows) {
            QString name;
            QString date;
            int index = -1;
            QVERIFY2(extractLogFileMeta(row.baseName, name, date, index), row.baseName);
            QCOMPARE(name, QString(row.name));
            QCOMPARE(date, QString(row.date));
            QCOMPARE(index, row.index);
        }
    }

    void noMeta()
    {
        for (const char *baseName :
             {"", "20240506", "_20240506", "_20240506_1", "p_19991231", "p_30000101", "p_2024056",
              "p_020240506", "p_2024May6", "p_20240506_-1", "p_20240506_2147483648", "p_20240506_",
              "p_x_1"}) {
            QString name;
            QString date;
            int index = 0;
            QVERIFY2(!extractLogFileMeta(baseName, name, date, index), baseName);
        }
    }

    void root()
    {
        const struct {
            const char *path, *root;
        } rows[] = {
            {"./log/zeplet/p", "log/zeplet"},
            {"./log/zeplet/p/a/b", "log/zeplet"},
            {"./log/zeplet", "log"},
            {"/zeplet/p", "/zeplet"},
            {"zeplet/p", "zeplet"},
            {"/zeplet/a/zeplet/b/p", "/zeplet/a/zeplet"},
            {"/zeplet/a/zeplet/p", "/zeplet/a/zeplet"},
            {"/a/zeplet/zeplet2/p", "/a/zeplet"},
            {"/a/myzeplet/p", "/a/myzeplet"},
            {"/tmp/x/p_20240506.log", "/tmp/x"},
            {"/a//zeplet/../zeplet/./b/p", "/a/zeplet"},
            {"p", "."},
        };
        for (const auto &row : rows) {
            QCOMPARE(pluginLogRootDir(row.path).path(), QString(row.root));
        }
    }
};

QTEST_GUILESS_MAIN(TestPluginLogFiles)
#include "tst_pluginlogfiles.moc"
