#include "desktoptools.h"
#include "logcapture.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

namespace
{

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

QByteArray read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray shell(const QString &command)
{
    QProcess process;
    process.start("/bin/sh", {"-c", command});
    process.waitForFinished(10000);
    return process.readAllStandardOutput() + process.readAllStandardError()
        + QByteArray::number(process.exitCode());
}

} // namespace

class TestDesktopTools : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_temporary = std::make_unique<QTemporaryDir>();
        QDir::setCurrent(m_temporary->path());
        m_rsync = QStandardPaths::findExecutable("rsync");
    }
    void cleanup()
    {
        qputenv("PATH", m_path);
        QDir::setCurrent("/");
    }

    void bothAreMadeOnce()
    {
        for (int start = 0; start < 2; ++start) {
            panel::DesktopTools("a run").provide();
            QCOMPARE(qgetenv("PATH"),
                     QDir("a run/standins").absolutePath().toUtf8() + ':' + m_path);
            QCOMPARE(shell("echo secret | sudo -S chown -R nobody:nobody /nowhere"),
                     QByteArray("0"));
            QCOMPARE(QFileInfo("a run/tools/rsync.exe").symLinkTarget(), m_rsync);
            QCOMPARE(QDir("a run/standins").entryList(QDir::Files), QStringList("sudo"));
            QCOMPARE(QDir("a run/tools").entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
                     QStringList("rsync.exe"));
        }
    }

    void whatIsBrokenIsReplaced()
    {
        write("precious", "stays");
        write("standins/sudo", "#!/bin/s");
        QVERIFY(QDir().mkpath("tools"));
        QVERIFY(QFile::link("/nowhere/rsync", "tools/rsync.exe"));
        panel::DesktopTools(".").provide();
        QCOMPARE(shell("sudo ls"), QByteArray("0"));
        QCOMPARE(QFileInfo("tools/rsync.exe").symLinkTarget(), m_rsync);

        QVERIFY(QFile::remove("standins/sudo"));
        QVERIFY(QFile::link(m_temporary->filePath("precious"), "standins/sudo"));
        panel::DesktopTools(".").provide();
        QCOMPARE(shell("sudo ls"), QByteArray("0"));
        QCOMPARE(read("precious"), QByteArray("stays"));
    }

    void aPersonsOwnRsyncStays()
    {
        write("tools/rsync.exe", "own");
        QFile("tools/rsync.exe").setPermissions(QFile::ReadOwner | QFile::ExeOwner);
        panel::DesktopTools(".").provide();
        QCOMPARE(read("tools/rsync.exe"), QByteArray("own"));
    }

    void whatCannotBeMadeIsSaid()
    {
        LogCapture log;
        write("tools/rsync.exe", "no program");
        write("standins", "no directory");
        panel::DesktopTools(".").provide();
        QVERIFY(QDir().mkpath("a:b"));
        panel::DesktopTools("a:b").provide();
        qputenv("PATH", "/nowhere");
        panel::DesktopTools("c").provide();

        const QStringList lines = log.ofLevel("E");
        QCOMPARE(lines.size(), 4);
        QVERIFY2(lines.at(0).contains("standins/sudo can't be used"), qPrintable(lines.at(0)));
        QVERIFY2(lines.at(1).contains("tools/rsync.exe can't be made"), qPrintable(lines.at(1)));
        QVERIFY2(lines.at(2).contains("a:b/standins/sudo can't"), qPrintable(lines.at(2)));
        QVERIFY2(lines.at(3).contains("rsync is not installed"), qPrintable(lines.at(3)));
        QCOMPARE(read("tools/rsync.exe"), QByteArray("no program"));
    }

private:
    const QByteArray m_path = qgetenv("PATH");
    QString m_rsync;
    std::unique_ptr<QTemporaryDir> m_temporary;
};

QTEST_MAIN(TestDesktopTools)
#include "tst_desktoptools.moc"
