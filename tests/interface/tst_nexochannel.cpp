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
    return hub.last(QStringLiteral("hub.plugin"))
        .params.toObject()
        .value(QLatin1String("id"))
        .toString();
}

} // namespace

class TestNexoChannel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void idsOfPluginCommandsStartAgain();
    void withoutALinkTheHubIsLeftAlone();
    void readsAnswerFromTheMirror();
    void writesAndCommandsReachTheHub_data();
    void writesAndCommandsReachTheHub();
    void aWaitingCommandBringsItsAnswer();
    void pluginCommandsWrapTheirData_data();
    void pluginCommandsWrapTheirData();
    void anAnswerWithoutDataIsEmpty_data();
    void anAnswerWithoutDataIsEmpty();

private:
    FakeController m_fake;
};

void TestNexoChannel::init()
{
    m_fake.setUp(true);
}

// Has to come first: the number belongs to the process.
void TestNexoChannel::idsOfPluginCommandsStartAgain()
{
    m_fake.hub.answer(QStringLiteral("hub.plugin"),
                      QJsonObject {{QStringLiteral("data"), QJsonArray()}});
    LogCapture log;
    for (int number = 0; number < 257; ++number) {
        zepletInterface()->commandCustomData(nullptr, QJsonArray());
        QCOMPARE(pluginId(m_fake.hub), QStringLiteral("ServiceAPI.plugin_%1").arg(number % 255));
    }
}

void TestNexoChannel::withoutALinkTheHubIsLeftAlone()
{
    m_fake.setControllerUp(false);
    const int before = m_fake.hub.requests().size();
    auto *manager = zepletInterface();
    const QString key = QStringLiteral("demo.speed");
    QVERIFY(!manager->getRobotConnected());
    QVERIFY(manager->getNexoData(key).isNull());
    QVERIFY(manager->getNexoData(QStringLiteral("demo"), QStringLiteral("speed")).isNull());
    QVERIFY(!manager->setNexoData(key, 1));
    QVERIFY(!manager->setNexoData(key, QStringLiteral("sub"), 1));
    QVERIFY(!manager->commandNexoData(key, 1));
    QVERIFY(manager->execCommandNexoData(key, 1).isNull());

    // The panel's own data is there all the same.
    m(QStringLiteral("demo.own"))->set(nullptr, 7);
    QCOMPARE(manager->getNodeData(QStringLiteral("demo.own")), QJsonValue(7));
    QCOMPARE(NetworkInterface(nullptr).get(key), QJsonValue(5));
    QCOMPARE(m_fake.hub.requests().size(), before);
}

void TestNexoChannel::readsAnswerFromTheMirror()
{
    auto *manager = zepletInterface();
    QCOMPARE(manager->getNexoData(QStringLiteral("demo.speed")), QJsonValue(5));
    QCOMPARE(manager->getNexoData(QStringLiteral("demo"), QStringLiteral("name")),
             QJsonValue(QStringLiteral("x")));
    QCOMPARE(manager->getNexoData(QStringLiteral("demo")).toObject().size(), 2);
}

void TestNexoChannel::writesAndCommandsReachTheHub_data()
{
    QTest::addColumn<QString>("method");
    QTest::addColumn<QString>("sub");
    QTest::newRow("value") << "hub.set"
                           << "";
    QTest::newRow("part of a value") << "hub.set"
                                     << "part";
    QTest::newRow("command") << "hub.command"
                             << "";
}

void TestNexoChannel::writesAndCommandsReachTheHub()
{
    QFETCH(QString, method);
    QFETCH(QString, sub);
    const QString key = QStringLiteral("demo.speed");
    auto *manager = zepletInterface();
    const int before = m_fake.hub.received(method);
    if (method == QLatin1String("hub.command"))
        QVERIFY(manager->commandNexoData(key, 9));
    else
        QVERIFY(sub.isEmpty() ? manager->setNexoData(key, 9) : manager->setNexoData(key, sub, 9));

    QTRY_COMPARE(m_fake.hub.received(method), before + 1);
    const QJsonObject sent = m_fake.hub.last(method).params.toObject();
    QCOMPARE(sent.value(QLatin1String("key")).toString(), key);
    QCOMPARE(sent.value(QLatin1String("value")), QJsonValue(9));
    QCOMPARE(sent.value(QLatin1String("sub")).toString(), sub);
}

void TestNexoChannel::aWaitingCommandBringsItsAnswer()
{
    const QJsonObject answer {{QStringLiteral("done"), QJsonArray {1, 2}}};
    m_fake.hub.answer(QStringLiteral("hub.command"), answer);
    QCOMPARE(zepletInterface()->execCommandNexoData(QStringLiteral("demo.do"), 1),
             QJsonValue(answer));

    m_fake.hub.refuse(QStringLiteral("hub.command"), QStringLiteral("no"));
    LogCapture log;
    QVERIFY(zepletInterface()->execCommandNexoData(QStringLiteral("demo.do"), 1).isNull());
}

void TestNexoChannel::pluginCommandsWrapTheirData_data()
{
    QTest::addColumn<int>("form");
    QTest::addColumn<QString>("sent");
    QTest::newRow("list") << 0 << R"([1,"a"])";
    QTest::newRow("object") << 1 << R"([{"a":1}])";
    QTest::newRow("key and object") << 2 << R"([{"key":{"a":1}}])";
    QTest::newRow("keys and text") << 3 << R"([{"key":{"sub":"text"}}])";
}

void TestNexoChannel::pluginCommandsWrapTheirData()
{
    QFETCH(int, form);
    QFETCH(QString, sent);
    const QJsonArray answer {QStringLiteral("ok"), 3};
    m_fake.hub.answer(QStringLiteral("hub.plugin"), QJsonObject {{QStringLiteral("data"), answer}});
    const QJsonObject object {{QStringLiteral("a"), 1}};
    const QString key = QStringLiteral("key");
    auto *manager = zepletInterface();
    LogCapture log;
    const QVector<std::function<QJsonArray()>> forms {
        [&] {
            return manager->commandCustomData(this, QJsonArray {1, QStringLiteral("a")});
        },
        [&] { return manager->commandCustomData(this, object); },
        [&] { return manager->commandCustomData(this, key, object); },
        [&] {
            return manager->commandCustomData(this, key, QStringLiteral("sub"),
                                              QStringLiteral("text"));
        }};

    QCOMPARE(forms.at(form)(), answer);

    const QJsonObject params = m_fake.hub.last(QStringLiteral("hub.plugin")).params.toObject();
    QCOMPARE(params.value(QLatin1String("command")).toString(),
             QStringLiteral("ServiceAPI.plugin"));
    QCOMPARE(params.value(QLatin1String("value")).toArray(),
             QJsonDocument::fromJson(sent.toUtf8()).array());
    QCOMPARE(log.ofLevel(QStringLiteral("S")),
             QStringList({QStringLiteral("send : zeplet::command : ") + sent,
                          QStringLiteral(R"(ret : zeplet::command : ["ok",3])")}));
}

void TestNexoChannel::anAnswerWithoutDataIsEmpty_data()
{
    QTest::addColumn<QJsonValue>("answer");
    QTest::newRow("no data") << QJsonValue(QJsonObject());
    QTest::newRow("data of another kind")
        << QJsonValue(QJsonObject {{QStringLiteral("data"), QStringLiteral("text")}});
    QTest::newRow("no object") << QJsonValue(1);
    QTest::newRow("refused") << QJsonValue(QJsonValue::Undefined);
}

void TestNexoChannel::anAnswerWithoutDataIsEmpty()
{
    QFETCH(QJsonValue, answer);
    const QString method = QStringLiteral("hub.plugin");
    if (answer.isUndefined())
        m_fake.hub.refuse(method, QStringLiteral("no"));
    else
        m_fake.hub.answer(method, answer);
    LogCapture log;
    QCOMPARE(zepletInterface()->commandCustomData(this, QJsonArray()), QJsonArray());
    QCOMPARE(log.ofLevel(QStringLiteral("S")).size(), 2);
}

QTEST_MAIN(TestNexoChannel)
#include "tst_nexochannel.moc"
