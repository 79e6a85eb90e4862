#include <brisa/controllermanager.h>
#include <brisa/tasknetworkmanager.h>
#include <fakepeer.h>
#include <link/limits.h>
#include <ostrel/moduleobject.h>

#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonObject>
#include <QRegularExpression>
#include <QScopedPointer>
#include <QSignalSpy>
#include <QTest>
#include <stdexcept>

using brisa::ControllerManager;
using ostrel::ModuleObject;

namespace
{

const QJsonObject idleState {{"power", "off"}, {"mode", "manual"}, {"state", "idle"}, {"level", 3},
                             {"id", "R7"},     {"version", "3.1"}, {"robot", "six"}};

QJsonObject stateWith(const QJsonObject &changes)
{
    QJsonObject state = idleState;
    for (auto it = changes.begin(); it != changes.end(); ++it)
        state.insert(it.key(), it.value());
    return state;
}

void announce(const char *text)
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QString::fromLatin1(text)));
}

QByteArray notification(const QString &path, const QJsonValue &value)
{
    return rpc::encode(
        rpc::Message::notification("notify", QJsonObject {{"path", path}, {"value", value}}));
}

} // namespace

class TestControllerManager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void stateIsThereWhenConnected();
    void unusableControllerIsTriedAgain_data();
    void unusableControllerIsTriedAgain();
    void oneChangeIsOneEvent_data();
    void oneChangeIsOneEvent();
    void wrongTypesArePassedOver();
    void argumentsTravel_data();
    void argumentsTravel();
    void waitingRequestEnds_data();
    void waitingRequestEnds();
    void notificationsComeAfterTheWait();
    void requestWithoutWaiting();
    void notifyNodeTellsEachNotification();
    void cachedNodesAreApart();
    void lossAndReconnect();
    void closeIsExpected();
    void throwingWatcherDoesNoHarm();
    void oddNotificationsAreLoggedOnce();
    void withoutLink();

private:
    void notifyState(const QJsonObject &state);
    void passNotifications();

    QScopedPointer<FakePeer> m_peer;
    QScopedPointer<ControllerManager> m_controller;
};

void TestControllerManager::init()
{
    m("brisa")->remove(nullptr, false);
    m_peer.reset(new FakePeer);
    m_peer->answer("system.state.get", idleState);
    m_peer->answer("system.controller.get_params",
                   QJsonObject {{"robot_template", 12}, {"robot", "six"}});
    m_peer->answer("sync", true);
    m_controller.reset(new ControllerManager);
    QSignalSpy connected(m_controller.data(), &ControllerManager::rcConnected);
    m_controller->open(m_peer->url());
    QVERIFY(connected.wait());
}

void TestControllerManager::cleanup()
{
    m_controller.reset();
    m_peer.reset();
}

void TestControllerManager::notifyState(const QJsonObject &state)
{
    m_peer->sendText(QString::fromUtf8(notification("system.state", state)));
}

// What the peer sent before this call has been delivered when it returns.
void TestControllerManager::passNotifications()
{
    QSignalSpy answered(m_controller->cmdItemMobj("response", "sync"), &ModuleObject::changed);
    QVERIFY(m_controller->request("sync", nullptr, 5000));
    QVERIFY(answered.wait());
}

void TestControllerManager::stateIsThereWhenConnected()
{
    ControllerManager second;
    const brisa::TaskNetworkManager network(&second);
    m("brisa")->remove(nullptr, false);
    QJsonObject seen;
    int robotTemplate = 0;
    connect(&second, &ControllerManager::rcConnected, this, [&] {
        for (const char *name : {"power", "mode", "state", "level", "id", "version"})
            seen.insert(name, m("brisa.r")->r(name)->exportToJson());
        seen.insert("robot", m("brisa.setting.robot")->exportToJson());
        robotTemplate = second.cmdItemMobj("response", "system.controller.get_params")
                            ->getInt("robot_template", 0);
        QVERIFY(network.isConnect());
    });
    QVERIFY(!network.isConnect());
    QSignalSpy connected(&second, &ControllerManager::rcConnected);
    second.open(m_peer->url());
    QVERIFY(connected.wait());
    QCOMPARE(seen, idleState);
    QCOMPARE(robotTemplate, 12);
}

void TestControllerManager::unusableControllerIsTriedAgain_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("fault");
    for (const char *command : {"system.state.get", "system.controller.get_params"}) {
        for (const char *fault : {"starting up", "not an object"})
            QTest::addRow("%s: %s", command, fault) << command << fault;
    }
}

void TestControllerManager::unusableControllerIsTriedAgain()
{
    QFETCH(QString, command);
    QFETCH(QString, fault);
    int asked = 0;
    m_peer->script(command, [&asked, fault](const rpc::Message &request) {
        if (++asked > 1)
            return QVector<QByteArray> {rpc::encode(rpc::Message::answer(request.id, idleState))};
        const rpc::Message answer = fault == "not an object"
            ? rpc::Message::answer(request.id, 5)
            : rpc::Message::refusal(request.id, rpc::refused, fault);
        return QVector<QByteArray> {rpc::encode(answer)};
    });
    announce(qPrintable("^controller: link closed: " + command + ": " + fault));
    QSignalSpy connected(m_controller.data(), &ControllerManager::rcConnected);
    m_peer->dropClients();
    QVERIFY(connected.wait());
    QCOMPARE(asked, 2);
    QCOMPARE(connected.size(), 1);
}

void TestControllerManager::oneChangeIsOneEvent_data()
{
    QTest::addColumn<QString>("member");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("power") << "power"
                           << "brisa.r.power" << QVariant("on");
    QTest::newRow("mode") << "mode"
                          << "brisa.r.mode" << QVariant("auto");
    QTest::newRow("state") << "state"
                           << "brisa.r.state" << QVariant("program");
    QTest::newRow("level") << "level"
                           << "brisa.r.level" << QVariant(9);
    QTest::newRow("id") << "id"
                        << "brisa.r.id" << QVariant("R8");
    QTest::newRow("version") << "version"
                             << "brisa.r.version" << QVariant("3.2");
    QTest::newRow("robot") << "robot"
                           << "brisa.setting.robot" << QVariant("scara");
}

void TestControllerManager::oneChangeIsOneEvent()
{
    QFETCH(QString, member);
    QFETCH(QString, key);
    QFETCH(QVariant, value);
    std::vector<std::unique_ptr<QSignalSpy>> spies;
    for (const char *name : {"brisa.r.power", "brisa.r.mode", "brisa.r.state", "brisa.r.level",
                             "brisa.r.id", "brisa.r.version", "brisa.setting.robot"})
        spies.push_back(std::make_unique<QSignalSpy>(m(name), &ModuleObject::changed));
    const QVariant before = m(key)->value();
    QSignalSpy changed(m(key), &ModuleObject::changed);
    const QJsonObject state = stateWith({{member, QJsonValue::fromVariant(value)}});
    notifyState(state);
    notifyState(state);
    passNotifications();
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.first().at(0), value);
    QCOMPARE(changed.first().at(1), before);
    QCOMPARE(changed.first().at(2).value<QObject *>(), static_cast<QObject *>(m_controller.data()));
    int events = 0;
    for (const auto &spy : spies)
        events += spy->size();
    QCOMPARE(events, 1);
}

void TestControllerManager::wrongTypesArePassedOver()
{
    announce("^the controller's power is of a wrong type");
    announce("^the controller's level is of a wrong type");
    notifyState({{"power", true}, {"level", 1.5}, {"mode", "auto"}, {"unknown", 1}});
    passNotifications();
    QCOMPARE(m("brisa.r.power")->getStr(""), QStringLiteral("off"));
    QCOMPARE(m("brisa.r.level")->getInt(0), 3);
    QCOMPARE(m("brisa.r.mode")->getStr(""), QStringLiteral("auto"));
    QCOMPARE(m("brisa.r.id")->getStr(""), QStringLiteral("R7"));
}

void TestControllerManager::argumentsTravel_data()
{
    QTest::addColumn<QJsonValue>("argument");
    QTest::addColumn<QJsonValue>("params");
    const QJsonValue nothing(QJsonValue::Undefined);
    QTest::newRow("none") << QJsonValue() << nothing;
    QTest::newRow("object") << QJsonValue(QJsonObject {{"a.b", 1}})
                            << QJsonValue(QJsonObject {{"a.b", 1}});
    QTest::newRow("list") << QJsonValue(QJsonArray {1, "x"}) << QJsonValue(QJsonArray {1, "x"});
    QTest::newRow("scalar") << QJsonValue("x") << QJsonValue(QJsonArray {"x"});
}

// The four forms, and the command's cached request node, send the same.
void TestControllerManager::argumentsTravel()
{
    QFETCH(QJsonValue, argument);
    QFETCH(QJsonValue, params);
    m_peer->answer("io.get", "done");
    ModuleObject node("request");
    if (!argument.isNull())
        node.importFromJson(nullptr, argument, true, true, false);
    const auto sent = [&](int count) {
        return QTest::qWaitFor([&] { return m_peer->received("io.get") == count; })
            && m_peer->last("io.get").params == params;
    };
    QVERIFY(m_controller->request("io", "get", argument, 1000));
    QVERIFY(sent(1));
    QVERIFY(m_controller->request("io.get", &node, 1000));
    QVERIFY(sent(2));
    QCOMPARE(m_controller->execRequest("io", "get", argument, true, 1000)->getStr(""),
             QString("done"));
    QVERIFY(sent(3));
    QVERIFY(m_controller->execRequest("io.get", &node, true, 1000));
    QVERIFY(sent(4));
    if (!argument.isNull())
        m_controller->cmdItemMobj("request", "io.get")
            ->importFromJson(nullptr, argument, true, true, false);
    QVERIFY(m_controller->execRequest("io.get", nullptr, true, 1000));
    QVERIFY(sent(5));
}

void TestControllerManager::waitingRequestEnds_data()
{
    QTest::addColumn<QString>("method");
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<bool>("answered");
    QTest::newRow("answer") << "answered" << QByteArray() << true;
    QTest::newRow("null is an answer") << "null" << QByteArray() << true;
    QTest::newRow("refusal") << "refused"
                             << QByteArray(
                                    "^controller: refused refused: emergency stop is active$")
                             << false;
    QTest::newRow("time-out") << "ignored" << QByteArray("^controller: ignored: no answer in time$")
                              << false;
    QTest::newRow("lost link") << "lost" << QByteArray("^controller: link closed: malformed")
                               << false;
}

void TestControllerManager::waitingRequestEnds()
{
    QFETCH(QString, method);
    QFETCH(QByteArray, line);
    QFETCH(bool, answered);
    m_peer->answer("answered", QJsonObject {{"x", 1}});
    m_peer->answer("null", QJsonValue());
    m_peer->refuse("refused", "emergency\nstop is active");
    m_peer->ignore("ignored");
    m_peer->script("lost", [](const rpc::Message &) { return QVector<QByteArray> {"?"}; });
    if (!line.isEmpty())
        announce(line.constData());
    QElapsedTimer time;
    time.start();
    ModuleObject *answer = m_controller->execRequest(method, nullptr, true, 200);
    QVERIFY(time.elapsed() < 2000);
    QCOMPARE(answer != nullptr, answered);
    if (answered)
        QCOMPARE(answer, m_controller->cmdItemMobj("response", method));
}

void TestControllerManager::notificationsComeAfterTheWait()
{
    m_peer->script("start", [](const rpc::Message &request) {
        return QVector<QByteArray> {
            notification("system.state", stateWith({{"state", "program"}})),
            notification("system.state", stateWith({{"state", "idle"}})),
            rpc::encode(rpc::Message::answer(request.id, 1)),
            notification("system.state", stateWith({{"state", "program"}}))};
    });
    QStringList states;
    ModuleObject *node = m("brisa.r.state");
    const auto watch = connect(node, &ModuleObject::changed, this,
                               [&](const QVariant &state) { states.append(state.toString()); });
    QVERIFY(m_controller->execRequest("start", nullptr, true, 5000));
    QVERIFY(states.isEmpty());
    QTRY_COMPARE(states, (QStringList {"program", "idle", "program"}));
    disconnect(watch);
}

void TestControllerManager::requestWithoutWaiting()
{
    m_peer->answer("get", QJsonObject {{"n", 1}});
    ModuleObject *response = m_controller->cmdItemMobj("response", "get");
    QSignalSpy changed(response, &ModuleObject::changed);
    QVERIFY(!m_controller->execRequest("get", nullptr, false, 1000)); // no answer before it
    QVERIFY(changed.wait());
    QCOMPARE(response->getInt("n", 0), 1);
    m_peer->answer("get", QJsonObject {{"n", 2}});
    QCOMPARE(m_controller->execRequest("get", nullptr, false, 1000), response);
    QCOMPARE(response->getInt("n", 0), 1);
    QVERIFY(changed.wait());
    QCOMPARE(response->getInt("n", 0), 2);
    announce("^controller: unknown refused: unknown method$");
    QVERIFY(m_controller->request("unknown", nullptr, 1000));
    passNotifications();
}

void TestControllerManager::notifyNodeTellsEachNotification()
{
    ModuleObject *node = m_controller->cmdItemMobj("notify", "move.error");
    QSignalSpy changed(node, &ModuleObject::changed);
    const QJsonObject value {{"code", 7}, {"axes", QJsonArray {1, 2}}};
    for (const QJsonValue &sent : {QJsonValue(value), QJsonValue(value), QJsonValue("text"),
                                   QJsonValue("text"), QJsonValue()})
        m_peer->sendText(QString::fromUtf8(notification("move.error", sent)));
    m_peer->sendText(QString::fromUtf8(notification("move", "another")));
    passNotifications();
    QCOMPARE(changed.size(), 5);
    QCOMPARE(QJsonValue::fromVariant(changed.at(1).at(0)), QJsonValue(value));
    QCOMPARE(changed.at(3).at(0), QVariant("text"));
    QCOMPARE(node->exportToJson(), QJsonValue());
}

void TestControllerManager::cachedNodesAreApart()
{
    m_peer->answer("a", QJsonObject {{"b", QJsonObject {{"c", 1}}}});
    m_peer->answer("a.b", "text");
    ModuleObject *outer = m_controller->execRequest("a", nullptr, true, 1000);
    ModuleObject *inner = m_controller->execRequest("a.b", nullptr, true, 1000);
    QCOMPARE(outer->getInt("b.c", 0), 1);
    QCOMPARE(inner->getStr(""), QStringLiteral("text"));
    QVERIFY(m_controller->cmdItemMobj("request", "a")->isNull());
    announce("^controller: no group of nodes: requests$");
    QVERIFY(m_controller->cmdItemMobj("requests", "a"));
}

void TestControllerManager::lossAndReconnect()
{
    QSignalSpy connected(m_controller.data(), &ControllerManager::rcConnected);
    QSignalSpy disconnected(m_controller.data(), &ControllerManager::rcDisconnected);
    QSignalSpy power(m("brisa.r.power"), &ModuleObject::changed);
    QSignalSpy mode(m("brisa.r.mode"), &ModuleObject::changed);
    m_peer->answer("system.state.get", stateWith({{"mode", "auto"}}));
    m_peer->dropClients();
    QVERIFY(disconnected.wait());
    QCOMPARE(disconnected.first().first().toBool(), false);
    QVERIFY(!m_controller->isConnected());
    QVERIFY(connected.wait());
    QVERIFY(m_controller->isConnected());
    QCOMPARE(power.size(), 0);
    QCOMPARE(mode.size(), 1);
}

void TestControllerManager::closeIsExpected()
{
    QSignalSpy disconnected(m_controller.data(), &ControllerManager::rcDisconnected);
    m_controller->close();
    QCOMPARE(disconnected.size(), 1);
    QCOMPARE(disconnected.first().first().toBool(), true);
    QVERIFY(!m_controller->isConnected());
    m_controller->close();
    QCOMPARE(disconnected.size(), 1);
}

void TestControllerManager::throwingWatcherDoesNoHarm()
{
    const auto watch = connect(m("brisa.r.power"), &ModuleObject::changed, this,
                               [] { throw std::runtime_error("plugin fault"); });
    announce("^brisa.r.power: a receiver threw: plugin fault$");
    notifyState(stateWith({{"power", "on"}, {"mode", "auto"}}));
    passNotifications();
    QCOMPARE(m("brisa.r.power")->getStr(""), QStringLiteral("on"));
    QCOMPARE(m("brisa.r.mode")->getStr(""), QStringLiteral("auto"));
    disconnect(watch);
}

void TestControllerManager::oddNotificationsAreLoggedOnce()
{
    announce("^controller: a notification without meaning here: surprise$");
    m_peer->notify("surprise", QJsonObject {{"path", "x"}, {"value", 1}});
    m_peer->notify("notify", QJsonObject {{"path", ""}, {"value", 1}});
    m_peer->notify("notify", QJsonArray {1});
    passNotifications();
}

void TestControllerManager::withoutLink()
{
    ControllerManager idle;
    QVERIFY(!idle.isConnected());
    QVERIFY(!idle.request("a", nullptr, 100));
    QVERIFY(!idle.request("a", "b", 5, 100));
    QVERIFY(!idle.execRequest("a", nullptr, true, 100));
    QVERIFY(!idle.execRequest("a", "b", 5, false, 100));
    QVERIFY(idle.cmdItemMobj("response", "a")->isNull());
    idle.close();
}

QTEST_GUILESS_MAIN(TestControllerManager)
#include "tst_controllermanager.moc"
