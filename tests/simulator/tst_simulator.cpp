#include "testclient.h"

#include <QJsonArray>
#include <QTcpSocket>
#include <QtTest>
#include <simulator/simulator.h>

using simulator::Scenario;
using simulator::Simulator;

namespace
{
/** A simulator on ephemeral ports in the test's thread. */
struct Started : Simulator {
    explicit Started(const Scenario &scenario = {})
        : Simulator(scenario)
    {
        QString error;
        if (!start(0, 0, &error))
            qFatal("%s", qPrintable(error));
    }

    QSignalSpy problems {this, &Simulator::problem};
};
} // namespace

class TestSimulator : public QObject
{
    Q_OBJECT

private slots:
    void commands_data()
    {
        QTest::addColumn<QStringList>("before"); ///< control lines
        QTest::addColumn<QByteArray>("method"); ///< "at ENDPOINT " before: the other one
        QTest::addColumn<QByteArray>("params");
        QTest::addColumn<QByteArray>("result"); ///< JSON; "": a refusal
        QTest::addColumn<QString>("reason"); ///< part of the refusal's
        QTest::addColumn<int>("code");

        const auto done = [](const char *name, const QStringList &before, const char *method,
                             const char *params, const char *result) {
            QTest::newRow(name) << before << QByteArray(method) << QByteArray(params)
                                << QByteArray(result) << QString() << 0;
        };
        const auto refused = [](const char *name, const QStringList &before, const char *method,
                                const char *params, const char *reason, int code = -32000) {
            QTest::newRow(name) << before << QByteArray(method) << QByteArray(params)
                                << QByteArray() << QString(reason) << code;
        };
        const QStringList running {"set power on", "program start"};
        const char *const plugin = R"({"id": "1", "command": "ServiceAPI.plugin", "value": 3})";
        done(
            "state",
            {"set level 4", "set id A B", "set version 3.3.1", "set robot SEVEN", "set mode auto"},
            "system.state.get", "",
            R"({"power": "off", "mode": "auto", "state": "idle", "level": 4, "id": "A B", "version": "3.3.1", "robot": "SEVEN"})");
        done("parameters", {"set robot_template 5", "set robot X"}, "system.controller.get_params",
             "", R"({"robot_template": 5, "robot": "X"})");
        done("motors off while running", running, "system.state.switch_motor_off", "", "true");
        refused("mode while running", running, "system.state.switch_auto", "", "program runs");
        refused("start without motors", {}, "rl_program.start", "", "motors are off");
        refused("start twice", running, "rl_program.start", "", "already");
        refused("unknown", {}, "io_signal.jump", "", "'io_signal.jump'", -32601);
        done("fixed answer", {"answer controller io_signal.jump [1, 2]"}, "io_signal.jump", "",
             "[1, 2]");
        refused("hub command at the controller", {}, "at controller hub.snapshot", "", "unknown",
                -32601);
        refused("controller command at the hub", {}, "at hub system.state.get", "", "unknown",
                -32601);

        done("snapshot", {"hub set a.b 1", "hub set a.c [2]", "hub set d null"}, "hub.snapshot", "",
             R"({"a": {"b": 1, "c": [2]}, "d": null})");
        refused("set below a value", {"hub set a 1"}, "hub.set",
                R"({"key": "a", "sub": "b", "value": 1})", "plain value");
        refused("set of a gap", {}, "hub.set", R"({"key": "a..b", "value": 1})", "empty step");
        refused("set without key", {}, "hub.set", R"({"value": 1})", "'key'", -32602);
        refused("set, wrong sub", {}, "hub.set", R"({"key": "a", "sub": 1, "value": 1})", "'sub'",
                -32602);
        done("echo", {}, "hub.command", R"({"key": "echo", "value": {"x": 1}})", R"({"x": 1})");
        done("hub's fixed answer", {"answer hub move.reset 0"}, "hub.command",
             R"({"key": "move.reset", "value": 1})", "0");
        done("plugin echo", {}, "hub.plugin",
             R"({"id": "1", "command": "ServiceAPI.plugin", "value": [{"a": 1}]})",
             R"({"data": [{"a": 1}]})");
        done("plugin's fixed answer", {"answer plugin ServiceAPI.plugin [7]"}, "hub.plugin", plugin,
             R"({"data": [7]})");
        refused("unknown service", {}, "hub.plugin", R"({"id": "1", "command": "x", "value": 3})",
                "'x'");
        refused("watch without on", {}, "hub.watch", R"({"key": "a"})", "'on'", -32602);
    }

    void commands()
    {
        QFETCH(QStringList, before);
        QFETCH(QByteArray, method);
        QFETCH(QByteArray, params);
        QFETCH(QByteArray, result);
        QFETCH(QString, reason);
        QFETCH(int, code);
        Started started;
        for (const QString &line : before)
            QVERIFY2(started.control(line).isDone(), qPrintable(line));
        const bool hub = method.startsWith("hub.") || method.startsWith("at hub");
        ConnectedClient client(hub ? started.hubPort() : started.controllerPort());

        const QJsonObject answer
            = client.call(method.split(' ').last(),
                          params.isEmpty() ? QJsonValue(QJsonValue::Undefined) : json(params));
        QCOMPARE(answer["jsonrpc"], QJsonValue("2.0"));
        QCOMPARE(answer.contains("result"), !result.isEmpty());
        QJsonValue given = answer["result"];
        if (method == "hub.snapshot") { // it shows the arm, too
            QJsonObject tree = given.toObject();
            QVERIFY(!tree.take("motion").isUndefined() && !tree.take("move").isUndefined());
            given = tree;
        }
        QCOMPARE(given, json("{\"result\": " + result + '}').value("result"));
        QCOMPARE(answer["error"]["code"].toInt(), code);
        const QString message = answer["error"]["message"].toString();
        QVERIFY2(message.contains(reason), qPrintable(message));
        QCOMPARE(started.problems.size(), 0);
    }

    void control_data()
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
        done({"hub set a.b 1", "hub set a 2", "hub get a"}, 2);
        done({"fault late_answer x * 20", "fault clear", "program stop"}, true);
        fails({"program start"}, "motors are off");
        fails({"set power on", "program start", "set mode auto"}, "program runs");
        fails({""}, "unknown control command ''");
        fails({"jump"}, "known: answer, count");
        fails({"set power"}, "usage: set power on|off");
        fails({"set level -1"}, "usage: set level");
        fails({"set speed 1"}, "usage");
        fails({"hub set a"}, "usage: hub set");
        fails({"hub set a..b 1"}, "empty step");
        fails({"hub set a {"}, "not JSON");
        fails({"hub set a 1, 2"}, "one value");
        fails({"hub get a b"}, "usage");
        done({"frame set tool project g 0 0 1e2 0 0 90", "frame remove tool project g"}, true);
        fails({"frame set tool project g 0 0 nan 0 0 0"}, "usage: frame");
        fails({"frame set tool global tool0 0 0 0 0 0 0"}, "belongs to the system");
        fails({"frame remove wobj global g"}, "no 'g'");
        done({"joints set 10 0 0 0 90 -5.5", "joints get"}, QJsonArray {10, 0, 0, 0, 90, -5.5});
        fails({"joints set 10 0"}, "6 axes");
        fails({"joints set 10 0 0 0 126 0"}, "axis 5");
        fails({"move"}, "usage: move stop");
        fails({"notify p"}, "usage: notify");
        fails({"notify p x"}, "not JSON");
        fails({"answer plugin p 1"}, "ARRAY");
        fails({"fault sleepy"}, "unknown fault 'sleepy' (known: no_answer");
        fails({"fault refusal x 0"}, "usage: fault");
        fails({"fault hub_down x"}, "usage: fault");
        fails({"fault late_answer x 1 600001"}, "usage: fault");
        fails({"drop"}, "usage: drop");
    }

    void control()
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

    void stateIsNotified()
    {
        Started started;
        ConnectedClient client(started.controllerPort());
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

    void hubChangesAreNotified()
    {
        Started started;
        ConnectedClient writer(started.hubPort());
        ConnectedClient reader(started.hubPort());
        writer.call("hub.set", json(R"({"key": "a", "sub": "b", "value": [1]})"));
        writer.call("hub.set", json(R"({"key": "a.b", "sub": "", "value": [1]})")); // no change
        writer.call("hub.set", json(R"({"key": "a", "value": "x"})"));
        QTRY_COMPARE(reader.notifications.size(), 2);
        QCOMPARE(reader.notifications[0]["method"], QJsonValue("hub.changed"));
        QCOMPARE(reader.notifications[0]["params"],
                 QJsonValue(json(R"({"key": "a.b", "value": [1]})")));
        QCOMPARE(reader.notifications[1]["params"],
                 QJsonValue(json(R"({"key": "a", "value": "x"})")));
        QCOMPARE(writer.notifications, reader.notifications);
    }

    void watches()
    {
        Started started;
        const auto watched = [&started] { return started.state()["watches"].toArray(); };
        ConnectedClient one(started.hubPort());
        auto two = std::make_unique<ConnectedClient>(started.hubPort());
        one.call("hub.watch", json(R"({"key": "b", "on": true})"));
        two->call("hub.watch", json(R"({"key": "a", "on": true})"));
        two->call("hub.watch", json(R"({"key": "b", "on": true})"));
        QCOMPARE(watched(), QJsonArray({"a", "b"}));
        one.call("hub.watch", json(R"({"key": "b", "on": false})"));
        QCOMPARE(watched(), QJsonArray({"a", "b"}));
        two.reset();
        QTRY_COMPARE(watched(), QJsonArray());
    }

    void notifyReachesEveryClient()
    {
        Started started;
        ConnectedClient one(started.controllerPort());
        ConnectedClient two(started.controllerPort());
        ConnectedClient atHub(started.hubPort());
        QVERIFY(started.control("notify weld.seam {\"mm\": 3}").isDone());
        QTRY_COMPARE(one.notifications.size(), 1);
        QTRY_COMPARE(two.notifications.size(), 1);
        QCOMPARE(one.notifications[0]["params"],
                 QJsonValue(json(R"({"path": "weld.seam", "value": {"mm": 3}})")));
        atHub.call("hub.snapshot");
        QCOMPARE(atHub.notifications.size(), 0);
    }

    void malformedInput_data()
    {
        QTest::addColumn<QString>("frame");
        QTest::newRow("no JSON") << "hello";
        QTest::newRow("cut off") << R"({"jsonrpc": "2.0", "id": 1)";
        QTest::newRow("two objects") << "{}{}";
        QTest::newRow("batch") << R"([{"jsonrpc": "2.0", "id": 1, "method": "a"}])";
        QTest::newRow("other version") << R"({"jsonrpc": "1.0", "id": 1, "method": "a"})";
        QTest::newRow("no method") << R"({"jsonrpc": "2.0", "id": 1})";
        QTest::newRow("scalar params")
            << R"({"jsonrpc": "2.0", "id": 1, "method": "a", "params": 1})";
        QTest::newRow("binary") << R"({"jsonrpc": "2.0", "id": 1, "method": "a"})";
        QTest::newRow("deep") << QString(1000000, '[');
    }

    void malformedInput()
    {
        QFETCH(QString, frame);
        Started started;
        ConnectedClient bad(started.controllerPort());
        ConnectedClient good(started.controllerPort());
        if (QTest::currentDataTag() == QByteArray("binary"))
            bad.socket.sendBinaryMessage(frame.toUtf8());
        else
            bad.socket.sendTextMessage(frame);
        QTRY_VERIFY(!bad.isConnected());
        QCOMPARE(started.problems.size(), 1);
        const QString problem = started.problems[0][0].toString();
        QVERIFY2(problem.startsWith("controller: client closed: ") && !problem.contains('\n')
                     && problem.size() < 300,
                 qPrintable(problem));
        QVERIFY(!bad.socket.closeReason().isEmpty());
        QVERIFY(good.call("system.state.get").contains("result"));
    }

    void framesAreBounded()
    {
        Started started;
        for (const char *key : {"a", "b"})
            started.hub().set(key, QString(9 * 1024 * 1024, 'x'));
        ConnectedClient client(started.hubPort());
        const QJsonObject answer = client.call("hub.snapshot");
        QVERIFY(answer["error"]["message"].toString().contains("one frame"));

        client.socket.sendTextMessage(QString(16 * 1024 * 1024 + 1, ' '));
        QTRY_VERIFY(!client.isConnected());
        QTRY_COMPARE(started.problems.size(), 1);
        QVERIFY(started.problems[0][0].toString().contains("larger than 16777216 bytes"));
    }

    void clientsAreBounded()
    {
        Started started;
        const quint16 port = started.controllerPort();
        const auto count = [&started] { return started.state().value("controller")["clients"]; };
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

    void handshakeIsBounded()
    {
        Started started;
        ConnectedClient client(started.controllerPort());
        started.setHandshakeLimit(100);
        QTcpSocket idle;
        idle.connectToHost("127.0.0.1", started.controllerPort());
        QTRY_COMPARE(idle.state(), QAbstractSocket::ConnectedState);
        QTRY_COMPARE_WITH_TIMEOUT(idle.state(), QAbstractSocket::UnconnectedState, 30000);
        QCOMPARE(started.problems.size(), 1);
        QVERIFY(started.problems[0][0].toString().contains("no handshake"));
        QVERIFY(client.isConnected());
    }

    void countsAndLastArguments()
    {
        Started started;
        ConnectedClient client(started.controllerPort());
        ConnectedClient atHub(started.hubPort());
        client.call("io.unknown", json(R"({"a": 1})"));
        client.call("io.unknown", json(R"({"a": 2})"));
        atHub.call("hub.command", json(R"({"key": "move.reset", "value": 1})"));
        atHub.call("hub.plugin", json(R"({"id": "i", "command": "S.p", "value": 1})"));

        simulator::RequestLog &requests = started.requests();
        QCOMPARE(requests.count("io.unknown"), 2);
        QCOMPARE(requests.last("io.unknown"), QJsonValue(json(R"({"a": 2})")));
        QCOMPARE(requests.count("hub.command"), 1);
        QCOMPARE(requests.count("move.reset"), 1);
        QCOMPARE(requests.count("S.p"), 1);
        QCOMPARE(started.control("count move.reset").result, QJsonValue(1));
        QCOMPARE(started.control("last S.p").result["value"], QJsonValue(1));
        QVERIFY(started.control("count reset").isDone());
        QCOMPARE(started.control("count").result, QJsonValue(QJsonObject()));
    }

    void stopAndStartKeepState()
    {
        Started simulated;
        const quint16 port = simulated.controllerPort();
        const quint16 hubPort = simulated.hubPort();
        ConnectedClient client(port);
        TestClient inHandshake(hubPort);
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
        ConnectedClient again(port);
        const QJsonObject state = again.call("system.state.get")["result"].toObject();
        QCOMPARE(state["power"], QJsonValue("on"));
        QCOMPARE(state["level"], QJsonValue(9));
        ConnectedClient atHub(hubPort);
        QCOMPARE(atHub.call("hub.snapshot").value("result")["a"]["b"], QJsonValue(3));
    }

    void portInUse()
    {
        Started started;
        Simulator other;
        QString error;
        QVERIFY(!other.start(0, started.hubPort(), &error));
        QVERIFY2(error.contains(QString::number(started.hubPort())), qPrintable(error));
        TestClient client(other.controllerPort()); // it was open for a moment
        QVERIFY(!client.waitConnected());
    }

    void timeline()
    {
        Scenario scenario;
        scenario.timeline = {{0, 0, {"hub set once 1", "program start"}},
                             {0, 10, {"hub set turn 1", "hub set turn 2", "hub set turn 3"}}};
        Started started(scenario);
        QSignalSpy changes(&started.hub(), &simulator::HubData::changed);
        QTRY_VERIFY(changes.size() >= 5);
        QStringList turns;
        for (const auto &change : changes) {
            if (change[0].toString() == "turn")
                turns += QString::number(change[1].toJsonValue().toInt());
        }
        QCOMPARE(turns.mid(0, 4), QStringList({"1", "2", "3", "1"}));
        QCOMPARE(started.hub().value("once"), QJsonValue(1));
        QCOMPARE(started.problems.size(), 1);
        QVERIFY(
            started.problems[0][0].toString().contains("program start: a program cannot start"));
    }
};

QTEST_GUILESS_MAIN(TestSimulator)
#include "tst_simulator.moc"
