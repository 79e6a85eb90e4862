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
    void init()
    {
        m_simulated = std::make_unique<Simulator>();
        QString error;
        QVERIFY2(m_simulated->start(0, 0, &error), qPrintable(error));
    }

    void cleanup() { m_simulated.reset(); }

    void requests_data()
    {
        QTest::addColumn<bool>("carriedOut");
        QTest::addColumn<QStringList>("seen"); ///< answers in their order; "!": the link is cut
        QTest::newRow("no_answer") << false << QStringList();
        QTest::newRow("wrong_answer") << false << QStringList {"wrong"};
        QTest::newRow("repeated_answer") << true << QStringList {"true", "true"};
        QTest::newRow("unasked_answer") << false << QStringList {"other"};
        QTest::newRow("refusal") << false << QStringList {"refused"};
        QTest::newRow("dropped_link") << false << QStringList {"!"};
        QTest::newRow("malformed_frame") << false << QStringList {"garbage"};
    }

    void requests()
    {
        QFETCH(bool, carriedOut);
        QFETCH(QStringList, seen);
        ConnectedClient client(m_simulated->controllerPort());
        QVERIFY(control(QByteArray("fault ") + QTest::currentDataTag()
                        + " system.state.switch_motor_on 1"));

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
                    found += answer["result"].isBool() ? "true" : "wrong";
            }
            for (int i = 0; i < client.garbage.size(); ++i)
                found += "garbage";
            QCOMPARE(found, seen);
        }
        QCOMPARE(m_simulated->robot().values().power, carriedOut);
        QCOMPARE(m_simulated->requests().count("system.state.switch_motor_on"), 1);
    }

    void lateAnswer()
    {
        ConnectedClient client(m_simulated->controllerPort());
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

    void lateAnswerOfAClientThatLeft()
    {
        auto client = std::make_unique<ConnectedClient>(m_simulated->controllerPort());
        QVERIFY(control("fault late_answer * * 30"));
        client->send("system.state.get");
        QTRY_COMPARE(m_simulated->requests().count("system.state.get"), 1);
        client.reset();
        ConnectedClient other(m_simulated->controllerPort());
        QVERIFY(other.call("system.state.get").contains("result"));
        QCOMPARE(other.answers.size(), 1);
    }

    void timesAndOrder()
    {
        ConnectedClient client(m_simulated->controllerPort());
        QVERIFY(control("fault refusal system.state.get 2"));
        QVERIFY(control("fault wrong_answer *"));
        QStringList seen;
        for (const char *method : {"system.controller.get_params", "system.state.get",
                                   "system.state.get", "system.state.get"}) {
            const QJsonObject answer = client.call(method);
            seen += answer.contains("error") ? "refused" : answer["result"].toString();
        }
        QCOMPARE(seen, QStringList({"wrong answer", "refused", "refused", "wrong answer"}));
        QVERIFY(control("fault clear"));
        QVERIFY(client.call("system.state.get")["result"].isObject());
    }

    void byHubKey()
    {
        ConnectedClient client(m_simulated->hubPort());
        QVERIFY(control("fault refusal echo"));
        QVERIFY(control("fault refusal ServiceAPI.plugin"));
        QVERIFY(client.call("hub.command", json(R"({"key": "echo"})")).contains("error"));
        QVERIFY(client.call("hub.plugin", json(R"({"id": "1", "command": "ServiceAPI.plugin"})"))
                    .contains("error"));
        QVERIFY(client.call("hub.set", json(R"({"key": "echo", "value": 1})")).contains("result"));
    }

    void endpointDown_data()
    {
        QTest::addColumn<bool>("hub");
        QTest::newRow("hub_down") << true;
        QTest::newRow("controller_down") << false;
    }

    void endpointDown()
    {
        QFETCH(bool, hub);
        const quint16 port = hub ? m_simulated->hubPort() : m_simulated->controllerPort();
        const quint16 otherPort = hub ? m_simulated->controllerPort() : m_simulated->hubPort();
        ConnectedClient client(port);
        ConnectedClient other(otherPort);
        QVERIFY(control(QByteArray("fault ") + QTest::currentDataTag()));
        QTRY_VERIFY(!client.isConnected());
        TestClient refused(port);
        QVERIFY(!refused.waitConnected());
        QVERIFY(!other.call(hub ? "system.state.get" : "hub.snapshot").isEmpty());
        QVERIFY(control("fault clear"));
        ConnectedClient again(port);
    }

    void downFromTheStart()
    {
        simulator::Scenario scenario;
        scenario.faults = {Faults::withDefaults(simulator::FaultKind::HubDown)};
        m_simulated = std::make_unique<Simulator>(scenario);
        QVERIFY(m_simulated->start(0, 0, nullptr));
        TestClient client(m_simulated->hubPort());
        QVERIFY(!client.waitConnected());
        QVERIFY(control("fault clear"));
        ConnectedClient again(m_simulated->hubPort());
    }

    void conditionsEndByThemselves()
    {
        const auto isDown
            = [this] { return m_simulated->faults().isActive(simulator::FaultKind::HubDown); };
        QVERIFY(control("fault hub_down 20"));
        QVERIFY(control("fault controller_down 600000")); // leaves the hub's time alone
        QTRY_VERIFY(!isDown());
        ConnectedClient client(m_simulated->hubPort());

        QVERIFY(control("fault hub_down 1"));
        QVERIFY(control("fault hub_down 600000")); // takes the place of the one before
        QSignalSpy changes(&m_simulated->faults(), &Faults::conditionsChanged);
        QVERIFY(control("fault controller_down 1"));
        QTRY_COMPARE(changes.size(), 2); // it came and went
        QVERIFY(isDown());
    }

    void silence()
    {
        ConnectedClient client(m_simulated->controllerPort());
        client.socket.ping();
        QTRY_COMPARE(client.pongs.size(), 1);

        QVERIFY(control("fault silent"));
        client.socket.ping();
        client.send("system.state.get");
        QVERIFY(control("set power on"));
        ConnectedClient later(m_simulated->controllerPort()); // connects, but to a silent peer
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

    void silenceIsBounded()
    {
        QSignalSpy problems(m_simulated.get(), &Simulator::problem);
        ConnectedClient client(m_simulated->controllerPort());
        QVERIFY(control("fault silent"));
        const QJsonValue value(QString(10 * 1024 * 1024, 'x'));
        for (int i = 0; i < 5; ++i)
            m_simulated->notify("p", value);
        QTRY_VERIFY(!client.isConnected());
        QCOMPARE(problems.size(), 1);
        QVERIFY(problems[0][0].toString().contains("does not read"));
    }

    void dropClients()
    {
        ConnectedClient client(m_simulated->controllerPort());
        ConnectedClient atHub(m_simulated->hubPort());
        QVERIFY(control("drop hub"));
        QTRY_VERIFY(!atHub.isConnected());
        QVERIFY(control("drop controller"));
        QTRY_VERIFY(!client.isConnected());
        const auto clients = [this] { return m_simulated->state().value("controller")["clients"]; };
        QTRY_COMPARE(clients(), QJsonValue(0));
        ConnectedClient again(m_simulated->controllerPort());
    }

private:
    bool control(const QByteArray &line)
    {
        return m_simulated->control(QString::fromUtf8(line)).isDone();
    }

    std::unique_ptr<Simulator> m_simulated;
};

QTEST_GUILESS_MAIN(TestFaults)
#include "tst_faults.moc"
