#include <zeplet/log/pluginlogfiles.h>

#include <QtTest>

using namespace zeplet;

class TestPluginLogFiles : public QObject
{
    Q_OBJECT

private slots:
    void meta_data();
    void meta();
    void noMeta_data();
    void noMeta();
    void root_data();
    void root();
};

void TestPluginLogFiles::meta_data()
{
    QTest::addColumn<QString>("baseName");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("date");
    QTest::addColumn<int>("index");
    QTest::newRow("first file") << "p_20240506"
                                << "p"
                                << "20240506" << 0;
    QTest::newRow("indexed") << "p_20240506_12"
                             << "p"
                             << "20240506" << 12;
    QTest::newRow("underscore in name") << "p_x_20240506"
                                        << "p_x"
                                        << "20240506" << 0;
    QTest::newRow("both") << "p_x_20240506_3"
                          << "p_x"
                          << "20240506" << 3;
    QTest::newRow("number in name") << "p_7_20240506"
                                    << "p_7"
                                    << "20240506" << 0;
    QTest::newRow("empty parts") << "__p__20240506"
                                 << "__p_"
                                 << "20240506" << 0;
    QTest::newRow("index like a date") << "p_20240506_20240507"
                                       << "p"
                                       << "20240506" << 20240507;
    QTest::newRow("first date") << "p_20000101"
                                << "p"
                                << "20000101" << 0;
    QTest::newRow("last date") << "p_29991231"
                               << "p"
                               << "29991231" << 0;
    QTest::newRow("by range alone") << "p_20249999"
                                    << "p"
                                    << "20249999" << 0;
}

void TestPluginLogFiles::meta()
{
    QFETCH(QString, baseName);
    QString name;
    QString date;
    int index = -1;
    QVERIFY(extractLogFileMeta(baseName, name, date, index));
    QTEST(name, "name");
    QTEST(date, "date");
    QTEST(index, "index");
}

void TestPluginLogFiles::noMeta_data()
{
    QTest::addColumn<QString>("baseName");
    QTest::newRow("empty") << "";
    QTest::newRow("one part") << "20240506";
    QTest::newRow("no name") << "_20240506";
    QTest::newRow("no name, indexed") << "_20240506_1";
    QTest::newRow("before the first date") << "p_19991231";
    QTest::newRow("after the last date") << "p_30000101";
    QTest::newRow("short date") << "p_2024056";
    QTest::newRow("long date") << "p_020240506";
    QTest::newRow("letters in the date") << "p_2024May6";
    QTest::newRow("negative index") << "p_20240506_-1";
    QTest::newRow("index beyond int") << "p_20240506_2147483648";
    QTest::newRow("empty index") << "p_20240506_";
    QTest::newRow("no date") << "p_x_1";
}

void TestPluginLogFiles::noMeta()
{
    QFETCH(QString, baseName);
    QString name;
    QString date;
    int index = 0;
    QVERIFY(!extractLogFileMeta(baseName, name, date, index));
}

void TestPluginLogFiles::root_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("root");
    QTest::newRow("plugin") << "./log/zeplet/p"
                            << "log/zeplet";
    QTest::newRow("plugin with a directory") << "./log/zeplet/p/a/b"
                                             << "log/zeplet";
    QTest::newRow("the library's own") << "./log/zeplet"
                                       << "log";
    QTest::newRow("absolute") << "/var/log/zeplet/x/p"
                              << "/var/log/zeplet";
    QTest::newRow("at the top") << "/zeplet/p"
                                << "/zeplet";
    QTest::newRow("relative") << "zeplet/p"
                              << "zeplet";
    QTest::newRow("innermost wins") << "/zeplet/a/zeplet/b/p"
                                    << "/zeplet/a/zeplet";
    QTest::newRow("innermost at the end") << "/zeplet/a/zeplet/p"
                                          << "/zeplet/a/zeplet";
    QTest::newRow("longer names are others") << "/a/zeplet/zeplet2/p"
                                             << "/a/zeplet";
    QTest::newRow("part of a name") << "/a/myzeplet/p"
                                    << "/a/myzeplet";
    QTest::newRow("elsewhere") << "/tmp/x/p_20240506.log"
                               << "/tmp/x";
    QTest::newRow("not cleaned") << "/a//zeplet/../zeplet/./b/p"
                                 << "/a/zeplet";
    QTest::newRow("no directory") << "p"
                                  << ".";
}

void TestPluginLogFiles::root()
{
    QFETCH(QString, path);
    QTEST(pluginLogRootDir(path).path(), "root");
}

QTEST_GUILESS_MAIN(TestPluginLogFiles)
#include "tst_pluginlogfiles.moc"
