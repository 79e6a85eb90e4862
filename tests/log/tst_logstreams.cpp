#include <zeplet/log/flog.h>
#include <zeplet/log/pluginlogfilemanager.h>
#include <zeplet/log/qflog.h>
#include <zeplet/log/qlog.h>

#include "logfiles.h"
#include "messagecapture.h"

#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <sys/resource.h>

using namespace zeplet;

namespace
{

const QString red = QStringLiteral("\x1b[31m");
const QString reset = QStringLiteral("\x1b[0m");
const QString prefix = QStringLiteral("[E|01/02 03:04:05.006]");

QString dated(const QString &base)
{
    return base + '_' + logfiles::today() + ".log";
}

QString recovering(const QString &root)
{
    return "W: [zeplet-log-cleanup] write failure, try to free old logs. dir=" + root
        + " total=0.00MB target=190.00MB forceDeleteOne=true";
}

/** No file grows beyond this size while the object lives, or until lift(). */
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit {bytes, m_before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() { lift(); }
    FileSizeLimit(const FileSizeLimit &) = delete;
    FileSizeLimit &operator=(const FileSizeLimit &) = delete;

    void lift() { ::setrlimit(RLIMIT_FSIZE, &m_before); }

private:
    rlimit m_before = {};
};

} // namespace

class TestLogStreams : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void header_data();
    void header();
    void values_data();
    void values();
    void mixedItems();
    void fileIsThereBeforeTheLine();
    void linesDoNotMix();
    void failedWriteDeletesTheOldest();
    void halfALineStaysApart();
    void openFailsTwice();
    void openSucceedsAfterCleanup();
    void streamsWorkAgainAfterAFailure();

private:
    QString path(const QString &name) const { return m_directory->filePath("zeplet/" + name); }
    QString root() const { return m_directory->filePath("zeplet"); }

    QScopedPointer<QTemporaryDir> m_directory;
};

void TestLogStreams::init()
{
    m_directory.reset(new QTemporaryDir);
    PluginLogFileManager::instance()->rescanTotalLogSize(m_directory->path());
}

void TestLogStreams::cleanup()
{
    m_directory.reset();
}

void TestLogStreams::header_data()
{
    QTest::addColumn<QString>("tag");
    QTest::addColumn<QString>("text");
    QTest::newRow("no tag") << ""
                            << "boom";
    QTest::newRow("tag") << "<zeplet>"
                         << "boom";
    QTest::newRow("placeholders") << "%1"
                                  << "%2 %1";
    QTest::newRow("nothing") << ""
                             << "";
}

void TestLogStreams::header()
{
    QFETCH(QString, tag);
    QFETCH(QString, text);
    MessageCapture capture;
    QLog(red, prefix, tag) << text;
    QCOMPARE(capture.take(), QStringList(red + prefix + tag + text + reset));

    const QString base = path("header");
    FLog(prefix, tag, base, "log") << text;
    QCOMPARE(logfiles::read(dated(base)), prefix + tag + text + '\n');

    QFLog(red, prefix, tag, base, "log") << text;
    QCOMPARE(capture.take(), QStringList(red + prefix + tag + text + reset));
    QCOMPARE(logfiles::read(dated(base)), QString(prefix + tag + text + '\n').repeated(2));
}

void TestLogStreams::values_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("expected");
    QTest::newRow("number") << QVariant(-42) << "-42";
    QTest::newRow("real") << QVariant(0.5) << "0.5";
    QTest::newRow("truth") << QVariant(true) << "true";
    QTest::newRow("text") << QVariant("\"as it is\"") << "\"as it is\"";
    QTest::newRow("bytes") << QVariant(QByteArray("Gr\xc3\xbc\xc3\x9f")) << "Grüß";
    QTest::newRow("no value") << QVariant() << "";
    QTest::newRow("without a text") << QVariant(QVariantMap {{"a", 1}}) << "";
}

void TestLogStreams::values()
{
    QFETCH(QVariant, value);
    QFETCH(QString, expected);
    const QString base = path("values");
    MessageCapture capture;
    QFLog("", "", "", base, "log") << value;
    QCOMPARE(capture.take(), QStringList(expected + reset));
    QCOMPARE(logfiles::read(dated(base)), expected + '\n');
}

void TestLogStreams::mixedItems()
{
    const QString base = path("mixed");
    MessageCapture capture;
    const void *address = reinterpret_cast<const void *>(quintptr(0x7fAB));
    (QFLog("", "", "", base, "log") << "before" << QString("|")).space()
        << "a" << QString("b") << 7 << address;
    const QString expected = "before|a b 7 0x7fab ";
    QCOMPARE(capture.take(), QStringList(expected + reset));
    QCOMPARE(logfiles::read(dated(base)), expected + '\n');
}

void TestLogStreams::fileIsThereBeforeTheLine()
{
    const QString base = path("sub/sub/early");
    {
        FLog stream("", "", base, "log");
        QCOMPARE(QFileInfo(dated(base)).size(), qint64(0));
        QVERIFY(QFileInfo::exists(dated(base)));
        stream << "text";
        QCOMPARE(QFileInfo(dated(base)).size(), qint64(0));
    }
    QCOMPARE(logfiles::read(dated(base)), QString("text\n"));
}

void TestLogStreams::linesDoNotMix()
{
    const QString base = path("nested");
    const auto inner = [&] {
        FLog("", "", base, "log") << "inner";
        return QString("value");
    };
    FLog("", "", base, "log") << "outer " << inner() << " done";
    QCOMPARE(logfiles::read(dated(base)), QString("inner\nouter value done\n"));
}

void TestLogStreams::failedWriteDeletesTheOldest()
{
    const QString base = path("full");
    const QDateTime past = QDateTime::fromSecsSinceEpoch(1700000000);
    QVERIFY(logfiles::makeSparse(path("old_20240506.log"), 1, past));
    QVERIFY(logfiles::makeSparse(path("new_20240506.log"), 1, past.addSecs(1)));
    QVERIFY(QFile::link("/dev/full", dated(base)));

    MessageCapture capture;
    FLog("", "", base, "log") << "lost";
    QCOMPARE(capture.take(),
             QStringList({"W: [zeplet-log-cleanup] write log failed, trigger cleanup. file="
                              + dated(base) + " error=" + qt_error_string(ENOSPC),
                          recovering(root()), "Cleaned old log file: old_20240506.log size: 1"}));
    QVERIFY(QFileInfo::exists(path("new_20240506.log")));
}

void TestLogStreams::halfALineStaysApart()
{
    const QString base = path("half");
    QVERIFY(logfiles::makeSparse(path("old_20240506.log"), 1,
                                 QDateTime::fromSecsSinceEpoch(1700000000)));
    FLog("", "", base, "log") << "whole";
    {
        FileSizeLimit limit(10);
        // Room returns with the clean-up.
        MessageCapture capture([&](const QString &line) {
            if (line.startsWith("Cleaned")) {
                limit.lift();
            }
        });
        FLog("", "", base, "log") << "too long for it";
        const QStringList messages = capture.take();
        QCOMPARE(messages.size(), 3);
        QVERIFY(messages.first().endsWith(" error=" + qt_error_string(EFBIG)));
    }
    FLog("", "", base, "log") << "next";
    QCOMPARE(logfiles::read(dated(base)), QString("whole\ntoo \nnext\n"));
}

void TestLogStreams::openFailsTwice()
{
    const QString base = path("blocked");
    QVERIFY(QDir().mkpath(dated(base)));
    const QString detail = ". file=" + dated(base) + " error=" + qt_error_string(EISDIR);

    MessageCapture capture;
    {
        FLog stream("", "", base, "log");
        QCOMPARE(capture.take(),
                 QStringList({"W: [zeplet-log-cleanup] open log failed before cleanup" + detail,
                              recovering(root()),
                              "W: [zeplet-log-cleanup] open log failed after cleanup" + detail}));
        stream << "discarded";
    }
    QCOMPARE(capture.take(), QStringList());
}

void TestLogStreams::openSucceedsAfterCleanup()
{
    const QString base = path("unblocked");
    QVERIFY(QDir().mkpath(dated(base)));
    MessageCapture capture([&](const QString &line) {
        if (line.contains("try to free old logs")) {
            QDir().rmdir(dated(base));
        }
    });
    FLog("", "", base, "log") << "kept";
    QCOMPARE(capture.take().value(2),
             "W: [zeplet-log-cleanup] open log succeeded after cleanup. file=" + dated(base));
    QCOMPARE(logfiles::read(dated(base)), QString("kept\n"));
}

void TestLogStreams::streamsWorkAgainAfterAFailure()
{
    QVERIFY(logfiles::makeSparse(path("parent"), 1));
    MessageCapture capture;
    // A file where the log's directory should be.
    FLog("", "", path("parent/p"), "log") << "lost";
    QCOMPARE(capture.take().size(), 3);
    QVERIFY(QFile::remove(path("parent")));
    FLog("", "", path("parent/p"), "log") << "kept";
    QCOMPARE(capture.take(), QStringList());
    QCOMPARE(logfiles::read(dated(path("parent/p"))), QString("kept\n"));
}

QTEST_GUILESS_MAIN(TestLogStreams)
#include "tst_logstreams.moc"
