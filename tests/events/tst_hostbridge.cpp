#include <ostrel/moduleobject.h>
#include <zeplet/events/zepleteventsystem.h>
#include <zeplet/interface/interfacemanager.h>

#include <QElapsedTimer>
#include <QTest>

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
    void initTestCase();
    void cleanup();
    void changesOfTheStoreBecomeEvents_data();
    void changesOfTheStoreBecomeEvents();
    void networkSignalsBecomeEvents_data();
    void networkSignalsBecomeEvents();
    void aModeChangeIsTwoEventsInARow();
    void aSecondRegistrationDoublesEverything();
};

void TestHostBridge::initTestCase()
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

void TestHostBridge::cleanup()
{
    received.clear();
}

void TestHostBridge::changesOfTheStoreBecomeEvents_data()
{
    using Types = QVector<ZepletEventType>;
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<Types>("types");
    QTest::addColumn<QVariant>("data");
    const QString power = QStringLiteral("brisa.r.power");
    const QString mode = QStringLiteral("brisa.r.mode");
    const QString state = QStringLiteral("brisa.r.state");
    const QString request = QStringLiteral("brisa.r.zeplet.state");

    QTest::newRow("power") << power << QVariant("on") << Types {RCPowerStatusChange}
                           << QVariant("on");
    QTest::newRow("power as it came")
        << power << QVariant(1) << Types {RCPowerStatusChange} << QVariant(1);
    QTest::newRow("mode") << mode << QVariant("auto") << Types {RCRunModelChange, RCRunModelChange}
                          << QVariant("auto");
    QTest::newRow("mode as text") << mode << QVariant(2)
                                  << Types {RCRunModelChange, RCRunModelChange} << QVariant("2");
    QTest::newRow("program") << state << QVariant("program") << Types {RCRunStart}
                             << QVariant("program");
    QTest::newRow("idle") << state << QVariant("idle") << Types {RCRunStop} << QVariant("idle");
    QTest::newRow("other case") << state << QVariant("Program") << Types {} << QVariant();
    QTest::newRow("other state") << state << QVariant("run_before") << Types {} << QVariant();
    QTest::newRow("before start") << request << QVariant("run_before") << Types {RCBeforeRunStart}
                                  << QVariant();
    QTest::newRow("before stop") << request << QVariant("stop_before") << Types {RCBeforeRunStop}
                                 << QVariant();
    QTest::newRow("other request") << request << QVariant("idle") << Types {} << QVariant();
    QTest::newRow("unrelated key")
        << QStringLiteral("brisa.r.level") << QVariant(1) << Types {} << QVariant();
}

void TestHostBridge::changesOfTheStoreBecomeEvents()
{
    QFETCH(QString, key);
    QFETCH(QVariant, value);
    QFETCH(QVector<ZepletEventType>, types);
    QFETCH(QVariant, data);

    m(key)->set(this, value, true);

    QCOMPARE(received.size(), types.size());
    for (int i = 0; i < types.size(); ++i) {
        QCOMPARE(received.at(i).type, types.at(i));
        QCOMPARE(received.at(i).data, data);
        QCOMPARE(received.at(i).data.userType(), data.userType());
        QCOMPARE(received.at(i).source, QStringLiteral("system"));
        QVERIFY(received.at(i).propertyNames().isEmpty());
    }
}

void TestHostBridge::networkSignalsBecomeEvents_data()
{
    QTest::addColumn<bool>("connected");
    QTest::addColumn<bool>("expected");
    QTest::newRow("connected") << true << false;
    QTest::newRow("lost") << false << false;
    QTest::newRow("closed on purpose") << false << true;
}

void TestHostBridge::networkSignalsBecomeEvents()
{
    QFETCH(bool, connected);
    QFETCH(bool, expected);
    if (connected)
        Q_EMIT zepletInterface()->sigNetworkConnect();
    else
        Q_EMIT zepletInterface()->sigNetworkDisConnect(expected);

    QCOMPARE(received.size(), 1);
    const ZepletEvent &event = received.at(0);
    QCOMPARE(event.type, connected ? NetworkConnected : NetworkDisconnected);
    QCOMPARE(event.source, QStringLiteral("system"));
    QVERIFY(!event.data.isValid());
    QCOMPARE(event.property(QStringLiteral("is_expected")),
             connected ? QVariant() : QVariant(expected));
}

void TestHostBridge::aModeChangeIsTwoEventsInARow()
{
    m(QStringLiteral("brisa.r.mode"))->set(this, QStringLiteral("manual"), true);
    QCOMPARE(received.size(), 2);
    QCOMPARE(received.at(1).seq, received.at(0).seq + 1);
    QVERIFY(received.at(0).id != received.at(1).id);
}

// Has to be last: the connections end only with the bus.
void TestHostBridge::aSecondRegistrationDoublesEverything()
{
    zepletEvent()->registerAllEvents();
    m(QStringLiteral("brisa.r.mode"))->set(this, QStringLiteral("auto"), true);
    QCOMPARE(received.size(), 4);
}

QTEST_MAIN(TestHostBridge)
#include "tst_hostbridge.moc"
