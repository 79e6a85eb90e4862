#include "fakecontroller.h"
#include "logcapture.h"

#include <zeplet/events/zepleteventsystem.h>
#include <zeplet/interface/interfacemanager.h>

#include <QTest>

using namespace zeplet;

namespace
{

const QString plugin = QStringLiteral("plugin");

/** Whether the hub was last told to watch the key, and how often it was told. */
QVector<bool> watches(const FakePeer &hub, const QString &key)
{
    QVector<bool> on;
    for (const rpc::Message &request : hub.requests()) {
        const QJsonObject params = request.params.toObject();
        if (request.method == QLatin1String("hub.watch")
            && params.value(QLatin1String("key")).toString() == key)
            on.append(params.value(QLatin1String("on")).toBool());
    }
    return on;
}

QString idAddedBy(const std::function<void()> &action)
{
    QStringList ids;
    const auto connection = QObject::connect(
        zepletEvent(), &ZepletEventSystem::subscriptionAdded,
        [&ids](const QString &id, ZepletEventType, const QString &) { ids.append(id); });
    action();
    QObject::disconnect(connection);
    return ids.size() == 1 ? ids.first() : QString();
}

} // namespace

class TestSubscriptions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void hubChangesReachTheCallbacksOfTheirKey();
    void subscribersOfAKeyShareOneWatch();
    void anEmptyIdEndsAllOfAKey();
    void anUnknownKeyIsNoError();
    void aHubKeyMayBeEmpty();
    void notificationsReachTheCallbacksOfTheirPath_data();
    void notificationsReachTheCallbacksOfTheirPath();
    void subscribersOfAPathShareOneConnection();
    void anEmptyPathIsRefused();
    void networkStatusCallsBackWhileTheContextLives();

private:
    void changeHubKey(const QString &key, const QJsonValue &value);

    FakeController m_fake;
};

void TestSubscriptions::init()
{
    m_fake.setUp(true);
}

void TestSubscriptions::changeHubKey(const QString &key, const QJsonValue &value)
{
    m_fake.hub.notify(QStringLiteral("hub.changed"),
                      QJsonObject {{QStringLiteral("key"), key}, {QStringLiteral("value"), value}});
}

void TestSubscriptions::hubChangesReachTheCallbacksOfTheirKey()
{
    QVariantList speeds;
    int others = 0;
    QVector<ZepletEvent> events;
    const auto all = connect(zepletEvent(), &ZepletEventSystem::eventPublished, this,
                             [&](const ZepletEvent &event) { events.append(event); });
    auto *manager = zepletInterface();
    LogCapture log;
    QVERIFY(manager->connectNexoData(plugin, QStringLiteral("demo.speed"),
                                     [&](const QVariant &value) { speeds.append(value); }));
    QCOMPARE(log.take(),
             QStringList {QStringLiteral("S|connectNexoData - serviceKey : demo.speed")});
    QVERIFY(manager->connectNexoData(plugin, QStringLiteral("demo.name"),
                                     [&](const QVariant &) { ++others; }));

    changeHubKey(QStringLiteral("demo.speed"), 6);
    QTRY_COMPARE(speeds.size(), 1);

    QCOMPARE(speeds.first().toInt(), 6);
    QCOMPARE(others, 0);
    QCOMPARE(events.size(), 1);
    QCOMPARE(events.first().type, NexoDataChange);
    QCOMPARE(events.first().source, QStringLiteral("demo.speed"));
    disconnect(all);

    // At once, where the host sets the node.
    nexo()->watchNode(QStringLiteral("demo.speed"))->set(nullptr, 7);
    QCOMPARE(speeds.size(), 2);
    QVERIFY(manager->disconnectNexoData(plugin, QStringLiteral("demo.speed"), QString()));
    QVERIFY(manager->disconnectNexoData(plugin, QStringLiteral("demo.name"), QString()));
}

void TestSubscriptions::subscribersOfAKeyShareOneWatch()
{
    const QString key = QStringLiteral("demo.shared");
    int calls = 0;
    auto *manager = zepletInterface();
    const auto subscribe
        = [&] { manager->connectNexoData(plugin, key, [&](const QVariant &) { ++calls; }); };
    const QString first = idAddedBy(subscribe);
    const QString second = idAddedBy(subscribe);
    QTRY_COMPARE(watches(m_fake.hub, key), QVector<bool> {true});
    changeHubKey(key, 1);
    QTRY_COMPARE(calls, 2);

    manager->disconnectNexoData(plugin, key, first);
    QVERIFY(!zepletEvent()->hasSubscription(first));
    QVERIFY(zepletEvent()->hasSubscription(second));
    changeHubKey(key, 2);
    QTRY_COMPARE(calls, 3);
    QCOMPARE(watches(m_fake.hub, key), QVector<bool> {true});

    manager->disconnectNexoData(plugin, key, second);
    QTRY_COMPARE(watches(m_fake.hub, key), QVector<bool>({true, false}));
    const quint64 published = zepletEvent()->totalEventsPublished();
    nexo()->watchNode(key)->set(nullptr, 3);
    QCOMPARE(zepletEvent()->totalEventsPublished(), published);
}

void TestSubscriptions::anEmptyIdEndsAllOfAKey()
{
    const QString key = QStringLiteral("demo.all");
    auto *manager = zepletInterface();
    const int before = zepletEvent()->subscriptionCount(NexoDataChange);
    manager->connectNexoData(plugin, key, {});
    manager->connectNexoData(QStringLiteral("other"), key, {});
    QCOMPARE(zepletEvent()->subscriptionCount(NexoDataChange), before + 2);

    QVERIFY(manager->disconnectNexoData(plugin, key, QString()));

    QCOMPARE(zepletEvent()->subscriptionCount(NexoDataChange), before);
    QTRY_COMPARE(watches(m_fake.hub, key), QVector<bool>({true, false}));
    // From here on the key starts afresh.
    manager->connectNexoData(plugin, key, {});
    QTRY_COMPARE(watches(m_fake.hub, key), QVector<bool>({true, false, true}));
    manager->disconnectNexoData(plugin, key, QString());
}

void TestSubscriptions::anUnknownKeyIsNoError()
{
    auto *manager = zepletInterface();
    QVERIFY(manager->disconnectNexoData(plugin, QStringLiteral("unknown"), QString()));
    QVERIFY(manager->disconnectNexoData(plugin, QStringLiteral("unknown"), QStringLiteral("id")));
    QVERIFY(manager->disconnectRcNotify(plugin, QStringLiteral("unknown"), QString()));

    // An id that is known to the bus ends, whatever the key.
    const QString id = zepletEvent()->subscribeFiltered(NetworkError, {}, {}, plugin);
    QVERIFY(manager->disconnectRcNotify(plugin, QStringLiteral("unknown"), id));
    QVERIFY(!zepletEvent()->hasSubscription(id));
}

void TestSubscriptions::aHubKeyMayBeEmpty()
{
    QVERIFY(zepletInterface()->connectNexoData(plugin, QString(), {}));
    QVERIFY(zepletInterface()->disconnectNexoData(plugin, QString(), QString()));
}

void TestSubscriptions::notificationsReachTheCallbacksOfTheirPath_data()
{
    QTest::addColumn<QJsonValue>("value");
    QTest::newRow("text") << QJsonValue(QStringLiteral("a"));
    QTest::newRow("number") << QJsonValue(2.5);
    QTest::newRow("list") << QJsonValue(QJsonArray {1, QStringLiteral("a")});
    QTest::newRow("object") << QJsonValue(
        QJsonObject {{QStringLiteral("a"), QJsonObject {{QStringLiteral("b"), 1}}}});
}

void TestSubscriptions::notificationsReachTheCallbacksOfTheirPath()
{
    QFETCH(QJsonValue, value);
    const QString path = QStringLiteral("demo.path");
    QVariantList values;
    auto *manager = zepletInterface();
    LogCapture log;
    QVERIFY(
        manager->connectRcNotify(plugin, path, [&](const QVariant &data) { values.append(data); }));
    QCOMPARE(log.take(),
             QStringList {QStringLiteral("S|connectRcNotify - notifyPath : demo.path")});

    m_fake.controller.notify(
        QStringLiteral("notify"),
        QJsonObject {{QStringLiteral("path"), path}, {QStringLiteral("value"), value}});
    QTRY_COMPARE(values.size(), 1);

    QCOMPARE(values.first(), value.toVariant());
    QVERIFY(manager->disconnectRcNotify(plugin, path, QString()));
}

void TestSubscriptions::subscribersOfAPathShareOneConnection()
{
    const QString path = QStringLiteral("demo.shared");
    int calls = 0;
    auto *manager = zepletInterface();
    const auto subscribe
        = [&] { manager->connectRcNotify(plugin, path, [&](const QVariant &) { ++calls; }); };
    const QString first = idAddedBy(subscribe);
    const QString second = idAddedBy(subscribe);
    ostrel::ModuleObject *node
        = FakeController::manager()->cmdItemMobj(QStringLiteral("notify"), path);
    const quint64 published = zepletEvent()->totalEventsPublished();
    node->set(nullptr, 1);
    QCOMPARE(calls, 2);
    QCOMPARE(zepletEvent()->totalEventsPublished(), published + 1);

    manager->disconnectRcNotify(plugin, path, first);
    node->set(nullptr, 2);
    QCOMPARE(calls, 3);
    manager->disconnectRcNotify(plugin, path, second);
    node->set(nullptr, 3);
    QCOMPARE(zepletEvent()->totalEventsPublished(), published + 2);
}

void TestSubscriptions::anEmptyPathIsRefused()
{
    const int before = zepletEvent()->subscriptionCount(RCNotifyDataChange);
    LogCapture log;
    QVERIFY(!zepletInterface()->connectRcNotify(plugin, QString(), {}));
    QCOMPARE(zepletEvent()->subscriptionCount(RCNotifyDataChange), before);
    QCOMPARE(log.take(), QStringList());
}

void TestSubscriptions::networkStatusCallsBackWhileTheContextLives()
{
    auto *manager = zepletInterface();
    int ups = 0;
    int downs = 0;
    auto context = std::make_unique<QObject>();
    const QString up = manager->connectNetworkStatus(true, plugin, context.get(), [&] { ++ups; });
    const QString down
        = manager->connectNetworkStatus(false, plugin, context.get(), [&] { ++downs; });
    zepletEvent()->publish(NetworkConnected);
    QCOMPARE(ups, 1);
    QCOMPARE(downs, 0);
    zepletEvent()->publish(NetworkDisconnected);
    QCOMPARE(ups, 1);
    QCOMPARE(downs, 1);
    QVERIFY(zepletEvent()->totalSubscriptionIds(plugin).contains(up));

    QVERIFY(!manager->disconnectNetworkStatus(true, plugin, QString()));
    QVERIFY(manager->disconnectNetworkStatus(false, plugin, up));
    QVERIFY(!manager->disconnectNetworkStatus(true, plugin, up));
    context.reset();
    zepletEvent()->publish(NetworkConnected);
    zepletEvent()->publish(NetworkDisconnected);
    QCOMPARE(ups + downs, 2);
    QVERIFY(!manager->disconnectNetworkStatus(false, plugin, down));
}

QTEST_MAIN(TestSubscriptions)
#include "tst_subscriptions.moc"
