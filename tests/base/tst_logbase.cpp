#include <appendfile.h>
#include <consoleline.h>
#include <datedname.h>
#include <linebuffer.h>
#include <lineheader.h>

#include "logfiles.h"
#include "messagecapture.h"

#include <QDateTime>
#include <QDebug>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>

using namespace logbase;

namespace
{

QString bytesOf(const LineBuffer &line)
{
    return QString::fromUtf8(line.data(), line.size());
}

} // namespace

class TestLogBase : public QObject
{
    Q_OBJECT

private slots:
    void header()
    {
        const struct {
            Level level;
            const char *colour, *tag;
        } rows[] = {
            {Level::Error, "\x1b[31m", "[E|"},
            {Level::Information, "\x1b[36m", "[I|"},
            {Level::Status, "\x1b[35m", "[S|"},
            {Level::Debug, "\x1b[32m", "[d|"},
        };
        for (const auto &row : rows) {
            const QString format = "MM/dd hh:mm:ss.zzz";
            const QString before = QDateTime::currentDateTime().toString(format);
            const LineHeader header = lineHeader(row.level);
            const QString after = QDateTime::currentDateTime().toString(format);

            QCOMPARE(header.colour, QString(row.colour));
            QVERIFY2(header.prefix.startsWith(row.tag) && header.prefix.endsWith("]"), row.tag);
            const QString written = header.prefix.mid(3).chopped(1);
            QVERIFY(written >= before && written <= after);
        }
    }

    void datedNames()
    {
        QCOMPARE(datedName("./log/zeplet/p", "20240506", 0, "log"),
                 QString("./log/zeplet/p_20240506.log"));
        QCOMPARE(datedName("%2%1", "20240506", 12, "log"), QString("%2%1_20240506_12.log"));
    }

    void itemsReadAlikeOnBothSides_data()
    {
        QTest::addColumn<QStringList>("items");
        QTest::addColumn<bool>("spaced");
        QTest::addColumn<QString>("expected");
        QTest::newRow("joined") << QStringList {"a", "b"} << false << "ab";
        QTest::newRow("spaced") << QStringList {"a", "b"} << true << "a b ";
        QTest::newRow("not quoted") << QStringList {"say \"a\\b\"\t"} << false << "say \"a\\b\"\t";
        QTest::newRow("placeholders") << QStringList {"%1 %2", "100%"} << false << "%1 %2100%";
        QTest::newRow("empty items") << QStringList {"", ""} << true << "  ";
        QTest::newRow("beyond latin") << QStringList {"温度", "🤖"} << false << "温度🤖";
        QTest::newRow("a zero") << QStringList {QChar(0), "x"} << false << QChar(0) + QString("x");
        QTest::newRow("half a pair") << QStringList {QChar(0xd83e), "x"} << false << "?x";
    }

    void itemsReadAlikeOnBothSides()
    {
        QFETCH(QStringList, items);
        QFETCH(bool, spaced);
        QFETCH(QString, expected);
        const int object = 0;
        QString asDebugStream;
        QDebug(&asDebugStream).nospace()
            << static_cast<const void *>(&object) << static_cast<const void *>(nullptr);

        LineBuffer file;
        MessageCapture capture;
        const auto fill = [&](auto &line) {
            line.appendItem(static_cast<const void *>(&object));
            line.appendItem(static_cast<const void *>(nullptr));
            if (spaced) {
                line.space();
            }
            for (const QString &item : items) {
                line.appendItem(item);
            }
        };
        {
            ConsoleLine console("C", "P", QString());
            fill(console);
            fill(file);
        }
        QCOMPARE(bytesOf(file), asDebugStream + expected);
        QCOMPARE(capture.take(), QStringList("CP" + asDebugStream + expected + "\x1b[0m"));
    }

    void longLineIsKept()
    {
        const QString text(100000, 'x');
        LineBuffer line;
        line.append("[");
        line.appendItem(text);
        line.endLine();
        QCOMPARE(bytesOf(line), "[" + text + "\n");
    }

    void filesThatCannotBeOpened()
    {
        const QTemporaryDir directory;
        QVERIFY(QDir(directory.path()).mkdir("directory"));
        QVERIFY(logfiles::makeSparse(directory.filePath("file"), 1));
        QCOMPARE(::mkfifo(qPrintable(directory.filePath("pipe")), 0600), 0);
        const QPair<QString, int> rows[] = {
            {"directory", EISDIR},
            {"file/x.log", ENOTDIR},
            {"pipe", ENXIO}, // nobody reads it
            {QString(300, 'n'), ENAMETOOLONG},
        };
        for (const auto &[name, error] : rows) {
            AppendFile file;
            QVERIFY2(!file.open(directory.filePath(name)), qPrintable(name));
            QVERIFY(!file.isOpen());
            QCOMPARE(file.errorString(), qt_error_string(error));
        }
    }

    void fullDeviceIsAnError()
    {
        AppendFile file;
        QVERIFY(file.open("/dev/full"));
        QVERIFY(!file.write("abc", 3));
        QCOMPARE(file.written(), qint64(0));
        QCOMPARE(file.errorString(), qt_error_string(ENOSPC));
    }

    void appendersKeepEachOthersLines()
    {
        const QTemporaryDir directory;
        const QString path = directory.filePath("made/on/the/wäg/a.log");
        AppendFile one;
        AppendFile two;
        QVERIFY(one.open(path) && two.open(path));
        QVERIFY(one.write("one\n", 4) && two.write("two\n", 4));
        QCOMPARE(logfiles::read(path), QString("one\ntwo\n"));

        QVERIFY(one.open(path));
        QCOMPARE(one.sizeAtOpen(), qint64(8));
        QCOMPARE(one.written(), qint64(0));
    }
};

QTEST_GUILESS_MAIN(TestLogBase)
#include "tst_logbase.moc"
