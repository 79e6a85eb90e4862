#include "testclient.h"
#include "testcolumns.h"

#include <QJsonDocument>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>
#include <csignal>

namespace
{
constexpr int patience = 60000; // a start takes seconds under an emulator. ms

/** A running simulator; the test fails in ready() where it did not start. */
class Running
{
public:
    explicit Running(const QStringList &arguments = {})
    {
        process.start(SIMULATOR, QStringList {"--port", "0", "--hub-port", "0"} + arguments);
    }
    ~Running()
    {
        process.kill();
        process.waitForFinished();
    }

    bool ready()
    {
        static const QRegularExpression pattern(
            "^ready controller=(\\d+) hub=(\\d+) rsync=(\\d+)$");
        const auto match = pattern.match(line());
        controllerPort = match.captured(1).toUShort();
        hubPort = match.captured(2).toUShort();
        rsyncPort = match.captured(3).toUShort();
        return match.hasMatch();
    }
    /** The next line of its standard output; "" where none comes. */
    QString line()
    {
        if (!QTest::qWaitFor([this] { return process.canReadLine(); }, patience))
            return {};
        return QString::fromUtf8(process.readLine()).trimmed();
    }
    /** The answer to a control line. */
    QJsonObject ask(const QByteArray &control)
    {
        process.write(control + '\n');
        return json(line().toUtf8());
    }
    bool finished()
    {
        return QTest::qWaitFor([this] { return process.state() == QProcess::NotRunning; }, patience)
            && process.exitStatus() == QProcess::NormalExit;
    }

    QProcess process;
    quint16 controllerPort = 0;
    quint16 hubPort = 0;
    quint16 rsyncPort = 0;
};
} // namespace

/** The executable: its options, its lines on the standard streams, how it ends. */
class TestSimulatorProcess : public QObject
{
    Q_OBJECT

private slots:
    void controlledByLines()
    {
        Running running;
        QVERIFY(running.ready());
        QVERIFY(running.controllerPort != 0 && running.hubPort != 0);
        ConnectedClient client(running.controllerPort);
        QCOMPARE(
            running.ask("program start"),
            json(R"({"ok": false, "error": "a program cannot start while the motors are off"})"));
        QCOMPARE(running.ask("set power on\r"), json(R"({"ok": true, "result": true})"));
        QTRY_COMPARE(client.notifications.size(), 1);
        client.call("system.state.get");
        QCOMPARE(running.ask("\ncount system.state.get"), json(R"({"ok": true, "result": 1})"));
        QCOMPARE(running.ask("fault nonsense")["ok"], QJsonValue(false));

        running.process.write("hub set a "); // a line may come in pieces, or several in one
        running.process.waitForBytesWritten();
        QCOMPARE(running.ask("1"), json(R"({"ok": true, "result": true})"));
        QCOMPARE(running.ask("hub get a\nhub get b"), json(R"({"ok": true, "result": 1})"));
        QCOMPARE(json(running.line().toUtf8()), json(R"({"ok": true, "result": null})"));
        QCOMPARE(running.process.readAllStandardError(), QByteArray());
    }

    void trace()
    {
        Running running({"--trace"});
        QVERIFY(running.ready());
        ConnectedClient client(running.hubPort);
        client.call("hub.watch", json(R"({"key": "a.b", "on": true})"));
        client.socket.sendTextMessage("nonsense");
        QTRY_VERIFY(!client.isConnected());
        QVERIFY(running.ask("quit")["ok"].toBool());
        QVERIFY(running.finished());
        const QString traced = QString::fromUtf8(running.process.readAllStandardError());
        QVERIFY2(traced.contains(QRegularExpression("hub received \\{.*\"hub.watch\"")),
                 qPrintable(traced));
        QVERIFY2(traced.contains("hub received nonsense\n"), qPrintable(traced));
        QVERIFY2(traced.contains("zeplet-simulator: hub: client closed: "), qPrintable(traced));
    }

    void ends_data()
    {
        const auto row = testcolumns<int>("signalNumber"); // 0: by what is written
        row("SIGTERM", SIGTERM);
        row("SIGINT", SIGINT);
        row("quit", 0);
        row("end of input", 0);
    }

    void ends()
    {
        QFETCH(int, signalNumber);
        Running running({"--until-eof"});
        QVERIFY(running.ready());
        ConnectedClient client(running.controllerPort);
        if (signalNumber != 0)
            ::kill(static_cast<pid_t>(running.process.processId()), signalNumber);
        else if (QTest::currentDataTag() == QString("end of input"))
            running.process.closeWriteChannel();
        else
            running.process.write("quit\n");
        QVERIFY(running.finished());
        QCOMPARE(running.process.exitCode(), 0);
        QTRY_VERIFY(!client.isConnected());
    }

    void keepsItsState()
    {
        QTemporaryDir directory;
        const QString path = directory.filePath("state.json");
        const QStringList arguments {"--state", path};
        {
            Running running(arguments);
            QVERIFY(running.ready());
            QVERIFY(running.ask("set level 4")["ok"].toBool());
            running.process.terminate(); // at once: the end writes what is new
            QVERIFY(running.finished());
        }
        Running again(arguments + QStringList {"--profile", "3.2"});
        QVERIFY(again.ready());
        const QJsonObject state = again.ask("state");
        const QJsonValue robot = state["result"]["robot"];
        QCOMPARE(robot["level"], QJsonValue(4));
        QCOMPARE(robot["version"], QJsonValue("3.2"));
        QCOMPARE(again.process.readAllStandardError(), QByteArray());
    }

    void livesOnAfterEof()
    {
        Running running;
        QVERIFY(running.ready());
        QVERIFY(running.ask("set level 6")["ok"].toBool()); // its input works; now it ends
        running.process.closeWriteChannel();
        ConnectedClient client(running.controllerPort);
        QCOMPARE(client.call("system.state.get").value("result")["level"], QJsonValue(6));
        QCOMPARE(running.process.state(), QProcess::Running);
    }

    void refusesToStart_data()
    {
        const auto row = testcolumns<QStringList, int, QString>("arguments", "exitCode", "error");
        row("unknown option", {"--sleep"}, 2, "sleep");
        row("word", {"demo.json"}, 2, "'demo.json'");
        row("port", {"--port", "65536"}, 2, "'65536'");
        row("hub port", {"--hub-port", "x"}, 2, "'x'");
        row("rsync port alone", {"--rsync-port", "1"}, 2, "--files");
        row("no such file", {"--scenario", "missing.json"}, 1, "missing.json: ");
        row("state nowhere", {"--state", "/proc/x/state.json"}, 1, "/proc/x/state.json cannot be");
        row("broken file", {"--scenario", "/etc/passwd"}, 1, "line 1");
    }

    void refusesToStart()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, exitCode);
        QFETCH(QString, error);
        Running running(arguments);
        QVERIFY(running.finished());
        QCOMPARE(running.process.exitCode(), exitCode);
        QCOMPARE(running.process.readAllStandardOutput(), QByteArray());
        const QString text = QString::fromUtf8(running.process.readAllStandardError());
        QVERIFY2(text.contains(error) && text.count('\n') == 1, qPrintable(text));
    }

    void killedWithItsFiles()
    {
        QTemporaryDir directory;
        QFile big(directory.filePath("big"));
        QVERIFY(big.open(QIODevice::WriteOnly) && big.resize(qint64(200) * 1024 * 1024));
        Running running({"--files", directory.filePath("c"), "--rsync-port", "0"});
        QVERIFY(running.ready() && running.rsyncPort != 0);
        QProcess rsync; // a transfer that lasts
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert("RSYNC_PASSWORD", "729413");
        rsync.setProcessEnvironment(environment);
        rsync.start("rsync",
                    {"--bwlimit=1m", big.fileName(),
                     QString("rsync://brisa@127.0.0.1:%1/hmi/_temp/").arg(running.rsyncPort)});
        const QDir arrived(directory.filePath("c/hmi/_temp"));
        QTRY_VERIFY(!arrived.entryList(QDir::Files | QDir::Hidden).isEmpty());

        running.process.kill();
        QVERIFY(running.process.waitForFinished());
        Running again({"--files", directory.filePath("c"), "--rsync-port",
                       QString::number(running.rsyncPort)});
        QVERIFY(again.ready());
        QCOMPARE(again.rsyncPort, running.rsyncPort);
        QTRY_COMPARE(rsync.state(), QProcess::NotRunning);
        QVERIFY(rsync.exitCode() != 0);
    }

    void demoLooksAlive()
    {
        Running running({"--scenario", SCENARIOS "/demo.json"});
        QVERIFY(running.ready());
        ConnectedClient client(running.controllerPort);
        ConnectedClient atHub(running.hubPort);
        QTRY_VERIFY(client.notifications.size() >= 2 && atHub.notifications.size() >= 2);
        QCOMPARE(client.notifications[0].value("params")["path"], QJsonValue("demo.conveyor"));
        QCOMPARE(atHub.notifications[0].value("params")["key"], QJsonValue("demo.temperature"));
        QCOMPARE(running.process.readAllStandardError(), QByteArray());
    }
};

QTEST_GUILESS_MAIN(TestSimulatorProcess)
#include "tst_simulatorprocess.moc"
