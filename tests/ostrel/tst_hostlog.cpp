#include <ostrel/log.h>

#include "logfiles.h"
#include "messagecapture.h"

#include <QTemporaryDir>
#include <QtTest>

class TestHostLog : public QObject
{
    Q_OBJECT

private slots:
    void consoleAndFile();
    void spaces();
    void fullFilesAreFollowedByTheNext_data();
    void fullFilesAreFollowedByTheNext();
    void failureLosesOneLine_data();
    void failureLosesOneLine();
};

void TestHostLog::consoleAndFile()
{
    const QTemporaryDir directory;
    const QString base = directory.filePath("log/%1");
    MessageCapture capture;
    ostrel::QFLog("\x1b[35m", "[S|x]", "<tag>", base, "log")
        << "text " << QString("\"ü\" ") << QVariant(1.5) << static_cast<const void *>(nullptr);
    const QString expected = "[S|x]<tag>text \"ü\" 1.50x0";
    QCOMPARE(capture.take(), QStringList("\x1b[35m" + expected + "\x1b[0m"));
    QCOMPARE(logfiles::read(base + '_' + logfiles::today() + ".log"), expected + '\n');
}

void TestHostLog::spaces()
{
    const QTemporaryDir directory;
    const QString base = directory.filePath("p");
    MessageCapture capture;
    ostrel::QFLog("", "[", "", base, "log").space() << "a" << QString("b");
    QCOMPARE(capture.take(), QStringList("[a b \x1b[0m"));
    QCOMPARE(logfiles::read(base + '_' + logfiles::today() + ".log"), QString("[a b \n"));
}

void TestHostLog::fullFilesAreFollowedByTheNext_data()
{
    QTest::addColumn<QVector<qint64>>("sizes");
    QTest::addColumn<QString>("expected");
    QTest::newRow("first") << QVector<qint64>() << ".log";
    QTest::newRow("still room") << QVector<qint64> {10485759} << ".log";
    QTest::newRow("full") << QVector<qint64> {10485760} << "_1.log";
    QTest::newRow("two are full") << QVector<qint64> {10485760, 20000000} << "_2.log";
}

void TestHostLog::fullFilesAreFollowedByTheNext()
{
    QFETCH(QVector<qint64>, sizes);
    QFETCH(QString, expected);
    const QTemporaryDir directory;
    const QString base = directory.filePath("p");
    const QString start = base + '_' + logfiles::today();
    for (int i = 0; i < sizes.size(); ++i) {
        const QString index = i ? '_' + QString::number(i) : QString();
        QVERIFY(logfiles::makeSparse(start + index + ".log", sizes.at(i)));
    }
    ostrel::FLog("", "", base, "log") << "the line";
    QVERIFY(logfiles::read(start + expected).endsWith("the line\n"));
}

void TestHostLog::failureLosesOneLine_data()
{
    QTest::addColumn<bool>("writable");
    QTest::addColumn<QString>("warning");
    QTest::newRow("cannot open") << false << "cannot open the log file";
    QTest::newRow("cannot write") << true << "cannot write the log file";
}

void TestHostLog::failureLosesOneLine()
{
    QFETCH(bool, writable);
    QFETCH(QString, warning);
    const QTemporaryDir directory;
    const QString base = directory.filePath("p");
    const QString file = base + '_' + logfiles::today() + ".log";
    QVERIFY(writable ? QFile::link("/dev/full", file) : QDir().mkdir(file));

    MessageCapture capture;
    ostrel::FLog("", "", base, "log") << "lost";
    QCOMPARE(capture.take(),
             QStringList("W: " + warning + ". file=" + file
                         + " error=" + qt_error_string(writable ? ENOSPC : EISDIR)));
    QVERIFY(writable ? QFile::remove(file) : QDir().rmdir(file));
    ostrel::FLog("", "", base, "log") << "kept";
    QCOMPARE(logfiles::read(file), QString("kept\n"));
}

QTEST_GUILESS_MAIN(TestHostLog)
#include "tst_hostlog.moc"
