#include "fakecontroller.h"
#include "logcapture.h"

#include <zeplet/interface/interfacemanager.h>
#include <zeplet/interface/networkinterface.h>

#include <QTest>

using namespace zeplet;

namespace
{

QString pluginId(const FakePeer &hub)
{
    return hub.last("hub.plugin").params.toObject()["id"].toString();
}

} // namespace

class TestNexoChannel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_fake.setUp(true); }

    // Has to come first: the number belongs to the process.
    void idsOfPluginCommandsStartAgain()
    {
        m_fake.hub.answer("hub.plugin", QJsonObject {{"data", QJsonArray()}});
        LogCapture log;
        for (int number = 0; number < 257; ++number) {
            zepletInterface()->commandCustomData(nullptr, QJsonArray());
            QCOMPARE(pluginId(m_fake.hub), QString("ServiceAPI.plugin_%1").arg(number % 255));
        }
    }

    void withoutALinkTheHubIsLeftAlone()
    {
        m_fake.setControllerUp(false);
        const int before = m_fake.hub.requests().size();
        auto *manager = zepletInterface();
        const QString key = "demo.speed";
        QVERIFY(!manager->getRobotConnected());
        QVERIFY(manager->getNexoData(key).isNull());
        QVERIFY(manager->getNexoData("demo", "speed").isNull());
        QVERIFY(!manager->setNexoData(key, 1));
        QVERIFY(!manager->setNexoData(key, "sub", 1));
        QVERIFY(!manager->commandNexoData(key, 1));
        QVERIFY(manager->execCommandNexoData(key, 1).isNull());

        // The panel's own data is there all the same.
        m("demo.own")->set(nullptr, 7);
        QCOMPARE(manager->getNodeData("demo.own"), QJsonValue(7));
        QCOMPARE(NetworkInterface(nullptr).get(key), QJsonValue(5));
        QCOMPARE(m_fake.hub.requests().size(), before);
    }

    void readsAnswerFromTheMirror()
    {
        auto *manager = zepletInterface();
        QCOMPARE(manager->getNexoData("demo.speed"), QJsonValue(5));
        QCOMPARE(manager->getNexoData("demo", "name"), QJsonValue("x"));
        QCOMPARE(manager->getNexoData("demo").toObject().size(), 2);
    }

    void writesAndCommandsReachTheHub()
    {
        const QString key = "demo.speed";
        auto *manager = zepletInterface();
        QVERIFY(manager->setNexoData(key, 1));
        QVERIFY(manager->setNexoData(key, "part", 2));
        QVERIFY(manager->commandNexoData(key, 3));
        QTRY_COMPARE(m_fake.hub.received("hub.command"), 1);
        QStringList sent;
        for (const rpc::Message &request : m_fake.hub.requests()) {
            const QJsonObject params = request.params.toObject();
            if (params["key"] == key && params.contains("value"))
                sent += request.method + ' ' + params["sub"].toString() + ' '
                    + QString::number(params["value"].toInt());
        }
        QCOMPARE(sent, QStringList({"hub.set  1", "hub.set part 2", "hub.command  3"}));
    }

    void aWaitingCommandBringsItsAnswer()
    {
        const QJsonObject answer {{"done", QJsonArray {1, 2}}};
        m_fake.hub.answer("hub.command", answer);
        QCOMPARE(zepletInterface()->execCommandNexoData("demo.do", 1), QJsonValue(answer));

        m_fake.hub.refuse("hub.command", "no");
        LogCapture log;
        QVERIFY(zepletInterface()->execCommandNexoData("demo.do", 1).isNull());
    }

    void pluginCommandsWrapTheirData()
    {
        const QJsonArray answer {"ok", 3};
        m_fake.hub.answer("hub.plugin", QJsonObject {{"data", answer}});
        const QJsonObject object {{"a", 1}};
        auto *manager = zepletInterface();
        const QPair<QString, std::function<QJsonArray()>> forms[] = {
            {R"([1,"a"])",
             [&] {
                 return manager->commandCustomData(this, QJsonArray {1, "a"});
             }},
            {R"([{"a":1}])", [&] { return manager->commandCustomData(this, object); }},
            {R"([{"key":{"a":1}}])",
             [&] { return manager->commandCustomData(this, "key", object); }},
            {R"([{"key":{"sub":"text"}}])",
             [&] { return manager->commandCustomData(this, "key", "sub", "text"); }},
        };
        LogCapture log;
        for (const auto &[sent, command] : forms) {
            QCOMPARE(command(), answer);
            const QJsonObject params = m_fake.hub.last("hub.plugin").params.toObject();
            QCOMPARE(params["command"].toString(), QString("ServiceAPI.plugin"));
            QCOMPARE(params["value"].toArray(), QJsonDocument::fromJson(sent.toUtf8()).array());
            QCOMPARE(log.ofLevel("S"),
                     QStringList({"send : zeplet::command : " + sent,
                                  R"(ret : zeplet::command : ["ok",3])"}));
            log.take();
        }
    }

    void anAnswerWithoutDataIsEmpty()
    {
        LogCapture log;
        for (const QJsonValue &answer :
             {QJsonValue(QJsonObject()), QJsonValue(QJsonObject {{"data", "text"}}),
              QJsonValue(1)}) {
            m_fake.hub.answer("hub.plugin", answer);
            QCOMPARE(zepletInterface()->commandCustomData(this, QJsonArray()), QJsonArray());
        }
        m_fake.hub.refuse("hub.plugin", "no");
        QCOMPARE(zepletInterface()->commandCustomData(this, QJsonArray()), QJsonArray());
        QCOMPARE(log.ofLevel("S").size(), 4 * 2);
    }

private:
    FakeController m_fake;
};

QTEST_MAIN(TestNexoChannel)
#include "tst_nexochannel.moc"
