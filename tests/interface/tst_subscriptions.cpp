#include "fakecontroller.h"
#include "logcapture.h"

#include <zeplet/events/zepleteventsystem.h>
#include <zeplet/interface/interfacemanager.h>

#include <QTest>

using namespace zeplet;

namespace
{

const QString plugin = "plugin";

/** Whether the hub was last told to watch the key, and how often it was told. */
QVector<bool> watches(const FakePeer &hub, const QString &key)
{
    QVector<bool> on;
    for (const rpc::Message &request : hub.requests()) {
        const QJsonObject params = request.params.toObject();
        if (request.method == "hub.watch" && params["key"].toString() == key)
            on.append(params["on"].toBool());
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
    void init() { m_fake.setUp(true); }

    void hubChangesReachTheCallbacksOfTheirKey()
    {
        QVariantList speeds;
        int others = 0;
        QVector<ZepletEvent> events;
        const auto all = connect(zepletEvent(), &ZepletEventSystem::eventPublished, this,
                                 [&](const ZepletEvent &event) { events.append(event); });
        auto *manager = zepletInterface();
        LogCapture log;
        QVERIFY(manager->connectNexoData(plugin, "demo.speed",
                                         [&](const QVariant &value) { speeds.append(value); }));
        QCOMPARE(log.take(), QStringList {"S|connectNexoData - serviceKey : demo.speed"});
        QVERIFY(manager->connectNexoData(plugin, "demo.name", [&](const QVariant &) { ++others; }));

        changeHubKey("demo.speed", 6);
        QTRY_COMPARE(speeds.size(), 1);

        QCOMPARE(speeds.first().toInt(), 6);
        QCOMPARE(others, 0);
        QCOMPARE(events.size(), 1);
        QCOMPARE(events.first().type, NexoDataChange);
        QCOMPARE(events.first().source, QString("demo.speed"));
        disconnect(all);

        // At once, where the host sets the node.
        nexo()->watchNode("demo.speed")->set(nullptr, 7);
        QCOMPARE(speeds.size(), 2);
        QVERIFY(manager->disconnectNexoData(plugin, "demo.speed", QString()));
        QVERIFY(manager->disconnectNexoData(plugin, "demo.name", QString()));
    }

    void subscribersOfAKeyShareOneWatch()
    {
        const QString key = "demo.shared";
        int calls = 0;
        auto *manager = zepletInterface();
        const auto subscribe
            = [&] { manager->connectNexoData(plugin, key, [&](const QVariant &) { ++calls; }); };
        const QString first = idAddedBy(subscribe);
        const QString second = idAddedBy(subscribe);
        QVERIFY(zepletEvent()->totalSubscriptionIds(plugin).contains(second));
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

    void anEmptyIdEndsAllOfAKey()
    {
        const QString key = "demo.all";
        auto *manager = zepletInterface();
        const int before = zepletEvent()->subscriptionCount(NexoDataChange);
        manager->connectNexoData(plugin, key, {});
        manager->connectNexoData("other", key, {});
        QCOMPARE(zepletEvent()->subscriptionCount(NexoDataChange), before + 2);

        QVERIFY(manager->disconnectNexoData(plugin, key, QString()));

        QCOMPARE(zepletEvent()->subscriptionCount(NexoDataChange), before);
        QTRY_COMPARE(watches(m_fake.hub, key), QVector<bool>({true, false}));
        // From here on the key starts afresh.
        manager->connectNexoData(plugin, key, {});
        QTRY_COMPARE(watches(m_fake.hub, key), QVector<bool>({true, false, true}));
        manager->disconnectNexoData(plugin, key, QString());
    }

    void anUnknownOrEmptyKeyIsNoError()
    {
        auto *manager = zepletInterface();
        QVERIFY(manager->disconnectNexoData(plugin, "unknown", QString()));
        QVERIFY(manager->disconnectNexoData(plugin, "unknown", "id"));
        QVERIFY(manager->disconnectRcNotify(plugin, "unknown", QString()));

        QVERIFY(manager->connectNexoData(plugin, QString(), {}));
        QVERIFY(manager->disconnectNexoData(plugin, QString(), QString()));

        // An id that is known to the bus ends, whatever the key.
        const QString id = zepletEvent()->subscribeFiltered(NetworkError, {}, {}, plugin);
        QVERIFY(manager->disconnectRcNotify(plugin, "unknown", id));
        QVERIFY(!zepletEvent()->hasSubscription(id));
    }

    void notificationsReachTheCallbacksOfTheirPath()
    {
        const QString path = "demo.path";
        QVariantList values;
        auto *manager = zepletInterface();
        LogCapture log;
        QVERIFY(manager->connectRcNotify(plugin, path,
                                         [&](const QVariant &data) { values.append(data); }));
        QCOMPARE(log.take(), QStringList("S|connectRcNotify - notifyPath : demo.path"));
        const QJsonArray sent {"a", 2.5, QJsonArray {1, "a"},
                               QJsonObject {{"a", QJsonObject {{"b", 1}}}}};
        for (const QJsonValue &value : sent)
            m_fake.controller.notify("notify", QJsonObject {{"path", path}, {"value", value}});
        QTRY_COMPARE(values, sent.toVariantList());
        QVERIFY(manager->disconnectRcNotify(plugin, path, QString()));
    }

    void subscribersOfAPathShareOneConnection()
    {
        const QString path = "demo.shared";
        int calls = 0;
        auto *manager = zepletInterface();
        const auto subscribe
            = [&] { manager->connectRcNotify(plugin, path, [&](const QVariant &) { ++calls; }); };
        const QString first = idAddedBy(subscribe);
        const QString second = idAddedBy(subscribe);
        QVERIFY(zepletEvent()->totalSubscriptionIds(plugin).contains(second));
        ostrel::ModuleObject *node = FakeController::manager()->cmdItemMobj("notify", path);
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

    void anEmptyPathIsRefused()
    {
        const int before = zepletEvent()->subscriptionCount(RCNotifyDataChange);
        LogCapture log;
        QVERIFY(!zepletInterface()->connectRcNotify(plugin, QString(), {}));
        QCOMPARE(zepletEvent()->subscriptionCount(RCNotifyDataChange), before);
        QCOMPARE(log.take(), QStringList());
    }

    void networkStatusCallsBackWhileTheContextLives()
    {
        auto *manager = zepletInterface();
        int ups = 0;
        int downs = 0;
        auto context = std::make_unique<QObject>();
        const QString up
            = manager->connectNetworkStatus(true, plugin, context.get(), [&] { ++ups; });
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

private:
    void changeHubKey(const QString &key, const QJsonValue &value)
    {
        m_fake.hub.notify("hub.changed", QJsonObject {{"key", key}, {"value", value}});
    }

    FakeController m_fake;
};

QTEST_MAIN(TestSubscriptions)
#include "tst_subscriptions.moc"
