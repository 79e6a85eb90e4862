#include <ostrel/log.h>

#include "logfiles.h"
#include "messagecapture.h"

#include <QTemporaryDir>
#include <QtTest>

class TestHostLog : public QObject
{
    Q_OBJECT

private slots:
    void consoleAndFile()
    {
        const QTemporaryDir directory;
        const QString base = directory.filePath("log/%1");
        const QString file = base + '_' + logfiles::today() + ".log";
        MessageCapture capture;
        ostrel::QFLog("\x1b[35m", "[S|x]", "<tag>", base, "log")
            << "text " << QString("\"ü\" ") << QVariant(1.5) << static_cast<const void *>(nullptr);
        const QString expected = "[S|x]<tag>text \"ü\" 1.50x0";
        QCOMPARE(capture.take(), QStringList("\x1b[35m" + expected + "\x1b[0m"));
        ostrel::QFLog("", "[", "", base, "log").space() << "a" << QString("b");
        QCOMPARE(logfiles::read(file), expected + "\n[a b \n");
    }

    void oldFilesGo()
    {
        for (const int age : {100, -100}) { // days; the clock may have run back
            const QTemporaryDir directory;
            const QDateTime first = QDateTime::currentDateTime().addDays(-age);
            QStringList expected {"p.log", "p_20240501.txt", "p_x_20240501.log", "q_20240501.log"};
            for (const QString &foreign : qAsConst(expected))
                QVERIFY(logfiles::makeSparse(directory.filePath(foreign), 9, first));
            for (int i = 1; i <= 15; ++i) {
                const QString name
                    = QStringLiteral("p_202405%1.log").arg(i, 2, 10, QLatin1Char('0'));
                QVERIFY(logfiles::makeSparse(directory.filePath(name), 9, first.addDays(i)));
                if (i > 6)
                    expected += name;
            }
            expected += "p_" + logfiles::today() + ".log";
            expected.sort();
            ostrel::FLog("", "", directory.filePath("p"), "log") << "the line";
            QCOMPARE(logfiles::below(directory.path()), expected);
            QCOMPARE(logfiles::read(directory.filePath("p_" + logfiles::today() + ".log")),
                     QString("the line\n"));
        }
    }

    void fullFilesAreFollowedByTheNext()
    {
        const std::pair<QVector<qint64>, QString> rows[]
            = {{{10485759}, ".log"}, {{10485760}, "_1.log"}, {{10485760, 20000000}, "_2.log"}};
        for (const auto &[sizes, expected] : rows) {
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
    }

    void failureLosesOneLine()
    {
        for (const bool writable : {false, true}) {
            const QTemporaryDir directory;
            const QString base = directory.filePath("p");
            const QString file = base + '_' + logfiles::today() + ".log";
            QVERIFY(writable ? QFile::link("/dev/full", file) : QDir().mkdir(file));
            MessageCapture capture;
            ostrel::FLog("", "", base, "log") << "lost";
            const QString warning = QString("W: cannot %1 the log file. file=%2 error=%3")
                                        .arg(writable ? "write" : "open", file,
                                             qt_error_string(writable ? ENOSPC : EISDIR));
            QCOMPARE(capture.take(), QStringList(warning));
            QVERIFY(writable ? QFile::remove(file) : QDir().rmdir(file));
            ostrel::FLog("", "", base, "log") << "kept";
            QCOMPARE(logfiles::read(file), QString("kept\n"));
        }
    }
};

QTEST_GUILESS_MAIN(TestHostLog)
#include "tst_hostlog.moc"
