#include "testclient.h"

#include <QtTest>
#include <simulator/simulator.h>

using simulator::Faults;
using simulator::Simulator;

/** What an injected fault makes a client see. */
class TestFaults : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void requests_data();
    void requests();
    void lateAnswer();
    void lateAnswerOfAClientThatLeft();
    void timesAndOrder();
    void byHubKey();
    void endpointDown_data();
    void endpointDown();
    void downFromTheStart();
    void conditionsEndByThemselves();
    void silence();
    void silenceIsBounded();
    void dropClients();

private:
    bool control(const QByteArray &line);

    std::unique_ptr<Simulator> m_simulated;
};

void TestFaults::init()
{
    m_simulated = std::make_unique<Simulator>();
    QString error;
    QVERIFY2(m_simulated->start(0, 0, &error), qPrintable(error));
}

void TestFaults::cleanup()
{
    m_simulated.reset();
}

bool TestFaults::control(const QByteArray &line)
{
    return m_simulated->control(QString::fromUtf8(line)).isDone();
}

void TestFaults::requests_data()
{
    QTest::addColumn<QByteArray>("fault");
    QTest::addColumn<bool>("carriedOut");
    QTest::addColumn<QStringList>("seen"); ///< answers in their order; "!": the link is cut
    QTest::newRow("no answer") << QByteArray("no_answer") << false << QStringList();
    QTest::newRow("wrong") << QByteArray("wrong_answer") << false
                           << QStringList {"\"wrong answer\""};
    QTest::newRow("repeated") << QByteArray("repeated_answer") << true
                              << QStringList {"true", "true"};
    QTest::newRow("unasked") << QByteArray("unasked_answer") << false << QStringList {"other"};
    QTest::newRow("refusal") << QByteArray("refusal") << false << QStringList {"refused"};
    QTest::newRow("dropped") << QByteArray("dropped_link") << false << QStringList {"!"};
    QTest::newRow("malformed") << QByteArray("malformed_frame") << false << QStringList {"garbage"};
}

void TestFaults::requests()
{
    QFETCH(QByteArray, fault);
    QFETCH(bool, carriedOut);
    QFETCH(QStringList, seen);
    TestClient client(m_simulated->controllerPort());
    QVERIFY(client.waitConnected());
    QVERIFY(control("fault " + fault + " system.state.switch_motor_on 1"));

    const int id = client.send("system.state.switch_motor_on");
    if (seen == QStringList {"!"}) {
        QTRY_VERIFY(!client.isConnected());
        QVERIFY(client.answers.isEmpty());
    } else {
        QVERIFY(client.call("system.state.get").contains("result")); // answered in order
        client.answers.removeLast();
        QStringList found;
        for (const QJsonObject &answer : qAsConst(client.answers)) {
            if (answer["id"].toInt() != id)
                found += "other";
            else if (answer.contains("error"))
                found += "refused";
            else
                found += answer["result"].isBool() ? "true" : "\"wrong answer\"";
        }
        for (int i = 0; i < client.garbage.size(); ++i)
            found += "garbage";
        QCOMPARE(found, seen);
    }
    QCOMPARE(m_simulated->robot().values().power, carriedOut);
    QCOMPARE(m_simulated->requests().count("system.state.switch_motor_on"), 1);
}

void TestFaults::lateAnswer()
{
    TestClient client(m_simulated->controllerPort());
    QVERIFY(client.waitConnected());
    QVERIFY(control("fault late_answer system.state.switch_motor_on 1 60"));
    QElapsedTimer timer;
    timer.start();
    const int late = client.send("system.state.switch_motor_on");
    QVERIFY(client.call("system.state.get").contains("result"));
    QCOMPARE(client.answers.size(), 1);
    QTRY_COMPARE(client.answers.size(), 2);
    QVERIFY(timer.elapsed() >= 50); // a coarse timer may come 5 % early
    QCOMPARE(client.answers[1]["id"].toInt(), late);
}

void TestFaults::lateAnswerOfAClientThatLeft()
{
    auto client = std::make_unique<TestClient>(m_simulated->controllerPort());
    QVERIFY(client->waitConnected());
    QVERIFY(control("fault late_answer * * 30"));
    client->send("system.state.get");
    QTRY_COMPARE(m_simulated->requests().count("system.state.get"), 1);
    client.reset();
    TestClient other(m_simulated->controllerPort());
    QVERIFY(other.waitConnected());
    QVERIFY(other.call("system.state.get").contains("result"));
    QCOMPARE(other.answers.size(), 1);
}

void TestFaults::timesAndOrder()
{
    TestClient client(m_simulated->controllerPort());
    QVERIFY(client.waitConnected());
    QVERIFY(control("fault refusal system.state.get 2"));
    QVERIFY(control("fault wrong_answer *"));
    const auto next = [&client](const char *method) {
        const QJsonObject answer = client.call(method);
        return answer.contains("error") ? QString("refused") : answer["result"].toString("right");
    };
    QCOMPARE(next("system.controller.get_params"), QString("wrong answer"));
    QCOMPARE(next("system.state.get"), QString("refused"));
    QCOMPARE(next("system.state.get"), QString("refused"));
    QCOMPARE(next("system.state.get"), QString("wrong answer"));
    QVERIFY(control("fault clear"));
    QCOMPARE(next("system.state.get"), QString("right"));
}

void TestFaults::byHubKey()
{
    TestClient client(m_simulated->hubPort());
    QVERIFY(client.waitConnected());
    QVERIFY(control("fault refusal echo"));
    QVERIFY(control("fault refusal ServiceAPI.plugin"));
    QVERIFY(client.call("hub.command", json(R"({"key": "echo"})")).contains("error"));
    QVERIFY(client.call("hub.plugin", json(R"({"id": "1", "command": "ServiceAPI.plugin"})"))
                .contains("error"));
    QVERIFY(client.call("hub.set", json(R"({"key": "echo", "value": 1})")).contains("result"));
}

void TestFaults::endpointDown_data()
{
    QTest::addColumn<QByteArray>("fault");
    QTest::addColumn<bool>("hub");
    QTest::newRow("hub") << QByteArray("hub_down") << true;
    QTest::newRow("controller") << QByteArray("controller_down") << false;
}

void TestFaults::endpointDown()
{
    QFETCH(QByteArray, fault);
    QFETCH(bool, hub);
    const quint16 port = hub ? m_simulated->hubPort() : m_simulated->controllerPort();
    const quint16 otherPort = hub ? m_simulated->controllerPort() : m_simulated->hubPort();
    TestClient client(port);
    TestClient other(otherPort);
    QVERIFY(client.waitConnected() && other.waitConnected());
    QVERIFY(control("fault " + fault));
    QTRY_VERIFY(!client.isConnected());
    TestClient refused(port);
    QVERIFY(!refused.waitConnected());
    QVERIFY(!other.call(hub ? "system.state.get" : "hub.snapshot").isEmpty());
    QVERIFY(control("fault clear"));
    TestClient again(port);
    QVERIFY(again.waitConnected());
}

void TestFaults::downFromTheStart()
{
    simulator::Scenario scenario;
    scenario.faults = {Faults::withDefaults(simulator::FaultKind::HubDown)};
    Simulator simulated(scenario);
    QString error;
    QVERIFY2(simulated.start(0, 0, &error), qPrintable(error));
    QVERIFY(simulated.hubPort() != 0);
    TestClient client(simulated.hubPort());
    QVERIFY(!client.waitConnected());
    simulated.faults().clear();
    TestClient again(simulated.hubPort());
    QVERIFY(again.waitConnected());
}

void TestFaults::conditionsEndByThemselves()
{
    const auto isDown
        = [this] { return m_simulated->faults().isActive(simulator::FaultKind::HubDown); };
    QVERIFY(control("fault hub_down 20"));
    QVERIFY(control("fault controller_down 600000")); // leaves the hub's time alone
    QTRY_VERIFY(!isDown());
    TestClient client(m_simulated->hubPort());
    QVERIFY(client.waitConnected());

    QVERIFY(control("fault hub_down 1"));
    QVERIFY(control("fault hub_down 600000")); // takes the place of the one before
    QSignalSpy changes(&m_simulated->faults(), &Faults::conditionsChanged);
    QVERIFY(control("fault controller_down 1"));
    QTRY_COMPARE(changes.size(), 2); // it came and went
    QVERIFY(isDown());
}

void TestFaults::silence()
{
    TestClient client(m_simulated->controllerPort());
    QVERIFY(client.waitConnected());
    client.socket.ping();
    QTRY_COMPARE(client.pongs.size(), 1);

    QVERIFY(control("fault silent"));
    client.socket.ping();
    client.send("system.state.get");
    QVERIFY(control("set power on"));
    TestClient later(m_simulated->controllerPort()); // connects, but to a silent peer
    QVERIFY(later.waitConnected());
    later.send("system.state.get");
    QTest::qWait(0);
    QCOMPARE(m_simulated->requests().count("system.state.get"), 0);
    QCOMPARE(client.pongs.size(), 1);
    QVERIFY(client.notifications.isEmpty());

    QVERIFY(control("fault clear"));
    QTRY_COMPARE(client.pongs.size(), 2);
    QTRY_COMPARE(client.answers.size(), 1);
    QTRY_COMPARE(later.answers.size(), 1);
    QCOMPARE(client.notifications.size(), 1);
}

void TestFaults::silenceIsBounded()
{
    QSignalSpy problems(m_simulated.get(), &Simulator::problem);
    TestClient client(m_simulated->controllerPort());
    QVERIFY(client.waitConnected());
    QVERIFY(control("fault silent"));
    const QJsonValue value(QString(10 * 1024 * 1024, 'x'));
    for (int i = 0; i < 5; ++i)
        m_simulated->notify("p", value);
    QTRY_VERIFY(!client.isConnected());
    QCOMPARE(problems.size(), 1);
    QVERIFY(problems[0][0].toString().contains("does not read"));
}

void TestFaults::dropClients()
{
    TestClient client(m_simulated->controllerPort());
    TestClient atHub(m_simulated->hubPort());
    QVERIFY(client.waitConnected() && atHub.waitConnected());
    QVERIFY(control("drop hub"));
    QTRY_VERIFY(!atHub.isConnected());
    QVERIFY(control("drop controller"));
    QTRY_VERIFY(!client.isConnected());
    const auto clients = [this] { return m_simulated->state().value("controller")["clients"]; };
    QTRY_COMPARE(clients(), QJsonValue(0));
    TestClient again(m_simulated->controllerPort());
    QVERIFY(again.waitConnected());
}

QTEST_GUILESS_MAIN(TestFaults)
#include "tst_faults.moc"
