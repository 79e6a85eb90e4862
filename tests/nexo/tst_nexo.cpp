#include <brisa/managerhelper.h>
#include <brisa/settingmanager.h>
#include <fakepeer.h>
#include <nexo/nexo.h>
#include <ostrel/moduleobject.h>

#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QScopedPointer>
#include <QSignalSpy>
#include <QTest>
#include <stdexcept>

using ostrel::ModuleObject;

namespace
{

const QJsonObject keys {{"move", QJsonObject {{"speed", 5}, {"error", QJsonObject {{"code", 0}}}}},
                        {"monitor", QJsonObject {{"pers", QJsonArray {"a", "b"}}}},
                        {"name", "arm"}};

void announce(const char *text)
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QString::fromLatin1(text)));
}

QJsonValue json(const char *text)
{
    return QJsonDocument::fromJson(QByteArray("[") + text + ']').array().at(0);
}

} // namespace

class TestNexo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void keysAreMirrored_data();
    void keysAreMirrored();
    void connectedIsSetOnlyOnChange();
    void unusableHubIsTriedAgain();
    void whatIsSent_data();
    void whatIsSent();
    void waitingCommandEnds_data();
    void waitingCommandEnds();
    void changesReachWatchers_data();
    void changesReachWatchers();
    void watchesCountPerOrigin();
    void watcherSurvivesItsKey();
    void reconnectRenewsWatches();
    void badChangesAreIgnored();
    void throwingWatcherDoesNoHarm();
    void withoutLink();

private:
    void change(const QString &key, const QJsonValue &value);
    void passChanges();

    QScopedPointer<FakePeer> m_peer;
    QScopedPointer<Nexo> m_nexo;
};

void TestNexo::init()
{
    m_peer.reset(new FakePeer);
    m_peer->answer("hub.snapshot", keys);
    for (const char *method : {"hub.watch", "hub.set", "hub.command"})
        m_peer->answer(method, true);
    m_nexo.reset(new Nexo);
    QSignalSpy connected(m_nexo->mobj()->r("connected"), &ModuleObject::changed);
    m_nexo->open(m_peer->url());
    QVERIFY(connected.wait());
    QVERIFY(m_nexo->mobj()->getBool("connected", false));
}

void TestNexo::cleanup()
{
    m_nexo.reset();
    m_peer.reset();
}

void TestNexo::change(const QString &key, const QJsonValue &value)
{
    m_peer->notify("hub.changed", QJsonObject {{"key", key}, {"value", value}});
}

// What the hub sent before this call has been delivered when it returns.
void TestNexo::passChanges()
{
    static int round = 0;
    change("sync", ++round);
    QTRY_COMPARE(m_nexo->get(nullptr, "sync")->getInt(0), round);
}

void TestNexo::keysAreMirrored_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("subKey");
    QTest::addColumn<QJsonValue>("value");
    QTest::newRow("scalar") << "name"
                            << "" << json("\"arm\"");
    QTest::newRow("nested") << "move.error.code"
                            << "" << json("0");
    QTest::newRow("with sub-key") << "move"
                                  << "speed" << json("5");
    QTest::newRow("object") << "move.error"
                            << "" << json("{\"code\": 0}");
    QTest::newRow("list") << "monitor.pers"
                          << "" << json("[\"a\", \"b\"]");
    QTest::newRow("list step") << "monitor.pers.#1"
                               << "" << json("\"b\"");
    QTest::newRow("unknown") << "no.such"
                             << "key" << QJsonValue();
}

void TestNexo::keysAreMirrored()
{
    QFETCH(QString, key);
    QFETCH(QString, subKey);
    QTEST(m_nexo->get(nullptr, key, subKey)->exportToJson(), "value");
    const QString whole = subKey.isEmpty() ? key : key + '.' + subKey;
    QTEST(m_nexo->get(nullptr, whole)->exportToJson(), "value");
    QTEST(m_nexo->watchNode(whole)->exportToJson(), "value");
}

void TestNexo::connectedIsSetOnlyOnChange()
{
    QSignalSpy flag(m_nexo->mobj()->r("connected"), &ModuleObject::changed);
    m_peer->dropClients();
    QTRY_COMPARE(flag.size(), 2);
    QCOMPARE(flag.at(0).at(0).toBool(), false);
    QCOMPARE(flag.at(1).at(0).toBool(), true);
    m_nexo->close();
    QCOMPARE(flag.size(), 3);
    m_nexo->close();
    QCOMPARE(flag.size(), 3);
}

void TestNexo::unusableHubIsTriedAgain()
{
    int asked = 0;
    m_peer->script("hub.snapshot", [&asked](const rpc::Message &request) {
        const QJsonValue result = ++asked == 1 ? QJsonValue("later") : QJsonValue(keys);
        return QVector<QByteArray> {rpc::encode(rpc::Message::answer(request.id, result))};
    });
    announce("^hub: link closed: hub.snapshot: not an object$");
    QSignalSpy flag(m_nexo->mobj()->r("connected"), &ModuleObject::changed);
    m_peer->dropClients();
    QTRY_COMPARE(flag.size(), 2);
    QCOMPARE(asked, 2);
}

void TestNexo::whatIsSent_data()
{
    QTest::addColumn<QString>("method");
    QTest::addColumn<QJsonValue>("params");
    QTest::addColumn<int>("form");
    QTest::newRow("set") << "hub.set" << json(R"({"key": "k", "sub": "", "value": 5})") << 0;
    QTest::newRow("set below") << "hub.set" << json(R"({"key": "k", "sub": "s", "value": "v"})")
                               << 1;
    QTest::newRow("set a node") << "hub.set" << json(R"({"key": "k", "sub": "", "value": ["a"]})")
                                << 2;
    QTest::newRow("command") << "hub.command" << json(R"({"key": "k", "value": null})") << 3;
    QTest::newRow("command with a node")
        << "hub.command" << json(R"({"key": "k", "value": ["a"]})") << 4;
    QTest::newRow("waiting command")
        << "hub.command" << json(R"({"key": "k", "value": {"x": true}})") << 5;
    QTest::newRow("waiting command with a node")
        << "hub.command" << json(R"({"key": "k", "value": ["a"]})") << 6;
    QTest::newRow("plugin command")
        << "hub.plugin" << json(R"({"id": "i_1", "command": "c", "value": [1]})") << 7;
    QTest::newRow("waiting command with a null node")
        << "hub.command" << json(R"({"key": "k", "value": null})") << 8;
}

void TestNexo::whatIsSent()
{
    QFETCH(QString, method);
    QFETCH(int, form);
    m_peer->answer("hub.command", 11);
    m_peer->answer("hub.plugin", QJsonObject {{"data", QJsonArray {"x"}}});
    ModuleObject node("node");
    node.set(nullptr, "#0", "a", false);
    ModuleObject *answer = nullptr;
    switch (form) {
    case 0:
        m_nexo->set(this, "k", "", 5);
        break;
    case 1:
        m_nexo->set(this, "k", "s", "v");
        break;
    case 2:
        m_nexo->set(this, "k", &node);
        break;
    case 3:
        m_nexo->command(this, "k");
        break;
    case 4:
        m_nexo->command(this, "k", &node);
        break;
    case 5:
        answer = m_nexo->execCommand(this, "k", QVariantMap {{"x", true}});
        break;
    case 6:
        answer = m_nexo->execCommand(this, "k", &node);
        break;
    case 7:
        answer = m_nexo->execPluginCommand(this, "i_1", "c", QVariant(QJsonArray {1}));
        break;
    case 8:
        answer = m_nexo->execCommand(this, "k", static_cast<ModuleObject *>(nullptr));
        break;
    }
    QTRY_COMPARE(m_peer->received(method), 1);
    QTEST(m_peer->last(method).params, "params");
    if (form == 7)
        QCOMPARE(answer->r("data")->exportToJson(), QJsonValue(QJsonArray {"x"}));
    else if (form >= 5)
        QCOMPARE(answer->getInt(0), 11);
}

void TestNexo::waitingCommandEnds_data()
{
    QTest::addColumn<QString>("fault");
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("refusal") << "refusal"
                             << QByteArray("^hub: hub.command k refused: no such command$");
    QTest::newRow("limit") << "limit" << QByteArray("^hub: hub.command k: no answer in time$");
    QTest::newRow("lost link") << "loss" << QByteArray("^hub: link closed: malformed frame");
}

void TestNexo::waitingCommandEnds()
{
    QFETCH(QString, fault);
    QFETCH(QByteArray, line);
    m_peer->script("hub.command", [fault](const rpc::Message &request) {
        const rpc::Message refusal
            = rpc::Message::refusal(request.id, rpc::refused, "no such command");
        if (fault == "refusal")
            return QVector<QByteArray> {rpc::encode(refusal)};
        return fault == "loss" ? QVector<QByteArray> {"?"} : QVector<QByteArray>();
    });
    brisa::SettingManager *settings = brisa::ManagerHelper::instance()->settingManager();
    settings->set("nexo.limit", fault == "limit" ? 0.2 : 20);
    announce(line.constData());
    QElapsedTimer time;
    time.start();
    QVERIFY(!m_nexo->execCommand(this, "k", 1));
    QVERIFY(time.elapsed() < 5000);
    QVERIFY(fault != "limit" || time.elapsed() >= 200);
    settings->set("nexo.limit", 30);
}

void TestNexo::changesReachWatchers_data()
{
    QTest::addColumn<QString>("watched");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<QJsonValue>("now");
    QTest::addColumn<int>("events");
    const QJsonValue none(QJsonValue::Undefined);
    QTest::newRow("the key") << "name"
                             << "name" << json("\"leg\"") << json("\"leg\"") << 1;
    QTest::newRow("equal value") << "name"
                                 << "name" << json("\"arm\"") << json("\"arm\"") << 0;
    QTest::newRow("a key below") << "move"
                                 << "move.error.code" << json("7")
                                 << json(R"({"speed": 5, "error": {"code": 7}})") << 1;
    QTest::newRow("a key above") << "move.error.code"
                                 << "move" << json(R"({"error": {"code": 8}})") << json("8") << 1;
    QTest::newRow("a key above, no difference")
        << "move.speed"
        << "move" << json(R"({"speed": 5})") << json("5") << 0;
    QTest::newRow("gone with a key above") << "move.speed"
                                           << "move" << json("1") << QJsonValue() << 1;
    QTest::newRow("a sibling") << "move.speed"
                               << "move.error" << json("1") << json("5") << 0;
    QTest::newRow("a similar name")
        << "move"
        << "mover" << json("1") << json(R"({"speed": 5, "error": {"code": 0}})") << 0;
    QTest::newRow("a new key") << "new.key"
                               << "new.key" << json("[1]") << json("[1]") << 1;
    QTest::newRow("null") << "name"
                          << "name" << json("null") << QJsonValue() << 1;
    QTest::newRow("list element") << "monitor.pers.#0"
                                  << "monitor.pers" << json("[\"z\"]") << json("\"z\"") << 1;
}

void TestNexo::changesReachWatchers()
{
    QFETCH(QString, watched);
    QFETCH(QString, key);
    QFETCH(QJsonValue, value);
    QFETCH(QJsonValue, now);
    QFETCH(int, events);
    ModuleObject *node = m_nexo->watchNode(watched);
    ModuleObject *unwatched = m_nexo->watchNode("x" + key);
    QSignalSpy changed(node, &ModuleObject::changed);
    QSignalSpy other(unwatched, &ModuleObject::changed);
    m_nexo->watch(nullptr, watched, true);
    change(key, value);
    change(key, value);
    change("x" + key, value);
    passChanges();
    QCOMPARE(changed.size(), events);
    QCOMPARE(node->exportToJson(), now);
    QCOMPARE(m_nexo->get(nullptr, watched)->exportToJson(), now);
    QCOMPARE(other.size(), 0);
    if (events)
        QCOMPARE(QJsonValue::fromVariant(changed.first().first()), now);
    m_nexo->watch(nullptr, watched, false);
    change(key, "another");
    passChanges();
    QCOMPARE(changed.size(), events);
}

void TestNexo::watchesCountPerOrigin()
{
    QScopedPointer<QObject> origin(new QObject);
    QSignalSpy changed(m_nexo->watchNode("name"), &ModuleObject::changed);
    m_nexo->watch(nullptr, "name", true);
    m_nexo->watch(nullptr, "name", true);
    m_nexo->watch(origin.data(), "name", true);
    m_nexo->watch(this, "name", false); // was never on
    m_nexo->watch(nullptr, "name", false);
    change("name", 1);
    passChanges();
    QCOMPARE(changed.size(), 1);
    QCOMPARE(m_peer->received("hub.watch"), 1);
    QCOMPARE(m_peer->last("hub.watch").params, json(R"({"key": "name", "on": true})"));
    origin.reset();
    QTRY_COMPARE(m_peer->received("hub.watch"), 2);
    QCOMPARE(m_peer->last("hub.watch").params, json(R"({"key": "name", "on": false})"));
    change("name", 2);
    passChanges();
    QCOMPARE(changed.size(), 1);
}

void TestNexo::watcherSurvivesItsKey()
{
    ModuleObject *node = m_nexo->watchNode("monitor.pers.#1");
    QSignalSpy changed(node, &ModuleObject::changed);
    m_nexo->watch(nullptr, "monitor.pers.#1", true);
    change("monitor.pers", QJsonArray());
    passChanges();
    QCOMPARE(changed.size(), 1);
    change("monitor.pers", QJsonArray {"x", "y"});
    passChanges();
    QCOMPARE(changed.size(), 2);
    QCOMPARE(changed.last().first(), QVariant("y"));
    QCOMPARE(m_nexo->watchNode("monitor.pers.#1"), node);
}

void TestNexo::reconnectRenewsWatches()
{
    QSignalSpy name(m_nexo->watchNode("name"), &ModuleObject::changed);
    QSignalSpy speed(m_nexo->watchNode("move.speed"), &ModuleObject::changed);
    for (const char *key : {"name", "move.speed", "gone"})
        m_nexo->watch(nullptr, key, true);
    m_nexo->watch(nullptr, "gone", false);
    QTRY_COMPARE(m_peer->received("hub.watch"), 4);
    m_peer->answer("hub.snapshot",
                   QJsonObject {{"name", "leg"}, {"move", QJsonObject {{"speed", 5}}}});
    int watchesWhenConnected = 0;
    connect(m_nexo->mobj()->r("connected"), &ModuleObject::changed, m_nexo.data(),
            [&](const QVariant &on) {
                if (on.toBool())
                    watchesWhenConnected = m_peer->received("hub.watch");
            });
    m_peer->dropClients();
    QTRY_COMPARE(watchesWhenConnected, 6);
    QCOMPARE(name.size(), 1);
    QCOMPARE(speed.size(), 0);
    QVERIFY(m_nexo->get(nullptr, "monitor")->isNull());
}

void TestNexo::badChangesAreIgnored()
{
    announce("^hub: a notification without meaning here: hub.changed$");
    const QJsonValue before = m_nexo->mobj()->r("data")->exportToJson();
    for (const char *key : {"", ".", "a..b", ".a", "a."})
        change(key, 1);
    m_peer->notify("hub.changed", QJsonArray {1});
    m_peer->notify("hub.changed", QJsonObject {{"key", 5}, {"value", 5}});
    m_peer->notify("hub.changed", QJsonObject {{"key", "name"}});
    m_peer->notify("other", QJsonObject {{"key", "name"}, {"value", 5}});
    change("connected", false); // a key of that name is not the flag
    passChanges();
    QJsonObject after = m_nexo->mobj()->r("data")->exportToJson().toObject();
    after.remove("sync");
    after.remove("connected");
    QJsonObject expected = before.toObject();
    expected.remove("sync");
    QCOMPARE(after, expected);
    QVERIFY(m_nexo->mobj()->getBool("connected", false));
}

void TestNexo::throwingWatcherDoesNoHarm()
{
    m_nexo->watch(nullptr, "name", true);
    m_nexo->watch(nullptr, "", true);
    connect(m_nexo->watchNode("name"), &ModuleObject::changed, m_nexo.data(),
            [] { throw std::runtime_error("plugin fault"); });
    QSignalSpy whole(m_nexo->watchNode(""), &ModuleObject::changed);
    announce("^name: a receiver threw: plugin fault$");
    change("name", "x");
    QTRY_COMPARE(whole.size(), 1);
}

void TestNexo::withoutLink()
{
    m_nexo->close();
    announce("^hub: hub.set k not sent: no link$");
    m_nexo->set(this, "k", "", 1);
    announce("^hub: hub.command k not sent: no link$");
    m_nexo->command(this, "k", 1);
    QVERIFY(!m_nexo->execCommand(this, "k", 1));
    m_nexo->watch(this, "k", true);
    QCOMPARE(m_nexo->get(this, "name")->getStr(""), QStringLiteral("arm"));
}

QTEST_GUILESS_MAIN(TestNexo)
#include "tst_nexo.moc"
