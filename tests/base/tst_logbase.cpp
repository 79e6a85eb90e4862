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
    void header_data();
    void header();
    void datedNames_data();
    void datedNames();
    void itemsReadAlikeOnBothSides_data();
    void itemsReadAlikeOnBothSides();
    void longLineIsKept();
    void filesThatCannotBeOpened_data();
    void filesThatCannotBeOpened();
    void fullDeviceIsAnError();
    void appendersKeepEachOthersLines();
};

void TestLogBase::header_data()
{
    QTest::addColumn<int>("level");
    QTest::addColumn<QString>("colour");
    QTest::addColumn<QString>("tag");
    QTest::newRow("error") << int(Level::Error) << "\x1b[31m"
                           << "E";
    QTest::newRow("information") << int(Level::Information) << "\x1b[36m"
                                 << "I";
    QTest::newRow("status") << int(Level::Status) << "\x1b[35m"
                            << "S";
    QTest::newRow("debug") << int(Level::Debug) << "\x1b[32m"
                           << "d";
}

void TestLogBase::header()
{
    QFETCH(int, level);
    QFETCH(QString, colour);
    QFETCH(QString, tag);
    const QDateTime before = QDateTime::currentDateTime();
    const LineHeader header = lineHeader(Level(level));
    const QDateTime after = QDateTime::currentDateTime();

    QCOMPARE(header.colour, colour);
    QVERIFY2(header.prefix.startsWith("[" + tag + "|") && header.prefix.endsWith("]"),
             qPrintable(header.prefix));
    const QString written = header.prefix.mid(3).chopped(1);
    const QString format = QStringLiteral("MM/dd hh:mm:ss.zzz");
    QVERIFY(written >= before.toString(format) && written <= after.toString(format));
}

void TestLogBase::datedNames_data()
{
    QTest::addColumn<QString>("base");
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("expected");
    QTest::newRow("first") << "./log/zeplet/p" << 0 << "./log/zeplet/p_20240506.log";
    QTest::newRow("next") << "./log/zeplet/p" << 1 << "./log/zeplet/p_20240506_1.log";
    QTest::newRow("many") << "p" << 12 << "p_20240506_12.log";
    QTest::newRow("placeholders are text") << "%2%1" << 1 << "%2%1_20240506_1.log";
}

void TestLogBase::datedNames()
{
    QFETCH(QString, base);
    QFETCH(int, index);
    QTEST(datedName(base, QStringLiteral("20240506"), index, QStringLiteral("log")), "expected");
}

void TestLogBase::itemsReadAlikeOnBothSides_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::addColumn<bool>("spaced");
    QTest::addColumn<QString>("expected");
    QTest::newRow("joined") << "a"
                            << "b" << false << "ab";
    QTest::newRow("spaced") << "a"
                            << "b" << true << "a b ";
    QTest::newRow("not quoted") << "say \"a\\b\""
                                << "\t" << false << "say \"a\\b\"\t";
    QTest::newRow("no placeholder is filled") << "%1 %2"
                                              << "100%" << false << "%1 %2100%";
    QTest::newRow("empty items") << ""
                                 << "" << true << "  ";
    QTest::newRow("beyond latin") << "温度"
                                  << "🤖" << false << "温度🤖";
    QTest::newRow("a zero character")
        << QString(QChar(0)) << "x" << false << QString(QChar(0)) + "x";
    QTest::newRow("half a surrogate pair")
        << QString(QChar(0xd83e)) << "x" << false << QString("?x");
}

void TestLogBase::itemsReadAlikeOnBothSides()
{
    QFETCH(QString, first);
    QFETCH(QString, second);
    QFETCH(bool, spaced);
    QFETCH(QString, expected);
    const int object = 0;
    QString asDebugStream;
    QDebug(&asDebugStream).nospace()
        << static_cast<const void *>(&object) << static_cast<const void *>(nullptr);

    LineBuffer file;
    MessageCapture capture;
    {
        ConsoleLine console(QStringLiteral("C"), QStringLiteral("P"), QString());
        console.appendItem(static_cast<const void *>(&object));
        console.appendItem(static_cast<const void *>(nullptr));
        file.appendItem(static_cast<const void *>(&object));
        file.appendItem(static_cast<const void *>(nullptr));
        if (spaced) {
            console.space();
            file.space();
        }
        for (const QString &item : {first, second}) {
            console.appendItem(item);
            file.appendItem(item);
        }
    }
    QCOMPARE(bytesOf(file), asDebugStream + expected);
    QCOMPARE(capture.take(), QStringList("CP" + asDebugStream + expected + "\x1b[0m"));
}

void TestLogBase::longLineIsKept()
{
    const QString text(100000, QLatin1Char('x'));
    LineBuffer line;
    line.append(QStringLiteral("["));
    line.appendItem(text);
    line.endLine();
    QCOMPARE(bytesOf(line), "[" + text + "\n");
}

void TestLogBase::filesThatCannotBeOpened_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("error");
    QTest::newRow("a directory") << "directory" << EISDIR;
    QTest::newRow("below a file") << "file/x.log" << ENOTDIR;
    QTest::newRow("a pipe that nobody reads") << "pipe" << ENXIO;
    QTest::newRow("name too long") << QString(300, QLatin1Char('n')) << ENAMETOOLONG;
}

void TestLogBase::filesThatCannotBeOpened()
{
    QFETCH(QString, name);
    QFETCH(int, error);
    const QTemporaryDir directory;
    QVERIFY(QDir(directory.path()).mkdir("directory"));
    QVERIFY(logfiles::makeSparse(directory.filePath("file"), 1));
    QCOMPARE(::mkfifo(qPrintable(directory.filePath("pipe")), 0600), 0);

    AppendFile file;
    QVERIFY(!file.open(directory.filePath(name)));
    QVERIFY(!file.isOpen());
    QCOMPARE(file.errorString(), qt_error_string(error));
}

void TestLogBase::fullDeviceIsAnError()
{
    AppendFile file;
    QVERIFY(file.open(QStringLiteral("/dev/full")));
    QVERIFY(!file.write("abc", 3));
    QCOMPARE(file.written(), qint64(0));
    QCOMPARE(file.errorString(), qt_error_string(ENOSPC));
}

void TestLogBase::appendersKeepEachOthersLines()
{
    const QTemporaryDir directory;
    const QString path = directory.filePath("made/on/the/wäg/a.log");
    AppendFile one;
    AppendFile two;
    QVERIFY(one.open(path));
    QVERIFY(two.open(path));
    QVERIFY(one.write("one\n", 4));
    QVERIFY(two.write("two\n", 4));
    QCOMPARE(logfiles::read(path), QString("one\ntwo\n"));

    QVERIFY(one.open(path));
    QCOMPARE(one.sizeAtOpen(), qint64(8));
    QCOMPARE(one.written(), qint64(0));
}

QTEST_GUILESS_MAIN(TestLogBase)
#include "tst_logbase.moc"
