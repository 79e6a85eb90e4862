#include <QSet>
#include <QTest>

#include <memory>

#include <zeplet/events/zepleteventhandlerfunc.h>
#include <zeplet/events/zepleteventhandleroneshot.h>
#include <zeplet/events/zepleteventhandlerwithcontext.h>
#include <zeplet/events/zepletsubscriptionmanager.h>

#include "testcolumns.h"

using namespace zeplet;

namespace
{

ZepletEventSubscription subscription(const QString &id, const QString &plugin, ZepletEventType type)
{
    return {
        id, plugin, type,
        QSharedPointer<ZepletEventHandlerFunc>::create(type, ZepletEventHandler::Callback(), "h")};
}

template <typename List>
QSet<typename List::value_type> asSet(const List &list)
{
    return {list.begin(), list.end()};
}

QSet<QString> idsOf(const QList<QSharedPointer<ZepletEventSubscription>> &records)
{
    QSet<QString> ids;
    for (const auto &record : records)
        ids.insert(record->id);
    return ids;
}

using Ids = QSet<QString>;
using Removal = std::function<int(ZepletSubscriptionManager &)>;
using Action = std::function<void(ZepletSubscriptionManager &)>;

} // namespace

Q_DECLARE_METATYPE(Removal)
Q_DECLARE_METATYPE(Action)

class TestZepletSubscriptionManager : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_manager = std::make_unique<ZepletSubscriptionManager>();
        QCOMPARE(m_manager->addSubscription(subscription("a", "p", RCRunStart)), QString("a"));
        m_manager->addSubscription(subscription("b", "p", RCRunStop));
        m_manager->addSubscription(subscription("c", "q", RCRunStart));
        m_manager->addSubscription(subscription("d", "", RCRunStart));
    }

    void indexes()
    {
        QCOMPARE(asSet(m_manager->allSubscriptionIds()), (Ids {"a", "b", "c", "d"}));
        QCOMPARE(idsOf(m_manager->getSubscriptionsByType(RCRunStart)), (Ids {"a", "c", "d"}));
        QCOMPARE(idsOf(m_manager->getSubscriptionsByPlugin("p")), (Ids {"a", "b"}));
        QCOMPARE(asSet(m_manager->subscriptionIds("p")), (Ids {"a", "b"}));
        QCOMPARE(m_manager->subscriptionIds(""), QStringList("d"));
        QCOMPARE(m_manager->subscriptionCountByType(RCRunStart), 3);
        QCOMPARE(m_manager->subscriptionCountByPlugin("p"), 2);
        QCOMPARE(m_manager->validSubscriptionCount(), 4);
        QCOMPARE(asSet(m_manager->registeredEventTypes()),
                 (QSet<ZepletEventType> {RCRunStart, RCRunStop}));
        QVERIFY(m_manager->hasSubscription("a"));
        QCOMPARE(m_manager->getSubscription("b")->eventType, RCRunStop);

        QVERIFY(!m_manager->hasSubscription("unknown"));
        QVERIFY(m_manager->getSubscription("unknown").isNull());
        QVERIFY(m_manager->getSubscriptionsByType(NetworkError).isEmpty());
        QVERIFY(m_manager->subscriptionIds("unknown").isEmpty());
        QCOMPARE(m_manager->subscriptionCountByType(NetworkError), 0);
        QCOMPARE(m_manager->subscriptionCountByPlugin("unknown"), 0);
    }

    void removal_data()
    {
        const auto row = testcolumns<Removal, int, Ids>("remove", "removed", "left");
        using Manager = ZepletSubscriptionManager;
        row("an id", [](Manager &m) { return int(m.removeSubscription("b")); }, 1, {"a", "c", "d"});
        row("an unknown id", [](Manager &m) { return int(m.removeSubscription("x")); }, 0,
            {"a", "b", "c", "d"});
        row("a type", [](Manager &m) { return m.removeSubscriptionsByType(RCRunStart); }, 3, {"b"});
        row("an unknown type", [](Manager &m) { return m.removeSubscriptionsByType(None); }, 0,
            {"a", "b", "c", "d"});
        row("a plugin", [](Manager &m) { return m.removeSubscriptionsByPlugin("p"); }, 2,
            {"c", "d"});
        row("no plugin's name", [](Manager &m) { return m.removeSubscriptionsByPlugin(""); }, 1,
            {"a", "b", "c"});
        row("an unknown plugin", [](Manager &m) { return m.removeSubscriptionsByPlugin("x"); }, 0,
            {"a", "b", "c", "d"});
        row("everything", [](Manager &m) { return m.clear(), 4; }, 4, {});
    }

    void removal()
    {
        QFETCH(Removal, remove);
        QFETCH(Ids, left);
        QTEST(remove(*m_manager), "removed");
        QCOMPARE(asSet(m_manager->allSubscriptionIds()), left);

        Ids byType;
        const auto types = m_manager->registeredEventTypes();
        for (ZepletEventType type : types) {
            QVERIFY(m_manager->subscriptionCountByType(type) > 0);
            byType += idsOf(m_manager->getSubscriptionsByType(type));
        }
        QCOMPARE(byType, left);
        Ids byPlugin;
        for (const QString plugin : {"", "p", "q"})
            byPlugin += asSet(m_manager->subscriptionIds(plugin));
        QCOMPARE(byPlugin, left);
    }

    void removingInAnyOrderKeepsTheIndexes()
    {
        m_manager->clear();
        Ids ids;
        for (int i = 0; i < 60; ++i) {
            ids.insert(m_manager->addSubscription(subscription(
                QString::number(i), QString::number(i % 3), i % 2 ? RCRunStart : RCRunStop)));
        }
        for (int i = 0; i < 60; ++i) {
            const QString id = QString::number(i * 37 % 60);
            QVERIFY(m_manager->removeSubscription(id));
            QVERIFY(!m_manager->removeSubscription(id));
            ids.remove(id);
            const auto byType = idsOf(m_manager->getSubscriptionsByType(RCRunStart))
                + idsOf(m_manager->getSubscriptionsByType(RCRunStop));
            QCOMPARE(byType, ids);
            QCOMPARE(idsOf(m_manager->getSubscriptionsByPlugin("0"))
                         + idsOf(m_manager->getSubscriptionsByPlugin("1"))
                         + idsOf(m_manager->getSubscriptionsByPlugin("2")),
                     ids);
        }
        QVERIFY(m_manager->registeredEventTypes().isEmpty());
    }

    void replacingLeavesNoOldIndexEntry()
    {
        m_manager->addSubscription(subscription("b", "q", NetworkError));
        QCOMPARE(m_manager->allSubscriptionIds().size(), 4);
        QVERIFY(!m_manager->registeredEventTypes().contains(RCRunStop));
        QCOMPARE(idsOf(m_manager->getSubscriptionsByType(NetworkError)), Ids {"b"});
        QCOMPARE(asSet(m_manager->subscriptionIds("p")), Ids {"a"});
        QCOMPARE(asSet(m_manager->subscriptionIds("q")), (Ids {"b", "c"}));
    }

    void cleanupOfInvalid()
    {
        QObject context;
        const ZepletEventHandler::Callback none;
        const auto oneShot
            = QSharedPointer<ZepletEventHandlerOneShot>::create(RCRunStart, none, "h");
        const auto orphan
            = QSharedPointer<ZepletEventHandlerWithContext>::create(RCRunStart, nullptr, none, "h");
        const auto bound = QSharedPointer<ZepletEventHandlerWithContext>::create(
            RCRunStart, &context, none, "h");
        m_manager->addSubscription({"fired", "p", RCRunStart, oneShot});
        m_manager->addSubscription({"orphan", "p", RCRunStart, orphan});
        m_manager->addSubscription({"bound", "p", RCRunStart, bound});
        QCOMPARE(m_manager->validSubscriptionCount(), 6);

        m_manager->getSubscription("fired")->handleEvent(ZepletEvent());
        QCOMPARE(m_manager->validSubscriptionCount(), 5);
        QCOMPARE(m_manager->subscriptionCountByType(RCRunStart), 6);
        QCOMPARE(m_manager->cleanupInvalidSubscriptions(), 2);
        QCOMPARE(m_manager->cleanupInvalidSubscriptions(), 0);
        QCOMPARE(asSet(m_manager->allSubscriptionIds()), (Ids {"a", "b", "c", "d", "bound"}));

        m_manager->addSubscription({"no handler", "p", RCRunStart, {}});
        QCOMPARE(m_manager->cleanupInvalidSubscriptions(), 1);
    }

    void changedRecordIsRemovedFromItsOldPlaces()
    {
        const auto record = m_manager->getSubscription("b");
        record->id = "other";
        record->pluginName = "other";
        record->eventType = NetworkError;
        QVERIFY(m_manager->removeSubscription("b"));
        QVERIFY(!m_manager->hasSubscription("other"));
        QVERIFY(!m_manager->allSubscriptionIds().contains("other"));
        QVERIFY(m_manager->subscriptionIds("other").isEmpty());
        QCOMPARE(m_manager->subscriptionIds("p"), QStringList("a"));
        QCOMPARE(m_manager->registeredEventTypes(), QList<ZepletEventType> {RCRunStart});
    }

    void releaseRunsWithoutTheLock_data()
    {
        const auto row = testcolumns<Action>("action");
        using Manager = ZepletSubscriptionManager;
        row("remove", [](Manager &m) { m.removeSubscription("captured"); });
        row("by type", [](Manager &m) { m.removeSubscriptionsByType(UIEventStart); });
        row("by plugin", [](Manager &m) { m.removeSubscriptionsByPlugin("captured"); });
        row("replace", [](Manager &m) { m.addSubscription(subscription("captured", "p", None)); });
        row("clear", [](Manager &m) { m.clear(); });
        row("clean up", [](Manager &m) {
            m.getSubscription("captured")->handler->handleEvent(ZepletEvent());
            m.cleanupInvalidSubscriptions();
        });
    }

    // With the lock held, the destructor of the captured object would wait for ever.
    void releaseRunsWithoutTheLock()
    {
        QFETCH(Action, action);
        int left = -1;
        std::shared_ptr<void> captured(nullptr, [this, &left](void *) {
            left = m_manager->subscriptionCountByType(UIEventStart);
        });
        m_manager->addSubscription({"captured", "captured", UIEventStart,
                                    QSharedPointer<ZepletEventHandlerOneShot>::create(
                                        UIEventStart, [captured](const ZepletEvent &) {}, "h")});
        captured.reset();
        QCOMPARE(left, -1);
        action(*m_manager);
        QCOMPARE(left, 0);
    }

private:
    std::unique_ptr<ZepletSubscriptionManager> m_manager;
};

QTEST_GUILESS_MAIN(TestZepletSubscriptionManager)
#include "tst_zepletsubscriptionmanager.moc"
