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
#include <atomic>
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
    void init()
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

    void cleanup()
    {
        m_controller.reset();
        m_peer.reset();
    }

    void stateIsThereWhenConnected()
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

    void unusableControllerIsTriedAgain()
    {
        for (const QString command : {"system.state.get", "system.controller.get_params"}) {
            for (const QString fault : {"starting up", "not an object"}) {
                cleanup();
                init();
                std::atomic_int asked {0};
                m_peer->script(command, [&asked, fault](const rpc::Message &request) {
                    rpc::Message answer = rpc::Message::answer(request.id, idleState);
                    if (++asked == 1 && fault == "not an object")
                        answer = rpc::Message::answer(request.id, 5);
                    else if (asked == 1)
                        answer = rpc::Message::refusal(request.id, rpc::refused, fault);
                    return QVector<QByteArray> {rpc::encode(answer)};
                });
                announce(qPrintable("^controller: link closed: " + command + ": " + fault));
                QSignalSpy connected(m_controller.data(), &ControllerManager::rcConnected);
                m_peer->dropClients();
                QVERIFY(connected.wait());
                QCOMPARE(asked.load(), 2);
                QCOMPARE(connected.size(), 1);
            }
        }
    }

    void oneChangeIsOneEvent()
    {
        const std::vector<std::tuple<QString, QString, QVariant>> rows
            = {{"power", "brisa.r.power", "on"},     {"mode", "brisa.r.mode", "auto"},
               {"state", "brisa.r.state", "run"},    {"level", "brisa.r.level", 9},
               {"id", "brisa.r.id", "R8"},           {"version", "brisa.r.version", "3.2"},
               {"robot", "brisa.setting.robot", "s"}};
        QList<QVariantList> events;
        for (const auto &[member, key, value] : rows) {
            connect(m(key), &ModuleObject::changed, m_controller.data(),
                    [&events, key = key](const QVariant &now, const QVariant &before, QObject *by) {
                        events.append({key, now, before, QVariant::fromValue(by)});
                    });
        }
        QJsonObject state = idleState;
        for (const auto &[member, key, value] : rows) {
            const QVariant before = m(key)->value();
            state.insert(member, QJsonValue::fromVariant(value));
            notifyState(state);
            notifyState(state);
            passNotifications();
            const QVariant by = QVariant::fromValue<QObject *>(m_controller.data());
            QCOMPARE(std::exchange(events, {}), (QList<QVariantList> {{key, value, before, by}}));
        }
    }

    void wrongTypesArePassedOver()
    {
        announce("^the controller's power is of a wrong type");
        announce("^the controller's level is of a wrong type");
        notifyState({{"power", true}, {"level", 1.5}, {"mode", "auto"}, {"unknown", 1}});
        passNotifications();
        QCOMPARE(m("brisa.r.power")->getStr(""), QStringLiteral("off"));
        QCOMPARE(m("brisa.r.level")->getInt(0), 3);
        QCOMPARE(m("brisa.r.mode")->getStr(""), QStringLiteral("auto"));
    }

    // The four forms, and the command's cached request node, send the same.
    void argumentsTravel()
    {
        m_peer->answer("io.get", "done");
        int count = 0;
        for (const QJsonValue &argument : {QJsonValue(), QJsonValue(QJsonObject {{"a.b", 1}}),
                                           QJsonValue(QJsonArray {1, "x"}), QJsonValue("x")}) {
            const QJsonValue params = argument.isNull() ? QJsonValue(QJsonValue::Undefined)
                : argument.isString()                   ? QJsonValue(QJsonArray {argument})
                                                        : argument;
            const auto sent = [&] {
                ++count;
                return QTest::qWaitFor([&] { return m_peer->received("io.get") == count; })
                    && m_peer->last("io.get").params == params;
            };
            ModuleObject node("request");
            ModuleObject *cached = m_controller->cmdItemMobj("request", "io.get");
            for (ModuleObject *request : {&node, cached}) {
                if (!argument.isNull())
                    request->importFromJson(nullptr, argument, true, true, false);
            }
            QVERIFY(m_controller->request("io", "get", argument, 1000) && sent());
            QVERIFY(m_controller->request("io.get", &node, 1000) && sent());
            QVERIFY(m_controller->execRequest("io", "get", argument, true, 1000) && sent());
            QVERIFY(m_controller->execRequest("io.get", &node, true, 1000) && sent());
            QVERIFY(m_controller->execRequest("io.get", nullptr, true, 1000) && sent());
        }
    }

    void waitingRequestEnds()
    {
        m_peer->answer("null", QJsonValue());
        m_peer->refuse("refused", "emergency\nstop is active");
        m_peer->ignore("ignored");
        m_peer->script("lost", [](const rpc::Message &) { return QVector<QByteArray> {"?"}; });
        QElapsedTimer time;
        time.start();
        QCOMPARE(m_controller->execRequest("null", nullptr, true, 200),
                 m_controller->cmdItemMobj("response", "null"));
        const std::pair<const char *, const char *> failures[]
            = {{"refused", "^controller: refused refused: emergency stop is active$"},
               {"ignored", "^controller: ignored: no answer in time$"},
               {"lost", "^controller: link closed: malformed"}};
        for (const auto &[method, line] : failures) {
            announce(line);
            QVERIFY(!m_controller->execRequest(method, nullptr, true, 200));
        }
        QVERIFY(time.elapsed() < 4000);
    }

    void notificationsComeAfterTheWait()
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

    void requestWithoutWaiting()
    {
        ModuleObject *response = m_controller->cmdItemMobj("response", "get");
        QSignalSpy changed(response, &ModuleObject::changed);
        for (int n = 1; n <= 2; ++n) {
            m_peer->answer("get", QJsonObject {{"n", n}});
            // What it gives is the answer before this one.
            QCOMPARE(m_controller->execRequest("get", nullptr, false, 1000),
                     n == 1 ? nullptr : response);
            QCOMPARE(response->getInt("n", 0), n - 1);
            QVERIFY(changed.wait());
            QCOMPARE(response->getInt("n", 0), n);
        }
        announce("^controller: unknown refused: unknown method$");
        QVERIFY(m_controller->request("unknown", nullptr, 1000));
        passNotifications();
    }

    void notifyNodeTellsEachNotification()
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

    void cachedNodesAreApart()
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

    void lossAndReconnect()
    {
        QSignalSpy connected(m_controller.data(), &ControllerManager::rcConnected);
        QSignalSpy disconnected(m_controller.data(), &ControllerManager::rcDisconnected);
        QSignalSpy power(m("brisa.r.power"), &ModuleObject::changed);
        QSignalSpy mode(m("brisa.r.mode"), &ModuleObject::changed);
        m_peer->answer("system.state.get", stateWith({{"mode", "auto"}}));
        m_peer->dropClients();
        QVERIFY(disconnected.wait());
        QVERIFY(!m_controller->isConnected());
        QVERIFY(connected.wait());
        QVERIFY(m_controller->isConnected());
        QCOMPARE(power.size(), 0);
        QCOMPARE(mode.size(), 1);
        m_controller->close();
        m_controller->close();
        QVERIFY(!m_controller->isConnected());
        const QList<QVariantList> expected {{false}, {true}}; // whether it was asked for
        QCOMPARE(disconnected, expected);
    }

    void throwingWatcherDoesNoHarm()
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

    void oddNotificationsAreLoggedOnce()
    {
        announce("^controller: a notification without meaning here: surprise$");
        m_peer->notify("surprise", QJsonObject {{"path", "x"}, {"value", 1}});
        m_peer->notify("notify", QJsonObject {{"path", ""}, {"value", 1}});
        m_peer->notify("notify", QJsonArray {1});
        passNotifications();
    }

    void stateThatIsNoObjectIsLogged()
    {
        announce(
            "^controller: a notification without meaning here: system.state that is no object$");
        m_peer->notify("notify", QJsonObject {{"path", "system.state"}, {"value", "on"}});
        passNotifications();
    }

    void withoutLink()
    {
        ControllerManager idle;
        QVERIFY(!idle.request("a", nullptr, 100));
        QVERIFY(!idle.execRequest("a", nullptr, true, 100));
        QVERIFY(!idle.execRequest("a", "b", 5, false, 100));
        QVERIFY(idle.cmdItemMobj("response", "a")->isNull());
        idle.close();
    }

private:
    void notifyState(const QJsonObject &state)
    {
        m_peer->sendText(QString::fromUtf8(notification("system.state", state)));
    }

    // What the peer sent before this call has been delivered when it returns.
    void passNotifications()
    {
        QSignalSpy answered(m_controller->cmdItemMobj("response", "sync"), &ModuleObject::changed);
        QVERIFY(m_controller->request("sync", nullptr, 5000));
        QVERIFY(answered.wait());
    }

    QScopedPointer<FakePeer> m_peer;
    QScopedPointer<ControllerManager> m_controller;
};

QTEST_GUILESS_MAIN(TestControllerManager)
#include "tst_controllermanager.moc"
