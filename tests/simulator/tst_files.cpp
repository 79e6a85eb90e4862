#include "testcolumns.h"

#include <QProcess>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QtTest>
#include <simulator/simulator.h>
#include <sys/stat.h>
#include <unistd.h>

using simulator::Scenario;
using simulator::Simulator;

namespace
{
Scenario withFiles(const QString &directory)
{
    Scenario scenario;
    scenario.files = {directory, 0};
    return scenario;
}

/** The exit code of rsync, called without a port like the panel does. */
int rsync(quint16 port, const QStringList &arguments, const QString &password = "729413")
{
    QProcess process;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("RSYNC_PASSWORD", password);
    environment.insert("RSYNC_CONNECT_PROG", QString("socat - TCP:127.0.0.1:%1").arg(port));
    process.setProcessEnvironment(environment);
    process.start("rsync", QStringList {"-tvz", "--timeout=10", "--contimeout=10"} + arguments);
    return process.waitForFinished() ? process.exitCode() : -1;
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("%s", qPrintable(path));
}
} // namespace

/** The controller's files, through a real daemon and a real client. */
class TestFiles : public QObject
{
    Q_OBJECT

private slots:
    void push_data()
    {
        const auto row
            = testcolumns<QString, QString, int, QString>("password", "to", "exitCode", "arrives");
        row("file", "729413", "brisa@127.0.0.1::hmi/_temp/point.json", 0, "hmi/_temp/point.json");
        row("wrong password", "729414", "brisa@127.0.0.1::hmi/_temp/point.json", 5, "");
        row("no password", "", "brisa@127.0.0.1::hmi/_temp/point.json", 5, "");
        row("other user", "729413", "root@127.0.0.1::hmi/_temp/point.json", 5, "");
        row("other module", "729413", "brisa@127.0.0.1::etc/_temp/point.json", 5, "");
        row("out of the module", "729413", "brisa@127.0.0.1::hmi/../../out.json", 0,
            "hmi/out.json");
        row("project not open", "729413", "brisa@127.0.0.1::hmi/P/point.json", 3, "");
    }

    void push()
    {
        QFETCH(QString, password);
        QFETCH(QString, to);
        QFETCH(QString, arrives);
        QTemporaryDir directory;
        Simulator simulated(withFiles(directory.filePath("a b/controller")));
        QString error;
        QVERIFY2(simulated.start(0, 0, &error), qPrintable(error));
        QByteArray content("{\"k\": \"\xe7\x82\xb9\"}\r\n");
        content += QByteArray(100000, '\0');
        write(directory.filePath("from.json"), content);

        QTEST(rsync(simulated.rsyncPort(), {directory.filePath("from.json"), to}, password),
              "exitCode");
        QStringList files;
        QDirIterator found(directory.path(), QDir::Files, QDirIterator::Subdirectories);
        while (found.hasNext())
            files += found.next();
        const QString root = directory.filePath("a b/controller/");
        if (!arrives.isEmpty()) {
            QCOMPARE(contentOf(root + arrives), content);
            QCOMPARE(QFileInfo(root + arrives).ownerId(), ::geteuid());
        }
        QCOMPARE(files.filter(".json").size(), arrives.isEmpty() ? 1 : 2);

        struct stat secrets {
        };
        QCOMPARE(::stat(qPrintable(root + "rsyncd.secrets"), &secrets), 0);
        QCOMPARE(secrets.st_mode & 0777U, 0600U);
        QVERIFY(contentOf(root + "rsyncd.log").contains("connect from"));
        QVERIFY(!contentOf(root + "rsyncd.log").contains("729413"));
    }

    void goesAndComesBack_data()
    {
        const auto row = testcolumns<QString, QString>("down", "up");
        row("files", "files down", "files up");
        row("fault", "fault files_down", "fault clear");
        row("for a while", "fault files_down 100", "");
        row("stop", "", "");
    }

    void goesAndComesBack()
    {
        QFETCH(QString, down);
        QFETCH(QString, up);
        QTemporaryDir directory;
        write(directory.filePath("f"), "1");
        const QStringList push {directory.filePath("f"), "brisa@127.0.0.1::hmi/_temp/f"};
        Simulator simulated(withFiles(directory.path()));
        QSignalSpy problems(&simulated, &Simulator::problem);
        QString error;
        QVERIFY2(simulated.start(0, 0, &error), qPrintable(error));
        const quint16 port = simulated.rsyncPort();
        QCOMPARE(rsync(port, push), 0);
        const auto isUp = [&simulated] { return simulated.state().value("files")["up"].toBool(); };
        QVERIFY(isUp());

        down.isEmpty() ? simulated.stop() : void(simulated.control(down));
        QVERIFY(!isUp());
        QVERIFY(rsync(port, push) != 0);
        if (!up.isEmpty())
            QVERIFY(simulated.control(up).isDone());
        if (down.isEmpty())
            QVERIFY2(simulated.start(0, 0, &error), qPrintable(error));
        QTRY_VERIFY(isUp());
        QCOMPARE(simulated.rsyncPort(), port);
        QCOMPARE(rsync(port, push), 0);
        QCOMPARE(problems.size(), 0);
    }

    void refused_data()
    {
        const auto row = testcolumns<QString, bool, QString>("directory", "portTaken", "part");
        row("per cent", "a%b", false, "'%'");
        row("line break", "a\nb", false, "control characters");
        row("a file in the way", "file", false, "cannot make");
        row("port taken", "c", true, "files: port");
    }

    void refused()
    {
        QFETCH(QString, directory);
        QFETCH(bool, portTaken);
        QFETCH(QString, part);
        QTemporaryDir parent;
        write(parent.filePath("file"), "");
        QTcpServer other;
        QVERIFY(other.listen(QHostAddress::LocalHost));
        Scenario scenario = withFiles(parent.filePath(directory));
        if (portTaken)
            scenario.files.port = other.serverPort();
        Simulator simulated(scenario);
        QString error;
        QVERIFY(!simulated.start(0, 0, &error));
        QVERIFY2(error.contains(part), qPrintable(error));
        QCOMPARE(simulated.state().value("controller")["up"], QJsonValue(false));
    }
};

QTEST_GUILESS_MAIN(TestFiles)
#include "tst_files.moc"
