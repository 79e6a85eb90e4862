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
    void init()
    {
        m_directory.reset(new QTemporaryDir);
        PluginLogFileManager::instance()->rescanTotalLogSize(m_directory->path());
    }

    void cleanup() { m_directory.reset(); }

    void header()
    {
        const struct {
            const char *tag, *text;
        } rows[] = {{"", "boom"}, {"<zeplet>", "boom"}, {"%1", "%2 %1"}, {"", ""}};
        const QString base = path("header");
        QString written;
        MessageCapture capture;
        for (const auto &[tag, text] : rows) {
            const QString line = prefix + tag + text;
            QLog(red, prefix, tag) << text;
            FLog(prefix, tag, base, "log") << text;
            QFLog(red, prefix, tag, base, "log") << text;
            QCOMPARE(capture.take(), QStringList({red + line + reset, red + line + reset}));
            written += line + '\n' + line + '\n';
        }
        QCOMPARE(logfiles::read(dated(base)), written);
    }

    void values()
    {
        const QPair<QVariant, QString> rows[] = {
            {-42, "-42"},
            {0.5, "0.5"},
            {true, "true"},
            {"\"as it is\"", "\"as it is\""},
            {QByteArray("Gr\xc3\xbc\xc3\x9f"), "Grüß"},
            {QVariant(), ""},
            {QVariantMap {{"a", 1}}, ""},
        };
        const QString base = path("values");
        QString written;
        MessageCapture capture;
        for (const auto &[value, expected] : rows) {
            QFLog("", "", "", base, "log") << value;
            QCOMPARE(capture.take(), QStringList(expected + reset));
            written += expected + '\n';
        }
        QCOMPARE(logfiles::read(dated(base)), written);
    }

    void mixedItems()
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

    void fileIsThereBeforeTheLine()
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

    void linesDoNotMix()
    {
        const QString base = path("nested");
        const auto inner = [&] {
            FLog("", "", base, "log") << "inner";
            return QString("value");
        };
        FLog("", "", base, "log") << "outer " << inner() << " done";
        QCOMPARE(logfiles::read(dated(base)), QString("inner\nouter value done\n"));
    }

    void failedWriteDeletesTheOldest()
    {
        const QString base = path("full");
        const QDateTime past = QDateTime::fromSecsSinceEpoch(1700000000);
        QVERIFY(logfiles::makeSparse(path("old_20240506.log"), 1, past));
        QVERIFY(logfiles::makeSparse(path("new_20240506.log"), 1, past.addSecs(1)));
        QVERIFY(QFile::link("/dev/full", dated(base)));

        MessageCapture capture;
        FLog("", "", base, "log") << "lost";
        QCOMPARE(
            capture.take(),
            QStringList({"W: [zeplet-log-cleanup] write log failed, trigger cleanup. file="
                             + dated(base) + " error=" + qt_error_string(ENOSPC),
                         recovering(root()), "Cleaned old log file: old_20240506.log size: 1"}));
        QVERIFY(QFileInfo::exists(path("new_20240506.log")));
    }

    void halfALineStaysApart()
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

    void openFailsTwice()
    {
        const QString base = path("blocked");
        QVERIFY(QDir().mkpath(dated(base)));
        const QString detail = ". file=" + dated(base) + " error=" + qt_error_string(EISDIR);

        MessageCapture capture;
        {
            FLog stream("", "", base, "log");
            QCOMPARE(
                capture.take(),
                QStringList({"W: [zeplet-log-cleanup] open log failed before cleanup" + detail,
                             recovering(root()),
                             "W: [zeplet-log-cleanup] open log failed after cleanup" + detail}));
            stream << "discarded";
        }
        QCOMPARE(capture.take(), QStringList());
    }

    void openSucceedsAfterCleanup()
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

    void streamsWorkAgainAfterAFailure()
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

private:
    QString path(const QString &name) const { return m_directory->filePath("zeplet/" + name); }
    QString root() const { return m_directory->filePath("zeplet"); }

    QScopedPointer<QTemporaryDir> m_directory;
};

QTEST_GUILESS_MAIN(TestLogStreams)
#include "tst_logstreams.moc"
