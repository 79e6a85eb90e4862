#include <ostrel/moduleobject.h>
#include <zeplet/events/zepleteventsystem.h>
#include <zeplet/interface/interfacemanager.h>

#include <QElapsedTimer>
#include <QTest>

#include "testcolumns.h"

using namespace zeplet;

namespace
{

// Every event that the bus publishes, in its order.
QVector<ZepletEvent> received;

} // namespace

class TestHostBridge : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        connect(zepletEvent(), &ZepletEventSystem::eventPublished, this,
                [](const ZepletEvent &event) { received.append(event); });
        QElapsedTimer sinceConstruction;
        sinceConstruction.start();
        Q_EMIT zepletInterface()->sigNetworkConnect();
        QVERIFY2(received.isEmpty(), "the bridge is registered some time after construction");

        // The interface manager registers the bridge by itself, once.
        QTRY_VERIFY([] {
            if (received.isEmpty())
                Q_EMIT zepletInterface()->sigNetworkConnect();
            return !received.isEmpty();
        }());
        QCOMPARE(received.size(), 1);
        QVERIFY(sinceConstruction.elapsed() >= 100);
        received.clear();
    }

    void cleanup() { received.clear(); }

    void changesOfTheStoreBecomeEvents_data()
    {
        using Types = QVector<ZepletEventType>;
        const auto row
            = testcolumns<QString, QVariant, Types, QVariant>("key", "value", "types", "data");
        row("power", "power", "on", {RCPowerStatusChange}, "on");
        row("power as it came", "power", 1, {RCPowerStatusChange}, 1);
        row("mode", "mode", "auto", {RCRunModelChange, RCRunModelChange}, "auto");
        row("mode as text", "mode", 2, {RCRunModelChange, RCRunModelChange}, "2");
        row("program", "state", "program", {RCRunStart}, "program");
        row("idle", "state", "idle", {RCRunStop}, "idle");
        row("other case", "state", "Program", {}, {});
        row("other state", "state", "run_before", {}, {});
        row("before start", "zeplet.state", "run_before", {RCBeforeRunStart}, {});
        row("before stop", "zeplet.state", "stop_before", {RCBeforeRunStop}, {});
        row("other request", "zeplet.state", "idle", {}, {});
        row("unrelated key", "level", 1, {}, {});
    }

    void changesOfTheStoreBecomeEvents()
    {
        QFETCH(QString, key);
        QFETCH(QVariant, value);
        QFETCH(QVector<ZepletEventType>, types);
        QFETCH(QVariant, data);

        m("brisa.r." + key)->set(this, value, true);

        QCOMPARE(received.size(), types.size());
        for (int i = 0; i < types.size(); ++i) {
            QCOMPARE(received.at(i).type, types.at(i));
            QCOMPARE(received.at(i).data, data);
            QCOMPARE(received.at(i).data.userType(), data.userType());
            QCOMPARE(received.at(i).source, QString("system"));
            QVERIFY(received.at(i).propertyNames().isEmpty());
            QCOMPARE(received.at(i).seq, received.at(0).seq + quint64(i));
        }
    }

    void networkSignalsBecomeEvents()
    {
        Q_EMIT zepletInterface()->sigNetworkConnect();
        Q_EMIT zepletInterface()->sigNetworkDisConnect(false);
        Q_EMIT zepletInterface()->sigNetworkDisConnect(true);
        const QPair<ZepletEventType, QVariant> rows[]
            = {{NetworkConnected, {}}, {NetworkDisconnected, false}, {NetworkDisconnected, true}};
        QCOMPARE(received.size(), 3);
        for (const auto &[type, expected] : rows) {
            const ZepletEvent event = received.takeFirst();
            QCOMPARE(event.type, type);
            QCOMPARE(event.source, QString("system"));
            QVERIFY(!event.data.isValid());
            QCOMPARE(event.property("is_expected"), expected);
        }
    }

    // Has to be last: the connections end only with the bus.
    void aSecondRegistrationDoublesEverything()
    {
        zepletEvent()->registerAllEvents();
        m("brisa.r.mode")->set(this, "auto", true);
        QCOMPARE(received.size(), 4);
    }
};

QTEST_MAIN(TestHostBridge)
#include "tst_hostbridge.moc"
