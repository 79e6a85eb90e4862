#include "simulatorfixture.h"
#include "testclient.h"

#include <QJsonArray>
#include <QTcpSocket>
#include <QtTest>

using simulator::Scenario;
using simulator::Simulator;

class TestSimulator : public QObject
{
    Q_OBJECT

private slots:
    void commands_data();
    void commands();
    void control_data();
    void control();
    void stateIsNotified();
    void hubChangesAreNotified();
    void watches();
    void notifyReachesEveryClient();
    void malformedInput_data();
    void malformedInput();
    void frameTooLarge();
    void answerTooLarge();
    void clientsAreBounded();
    void handshakeIsBounded();
    void countsAndLastArguments();
    void stopAndStartKeepState();
    void portInUse();
    void timeline();
    void blockingCallerOnAnotherThread();
};

namespace
{
/** A simulator on ephemeral ports in the test's thread. */
struct Started {
    explicit Started(const Scenario &scenario = {})
        : simulated(scenario)
    {
        QString error;
        if (!simulated.start(0, 0, &error))
            qFatal("%s", qPrintable(error));
    }

    Simulator simulated;
    QSignalSpy problems {&simulated, &Simulator::problem};
};
} // namespace

void TestSimulator::commands_data()
{
    QTest::addColumn<bool>("hub");
    QTest::addColumn<QStringList>("before"); ///< control lines
    QTest::addColumn<QString>("method");
    QTest::addColumn<QJsonObject>("params");
    QTest::addColumn<QJsonValue>("result"); ///< undefined: a refusal
    QTest::addColumn<QString>("reason"); ///< part of the refusal's
    QTest::addColumn<int>("code");

    const QStringList running {"set power on", "program start"};
    const auto done = [](const char *name, bool hub, const QStringList &before, const char *method,
                         const char *params, const QJsonValue &result) {
        QTest::newRow(name) << hub << before << QString(method) << json(params) << result
                            << QString() << 0;
    };
    const auto refused
        = [](const char *name, bool hub, const QStringList &before, const char *method,
             const char *params, const char *reason, int code = -32000) {
              QTest::newRow(name) << hub << before << QString(method) << json(params)
                                  << QJsonValue(QJsonValue::Undefined) << QString(reason) << code;
          };
    const bool hub = true;
    done("state", !hub,
         {"set level 4", "set id A B", "set version 3.3.1", "set robot SEVEN", "set mode auto"},
         "system.state.get", "",
         json(R"({"power": "off", "mode": "auto", "state": "idle", "level": 4, "id": "A B",
                  "version": "3.3.1", "robot": "SEVEN"})"));
    done("parameters", !hub, {"set robot_template 5", "set robot X"},
         "system.controller.get_params", "", json(R"({"robot_template": 5, "robot": "X"})"));
    done("motors on", !hub, {}, "system.state.switch_motor_on", "", true);
    done("motors on, twice", !hub, {"set power on"}, "system.state.switch_motor_on", "", true);
    done("motors off while running", !hub, running, "system.state.switch_motor_off", "", true);
    done("automatic", !hub, {}, "system.state.switch_auto", R"({"ignored": 1})", true);
    refused("mode while running", !hub, running, "system.state.switch_auto", "", "program runs");
    done("mode after the program", !hub, running + QStringList {"program stop"},
         "system.state.switch_auto", "", true);
    done("start", !hub, {"set power on"}, "rl_program.start", "", true);
    refused("start without motors", !hub, {}, "rl_program.start", "", "motors are off");
    refused("start twice", !hub, running, "rl_program.start", "", "already");
    done("stop", !hub, running, "rl_program.stop", "", true);
    refused("unknown", !hub, {}, "io_signal.jump", "", "'io_signal.jump'", -32601);
    done("fixed answer", !hub, {"answer controller io_signal.jump [1, 2]"}, "io_signal.jump", "",
         QJsonArray {1, 2});
    refused("a hub command at the controller", !hub, {}, "hub.snapshot", "", "unknown", -32601);

    done("snapshot", hub, {"hub set a.b 1", "hub set a.c [2]", "hub set d null"}, "hub.snapshot",
         "", json(R"({"a": {"b": 1, "c": [2]}, "d": null})"));
    done("set", hub, {}, "hub.set", R"({"key": "a.b", "sub": "", "value": 1})", true);
    done("set without sub", hub, {}, "hub.set", R"({"key": "a.b", "value": null})", true);
    refused("set below a value", hub, {"hub set a 1"}, "hub.set",
            R"({"key": "a", "sub": "b", "value": 1})", "plain value");
    refused("set of no key", hub, {}, "hub.set", R"({"key": "", "value": 1})", "empty step");
    refused("set of a gap", hub, {}, "hub.set", R"({"key": "a..b", "value": 1})", "empty step");
    refused("set without key", hub, {}, "hub.set", R"({"value": 1})", "'key'", -32602);
    refused("set without value", hub, {}, "hub.set", R"({"key": "a"})", "'value'", -32602);
    refused("set with a wrong sub", hub, {}, "hub.set", R"({"key": "a", "sub": 1, "value": 1})",
            "'sub'", -32602);
    done("echo", hub, {}, "hub.command", R"({"key": "echo", "value": {"x": 1}})",
         json(R"({"x": 1})"));
    done("echo of nothing", hub, {}, "hub.command", R"({"key": "echo"})", QJsonValue());
    done("hub's fixed answer", hub, {"answer hub move.reset 0"}, "hub.command",
         R"({"key": "move.reset", "value": 1})", 0);
    refused("unknown hub command", hub, {}, "hub.command", R"({"key": "x"})", "'x'");
    refused("command without key", hub, {}, "hub.command", "", "'key'", -32602);
    done("plugin echo", hub, {}, "hub.plugin",
         R"({"id": "1", "command": "ServiceAPI.plugin", "value": [{"a": 1}]})",
         json(R"({"data": [{"a": 1}]})"));
    done("plugin echo of a scalar", hub, {}, "hub.plugin",
         R"({"id": "1", "command": "ServiceAPI.plugin", "value": 3})", json(R"({"data": [3]})"));
    done("plugin's fixed answer", hub, {"answer plugin ServiceAPI.plugin [7]"}, "hub.plugin",
         R"({"id": "1", "command": "ServiceAPI.plugin", "value": 3})", json(R"({"data": [7]})"));
    refused("unknown service", hub, {}, "hub.plugin", R"({"id": "1", "command": "x", "value": 3})",
            "'x'");
    refused("plugin without id", hub, {}, "hub.plugin",
            R"({"command": "ServiceAPI.plugin", "value": 3})", "'id'", -32602);
    done("watch", hub, {}, "hub.watch", R"({"key": "a", "on": true})", true);
    refused("watch without on", hub, {}, "hub.watch", R"({"key": "a"})", "'on'", -32602);
    refused("a controller command at the hub", hub, {}, "system.state.get", "", "unknown", -32601);
}

void TestSimulator::commands()
{
    QFETCH(bool, hub);
    QFETCH(QStringList, before);
    QFETCH(QString, method);
    QFETCH(QJsonObject, params);
    QFETCH(QJsonValue, result);
    QFETCH(QString, reason);
    QFETCH(int, code);
    Started started;
    for (const QString &line : before)
        QVERIFY2(started.simulated.control(line).isDone(), qPrintable(line));
    TestClient client(hub ? started.simulated.hubPort() : started.simulated.controllerPort());
    QVERIFY(client.waitConnected());

    const QJsonObject answer = client.call(
        method, params.isEmpty() ? QJsonValue(QJsonValue::Undefined) : QJsonValue(params));
    QCOMPARE(answer["jsonrpc"], QJsonValue("2.0"));
    QCOMPARE(answer.contains("result"), !result.isUndefined());
    QCOMPARE(answer["result"], result);
    QCOMPARE(answer["error"]["code"].toInt(), code);
    QVERIFY2(answer["error"]["message"].toString().contains(reason),
             qPrintable(answer["error"]["message"].toString()));
    QCOMPARE(started.problems.size(), 0);
}

void TestSimulator::control_data()
{
    QTest::addColumn<QStringList>("lines"); ///< all but the last one are done
    QTest::addColumn<QJsonValue>("result"); ///< undefined: the last one fails
    QTest::addColumn<QString>("reason");

    const auto done = [](const QStringList &lines, const QJsonValue &result) {
        QTest::newRow(qPrintable(lines.join("; "))) << lines << result << QString();
    };
    const auto fails = [](const QStringList &lines, const char *reason) {
        QTest::newRow(qPrintable(lines.join("; ")))
            << lines << QJsonValue(QJsonValue::Undefined) << QString(reason);
    };
    done({"  hub   set  a.b   {\"x\": [1, 2]} ", "hub get a.b.x"}, QJsonArray {1, 2});
    done({"hub set a \"text with  blanks\"", "hub get a"}, "text with  blanks");
    done({"hub set a.b 1", "hub set a 2", "hub get"}, json(R"({"a": 2})"));
    done({"count system.state.get"}, 0);
    done({"fault late_answer x * 20", "fault clear", "program stop"}, true);
    done({"fault silent 600000"}, true);
    fails({"program start"}, "motors are off");
    fails({"set power on", "program start", "set mode auto"}, "program runs");
    fails({""}, "unknown control command ''");
    fails({"jump"}, "known: answer, count");
    fails({"set power"}, "usage: set power on|off");
    fails({"set power ON"}, "usage");
    fails({"set level -1"}, "usage: set level");
    fails({"set robot_template x"}, "usage: set robot_template");
    fails({"set speed 1"}, "usage");
    fails({"program"}, "usage: program start|stop");
    fails({"hub set a"}, "usage: hub set");
    fails({"hub set a..b 1"}, "empty step");
    fails({"hub set a {"}, "not JSON");
    fails({"hub set a 1, 2"}, "one value");
    fails({"hub set a 1], [2"}, "not JSON");
    fails({"hub get a b"}, "usage");
    fails({"notify p"}, "usage: notify");
    fails({"notify p x"}, "not JSON");
    fails({"answer plugin p 1"}, "ARRAY");
    fails({"answer robot p 1"}, "usage: answer");
    fails({"fault sleepy"}, "unknown fault 'sleepy' (known: no_answer");
    fails({"fault refusal x 0"}, "usage: fault");
    fails({"fault refusal x 1 5"}, "usage: fault");
    fails({"fault hub_down x"}, "usage: fault");
    fails({"fault late_answer x 1 600001"}, "usage: fault");
    fails({"drop"}, "usage: drop");
    fails({"last"}, "usage: last");
    fails({"state now"}, "usage: state");
}

void TestSimulator::control()
{
    QFETCH(QStringList, lines);
    QFETCH(QJsonValue, result);
    QFETCH(QString, reason);
    Simulator simulated;
    for (const QString &line : lines.mid(0, lines.size() - 1))
        QVERIFY2(simulated.control(line).isDone(), qPrintable(line));
    const simulator::Reply reply = simulated.control(lines.last());
    QCOMPARE(reply.isDone(), !result.isUndefined());
    if (reply.isDone())
        QCOMPARE(reply.result, result);
    QVERIFY2(reply.reason.contains(reason), qPrintable(reply.reason));
}

void TestSimulator::stateIsNotified()
{
    Started started;
    TestClient client(started.simulated.controllerPort());
    QVERIFY(client.waitConnected());
    client.call("system.state.switch_motor_on");
    client.call("system.state.switch_motor_on"); // no change
    client.call("rl_program.start");
    client.call("system.state.switch_motor_off"); // stops the program first
    client.call("system.state.switch_auto");

    QStringList seen;
    for (const QJsonObject &notification : qAsConst(client.notifications)) {
        QCOMPARE(notification["method"], QJsonValue("notify"));
        QCOMPARE(notification["params"]["path"], QJsonValue("system.state"));
        const QJsonValue value = notification["params"]["value"];
        QCOMPARE(value.toObject().size(), 7);
        seen += value["power"].toString() + ' ' + value["mode"].toString() + ' '
            + value["state"].toString();
    }
    QCOMPARE(seen,
             QStringList({"on manual idle", "on manual program", "on manual idle",
                          "off manual idle", "off auto idle"}));
}

void TestSimulator::hubChangesAreNotified()
{
    Started started;
    TestClient writer(started.simulated.hubPort());
    TestClient reader(started.simulated.hubPort());
    QVERIFY(writer.waitConnected() && reader.waitConnected());
    writer.call("hub.set", json(R"({"key": "a", "sub": "b", "value": [1]})"));
    writer.call("hub.set", json(R"({"key": "a.b", "sub": "", "value": [1]})")); // no change
    writer.call("hub.set", json(R"({"key": "a", "value": "x"})"));
    QTRY_COMPARE(reader.notifications.size(), 2);
    QCOMPARE(reader.notifications[0]["method"], QJsonValue("hub.changed"));
    QCOMPARE(reader.notifications[0]["params"],
             QJsonValue(json(R"({"key": "a.b", "value": [1]})")));
    QCOMPARE(reader.notifications[1]["params"], QJsonValue(json(R"({"key": "a", "value": "x"})")));
    QCOMPARE(writer.notifications, reader.notifications);
}

void TestSimulator::watches()
{
    Started started;
    const auto watched = [&started] { return started.simulated.state()["watches"].toArray(); };
    TestClient one(started.simulated.hubPort());
    auto two = std::make_unique<TestClient>(started.simulated.hubPort());
    QVERIFY(one.waitConnected() && two->waitConnected());
    one.call("hub.watch", json(R"({"key": "b", "on": true})"));
    two->call("hub.watch", json(R"({"key": "a", "on": true})"));
    two->call("hub.watch", json(R"({"key": "b", "on": true})"));
    QCOMPARE(watched(), QJsonArray({"a", "b"}));
    one.call("hub.watch", json(R"({"key": "b", "on": false})"));
    QCOMPARE(watched(), QJsonArray({"a", "b"}));
    two.reset();
    QTRY_COMPARE(watched(), QJsonArray());
}

void TestSimulator::notifyReachesEveryClient()
{
    Started started;
    TestClient one(started.simulated.controllerPort());
    TestClient two(started.simulated.controllerPort());
    TestClient atHub(started.simulated.hubPort());
    QVERIFY(one.waitConnected() && two.waitConnected() && atHub.waitConnected());
    QVERIFY(started.simulated.control("notify weld.seam {\"mm\": 3}").isDone());
    QTRY_COMPARE(one.notifications.size(), 1);
    QTRY_COMPARE(two.notifications.size(), 1);
    QCOMPARE(one.notifications[0]["params"],
             QJsonValue(json(R"({"path": "weld.seam", "value": {"mm": 3}})")));
    atHub.call("hub.snapshot");
    QCOMPARE(atHub.notifications.size(), 0);
}

void TestSimulator::malformedInput_data()
{
    QTest::addColumn<QByteArray>("frame");
    QTest::addColumn<bool>("binary");
    QTest::newRow("no JSON") << QByteArray("hello") << false;
    QTest::newRow("cut off") << QByteArray(R"({"jsonrpc": "2.0", "id": 1)") << false;
    QTest::newRow("two objects") << QByteArray("{}{}") << false;
    QTest::newRow("batch") << QByteArray(R"([{"jsonrpc": "2.0", "id": 1, "method": "a"}])")
                           << false;
    QTest::newRow("other version")
        << QByteArray(R"({"jsonrpc": "1.0", "id": 1, "method": "a"})") << false;
    QTest::newRow("no method") << QByteArray(R"({"jsonrpc": "2.0", "id": 1})") << false;
    QTest::newRow("scalar params")
        << QByteArray(R"({"jsonrpc": "2.0", "id": 1, "method": "a", "params": 1})") << false;
    QTest::newRow("binary") << QByteArray(R"({"jsonrpc": "2.0", "id": 1, "method": "a"})") << true;
    QTest::newRow("deep") << QByteArray(1000000, '[') << false;
}

void TestSimulator::malformedInput()
{
    QFETCH(QByteArray, frame);
    QFETCH(bool, binary);
    Started started;
    TestClient bad(started.simulated.controllerPort());
    TestClient good(started.simulated.controllerPort());
    QVERIFY(bad.waitConnected() && good.waitConnected());
    if (binary)
        bad.socket.sendBinaryMessage(frame);
    else
        bad.socket.sendTextMessage(QString::fromUtf8(frame));
    QTRY_VERIFY(!bad.isConnected());
    QCOMPARE(started.problems.size(), 1);
    const QString problem = started.problems[0][0].toString();
    QVERIFY2(problem.startsWith("controller: client closed: ") && !problem.contains('\n')
                 && problem.size() < 300,
             qPrintable(problem));
    QVERIFY(!bad.socket.closeReason().isEmpty());
    QVERIFY(good.call("system.state.get").contains("result"));
}

void TestSimulator::frameTooLarge()
{
    Started started;
    TestClient client(started.simulated.hubPort());
    QVERIFY(client.waitConnected());
    client.socket.sendTextMessage(QString(16 * 1024 * 1024 + 1, ' '));
    QTRY_VERIFY(!client.isConnected());
    QTRY_COMPARE(started.problems.size(), 1);
    QVERIFY(started.problems[0][0].toString().contains("larger than 16777216 bytes"));
}

void TestSimulator::answerTooLarge()
{
    Started started;
    const QString half(9 * 1024 * 1024, 'x');
    started.simulated.hub().set("a", half);
    started.simulated.hub().set("b", half);
    TestClient client(started.simulated.hubPort());
    QVERIFY(client.waitConnected());
    const QJsonObject answer = client.call("hub.snapshot");
    QVERIFY(answer["error"]["message"].toString().contains("one frame"));
}

void TestSimulator::clientsAreBounded()
{
    Started started;
    const quint16 port = started.simulated.controllerPort();
    const auto count
        = [&started] { return started.simulated.state().value("controller")["clients"]; };
    for (int round = 1; round <= 2; ++round) { // each place is free again in the second one
        std::vector<std::unique_ptr<TestClient>> clients;
        for (int i = 0; i < 32; ++i)
            clients.push_back(std::make_unique<TestClient>(port));
        for (const auto &client : clients)
            QVERIFY(client->waitConnected());
        QTcpSocket late;
        late.connectToHost("127.0.0.1", port);
        QTRY_COMPARE(started.problems.size(), round);
        QVERIFY(started.problems.last()[0].toString().contains("32 clients at most"));
        QTRY_COMPARE(late.state(), QAbstractSocket::UnconnectedState);
        clients.clear();
        QTRY_COMPARE(count(), QJsonValue(0));
    }
}

void TestSimulator::handshakeIsBounded()
{
    Started started;
    TestClient client(started.simulated.controllerPort());
    QVERIFY(client.waitConnected());
    QTcpSocket idle;
    idle.connectToHost("127.0.0.1", started.simulated.controllerPort());
    QTRY_COMPARE(idle.state(), QAbstractSocket::ConnectedState);
    QTRY_COMPARE_WITH_TIMEOUT(idle.state(), QAbstractSocket::UnconnectedState, 30000);
    QCOMPARE(started.problems.size(), 1);
    QVERIFY(started.problems[0][0].toString().contains("no handshake"));
    QVERIFY(client.isConnected());
}

void TestSimulator::countsAndLastArguments()
{
    Started started;
    TestClient client(started.simulated.controllerPort());
    TestClient atHub(started.simulated.hubPort());
    QVERIFY(client.waitConnected() && atHub.waitConnected());
    client.call("io.unknown", json(R"({"a": 1})"));
    client.call("io.unknown", json(R"({"a": 2})"));
    atHub.call("hub.command", json(R"({"key": "move.reset", "value": 1})"));
    atHub.call("hub.plugin", json(R"({"id": "i", "command": "S.p", "value": 1})"));

    simulator::RequestLog &requests = started.simulated.requests();
    QCOMPARE(requests.count("io.unknown"), 2);
    QCOMPARE(requests.last("io.unknown"), QJsonValue(json(R"({"a": 2})")));
    QCOMPARE(requests.count("hub.command"), 1);
    QCOMPARE(requests.count("move.reset"), 1);
    QCOMPARE(requests.count("S.p"), 1);
    QCOMPARE(started.simulated.control("count move.reset").result, QJsonValue(1));
    QCOMPARE(started.simulated.control("last S.p").result["value"], QJsonValue(1));
    QVERIFY(started.simulated.control("count reset").isDone());
    QCOMPARE(started.simulated.control("count").result, QJsonValue(QJsonObject()));
}

void TestSimulator::stopAndStartKeepState()
{
    Started started;
    Simulator &simulated = started.simulated;
    const quint16 port = simulated.controllerPort();
    const quint16 hubPort = simulated.hubPort();
    TestClient client(port);
    TestClient inHandshake(hubPort);
    QVERIFY(client.waitConnected());
    client.call("system.state.switch_motor_on");
    QVERIFY(simulated.control("hub set a.b 3").isDone());

    simulated.stop();
    QTRY_VERIFY(!client.isConnected());
    TestClient refused(port);
    QVERIFY(!refused.waitConnected());
    QCOMPARE(refused.socket.error(), QAbstractSocket::ConnectionRefusedError);
    QVERIFY(simulated.control("set level 9").isDone());

    QString error;
    QVERIFY2(simulated.start(0, 0, &error), qPrintable(error));
    QCOMPARE(simulated.controllerPort(), port);
    QCOMPARE(simulated.hubPort(), hubPort);
    TestClient again(port);
    QVERIFY(again.waitConnected());
    const QJsonObject state = again.call("system.state.get")["result"].toObject();
    QCOMPARE(state["power"], QJsonValue("on"));
    QCOMPARE(state["level"], QJsonValue(9));
    TestClient atHub(hubPort);
    QVERIFY(atHub.waitConnected());
    QCOMPARE(atHub.call("hub.snapshot").value("result")["a"]["b"], QJsonValue(3));
}

void TestSimulator::portInUse()
{
    Started started;
    Simulator other;
    QString error;
    QVERIFY(!other.start(0, started.simulated.hubPort(), &error));
    QVERIFY2(error.contains(QString::number(started.simulated.hubPort())), qPrintable(error));
    TestClient client(other.controllerPort()); // it was open for a moment
    QVERIFY(!client.waitConnected());
}

void TestSimulator::timeline()
{
    Scenario scenario;
    scenario.timeline = {{0, 0, {"hub set once 1", "program start"}},
                         {0, 10, {"hub set turn 1", "hub set turn 2", "hub set turn 3"}}};
    Started started(scenario);
    QSignalSpy changes(&started.simulated.hub(), &simulator::HubData::changed);
    QTRY_VERIFY(changes.size() >= 5);
    QStringList turns;
    for (const auto &change : changes) {
        if (change[0].toString() == "turn")
            turns += QString::number(change[1].toJsonValue().toInt());
    }
    QCOMPARE(turns.mid(0, 4), QStringList({"1", "2", "3", "1"}));
    QCOMPARE(started.simulated.hub().value("once"), QJsonValue(1));
    QCOMPARE(started.problems.size(), 1);
    QVERIFY(started.problems[0][0].toString().contains("program start: a program cannot start"));
}

void TestSimulator::blockingCallerOnAnotherThread()
{
    SimulatorFixture fixture;
    QTcpSocket socket; // blocks this thread, so that only the fixture's can answer
    socket.connectToHost("127.0.0.1", fixture.controllerPort());
    QVERIFY(socket.waitForConnected());
    socket.write("GET / HTTP/1.1\r\nHost: localhost\r\nUpgrade: websocket\r\n"
                 "Connection: Upgrade\r\nSec-WebSocket-Version: 13\r\n"
                 "Sec-WebSocket-Key: dGhlIHNhbXBsZSBub25jZQ==\r\n\r\n");
    QVERIFY(socket.waitForReadyRead());
    QVERIFY(socket.readAll().startsWith("HTTP/1.1 101"));

    fixture.control("set power on");
    QCOMPARE(fixture.control("state")["robot"]["power"], QJsonValue("on"));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("jump: unknown control command"));
    QVERIFY(fixture.control("jump").isUndefined());
    fixture.stop();
    QVERIFY(socket.waitForReadyRead()); // the state's notification
    QVERIFY(socket.state() == QAbstractSocket::UnconnectedState || socket.waitForDisconnected());
    fixture.start();
    QTcpSocket again;
    again.connectToHost("127.0.0.1", fixture.controllerPort());
    QVERIFY(again.waitForConnected());
}

QTEST_GUILESS_MAIN(TestSimulator)
#include "tst_simulator.moc"
