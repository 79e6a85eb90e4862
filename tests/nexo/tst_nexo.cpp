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
    void init()
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

    void cleanup()
    {
        m_nexo.reset();
        m_peer.reset();
    }

    void keysAreMirrored()
    {
        const struct {
            const char *key, *subKey, *value;
        } rows[] = {{"move.error.code", "", "0"},
                    {"move", "speed", "5"},
                    {"move.error", "", "{\"code\": 0}"},
                    {"monitor.pers", "#1", "\"b\""},
                    {"no.such", "key", "null"}};
        for (const auto &[key, subKey, value] : rows) {
            QCOMPARE(m_nexo->get(nullptr, key, subKey)->exportToJson(), json(value));
            const QString whole = QString(key) + '.' + subKey;
            QCOMPARE(m_nexo->watchNode(*subKey ? whole : key)->exportToJson(), json(value));
        }
    }

    void connectedIsSetOnlyOnChange()
    {
        QSignalSpy flag(m_nexo->mobj()->r("connected"), &ModuleObject::changed);
        m_peer->dropClients();
        QTRY_COMPARE(flag.size(), 2);
        QCOMPARE(flag.at(0).at(0).toBool(), false);
        QCOMPARE(flag.at(1).at(0).toBool(), true);
        m_nexo->close();
        m_nexo->close();
        QCOMPARE(flag.size(), 3);
    }

    void unusableHubIsTriedAgain()
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

    void whatIsSent()
    {
        m_peer->answer("hub.command", 11);
        m_peer->answer("hub.plugin", QJsonObject {{"data", QJsonArray {"x"}}});
        ModuleObject node("node");
        node.set(nullptr, "#0", "a", false);
        int calls = 0;
        const auto sent = [&](const char *method, const char *params) {
            ++calls;
            return QTest::qWaitFor([&] { return m_peer->requests().size() == calls + 1; })
                && m_peer->requests().last().method == method
                && m_peer->requests().last().params == json(params);
        };
        m_nexo->set(this, "k", "", 5);
        QVERIFY(sent("hub.set", R"({"key": "k", "sub": "", "value": 5})"));
        m_nexo->set(this, "k", "s", "v");
        QVERIFY(sent("hub.set", R"({"key": "k", "sub": "s", "value": "v"})"));
        m_nexo->set(this, "k", &node);
        QVERIFY(sent("hub.set", R"({"key": "k", "sub": "", "value": ["a"]})"));
        m_nexo->command(this, "k");
        QVERIFY(sent("hub.command", R"({"key": "k", "value": null})"));
        m_nexo->command(this, "k", &node);
        QVERIFY(sent("hub.command", R"({"key": "k", "value": ["a"]})"));
        QCOMPARE(m_nexo->execCommand(this, "k", QVariantMap {{"x", true}})->getInt(0), 11);
        QVERIFY(sent("hub.command", R"({"key": "k", "value": {"x": true}})"));
        QCOMPARE(m_nexo->execCommand(this, "k", &node)->getInt(0), 11);
        QVERIFY(sent("hub.command", R"({"key": "k", "value": ["a"]})"));
        QVERIFY(m_nexo->execCommand(this, "k", static_cast<ModuleObject *>(nullptr)));
        QVERIFY(sent("hub.command", R"({"key": "k", "value": null})"));
        ModuleObject *answer
            = m_nexo->execPluginCommand(this, "i_1", "c", QVariant(QJsonArray {1}));
        QCOMPARE(answer->r("data")->exportToJson(), json(R"(["x"])"));
        QVERIFY(sent("hub.plugin", R"({"id": "i_1", "command": "c", "value": [1]})"));
    }

    void answersOfDifferentMethodsAreApart()
    {
        m_peer->answer("hub.command", 11);
        m_peer->answer("hub.plugin", QJsonObject {{"data", QJsonArray {"x"}}});
        ModuleObject *command = m_nexo->execCommand(this, "same");
        ModuleObject *plugin = m_nexo->execPluginCommand(this, "id", "same", QVariant());
        QVERIFY(command && plugin);
        QCOMPARE(command->getInt(0), 11);
        QCOMPARE(plugin->r("data.#0")->getStr(""), QStringLiteral("x"));
    }

    void waitingCommandEnds()
    {
        m_peer->script("hub.command", [](const rpc::Message &request) {
            const QString fault = request.params.toObject().value("value").toString();
            if (fault == "refusal")
                return QVector<QByteArray> {rpc::encode(
                    rpc::Message::refusal(request.id, rpc::refused, "no such command"))};
            return fault == "loss" ? QVector<QByteArray> {"?"} : QVector<QByteArray>();
        });
        const struct {
            const char *fault, *line;
            double limit;
        } rows[] = {{"refusal", "^hub: hub.command k refused: no such command$", 20},
                    {"limit", "^hub: hub.command k: no answer in time$", 0.2},
                    {"loss", "^hub: link closed: malformed frame", 20}};
        brisa::SettingManager *settings = brisa::ManagerHelper::instance()->settingManager();
        for (const auto &[fault, line, limit] : rows) {
            settings->set("nexo.limit", limit);
            announce(line);
            QElapsedTimer time;
            time.start();
            QVERIFY(!m_nexo->execCommand(this, "k", fault));
            QVERIFY(time.elapsed() < 5000 && (limit > 1 || time.elapsed() >= 200));
        }
        settings->set("nexo.limit", 30);
    }

    void changesReachWatchers()
    {
        const struct {
            const char *watched, *key, *value, *now;
            int events;
        } rows[] = {
            {"name", "name", "\"leg\"", "\"leg\"", 1},
            {"name", "name", "\"arm\"", "\"arm\"", 0}, // no difference
            {"name", "name", "null", "null", 1},
            {"new.key", "new.key", "[1]", "[1]", 1},
            {"move", "move.error.code", "7", R"({"speed": 5, "error": {"code": 7}})", 1},
            {"move.error.code", "move", R"({"error": {"code": 8}})", "8", 1},
            {"move.speed", "move", R"({"speed": 5})", "5", 0},
            {"move.speed", "move", "1", "null", 1},
            {"move.speed", "move.error", "1", "5", 0},
            {"move", "mover", "1", R"({"speed": 5, "error": {"code": 0}})", 0},
            {"monitor.pers.#0", "monitor.pers", "[\"z\"]", "\"z\"", 1},
        };
        for (const auto &[watched, key, value, now, events] : rows) {
            cleanup();
            init();
            ModuleObject *node = m_nexo->watchNode(watched);
            QSignalSpy changed(node, &ModuleObject::changed);
            QSignalSpy unwatched(m_nexo->watchNode(QString("x") + key), &ModuleObject::changed);
            m_nexo->watch(nullptr, watched, true);
            change(key, json(value));
            change(key, json(value));
            change(QString("x") + key, json(value));
            passChanges();
            QVERIFY2(changed.size() == events, watched);
            QCOMPARE(node->exportToJson(), json(now));
            QCOMPARE(m_nexo->get(nullptr, watched)->exportToJson(), json(now));
            QCOMPARE(unwatched.size(), 0);
            m_nexo->watch(nullptr, watched, false);
            change(key, "another");
            passChanges();
            QCOMPARE(changed.size(), events);
        }
    }

    void watchesCountPerOrigin()
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

    void watcherSurvivesItsKey()
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

    void reconnectRenewsWatches()
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

    void badChangesAreIgnored()
    {
        announce("^hub: a notification without meaning here: hub.changed$");
        for (const char *key : {"", ".", "a..b", ".a", "a."})
            change(key, 1);
        m_peer->notify("hub.changed", QJsonArray {1});
        m_peer->notify("hub.changed", QJsonObject {{"key", 5}, {"value", 5}});
        m_peer->notify("hub.changed", QJsonObject {{"key", "name"}});
        m_peer->notify("other", QJsonObject {{"key", "name"}, {"value", 5}});
        change("connected", false); // a key of that name is not the flag
        passChanges();
        QJsonObject expected = keys;
        expected.insert("connected", false);
        expected.insert("sync", m_nexo->get(nullptr, "sync")->exportToJson());
        QCOMPARE(m_nexo->mobj()->r("data")->exportToJson().toObject(), expected);
        QVERIFY(m_nexo->mobj()->getBool("connected", false));
    }

    void throwingWatcherDoesNoHarm()
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

    void withoutLink()
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

private:
    void change(const QString &key, const QJsonValue &value)
    {
        m_peer->notify("hub.changed", QJsonObject {{"key", key}, {"value", value}});
    }

    // What the hub sent before this call has been delivered when it returns.
    void passChanges()
    {
        static int round = 0;
        change("sync", ++round);
        QTRY_COMPARE(m_nexo->get(nullptr, "sync")->getInt(0), round);
    }

    QScopedPointer<FakePeer> m_peer;
    QScopedPointer<Nexo> m_nexo;
};

QTEST_GUILESS_MAIN(TestNexo)
#include "tst_nexo.moc"
