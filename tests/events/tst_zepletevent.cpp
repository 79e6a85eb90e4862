#include <QSet>
#include <QTest>
#include <QUuid>

#include <thread>
#include <utility>
#include <vector>

#include <zeplet/events/zepletevent.h>

using namespace zeplet;

class TestZepletEvent : public QObject
{
    Q_OBJECT

private slots:
    // Runs before anything else of this process makes an event.
    void firstNumber()
    {
        QCOMPARE(ZepletEvent().seq, quint64(1));
        QCOMPARE(ZepletEvent().seq, quint64(2));
        QCOMPARE(ZepletEvent::generateSequenceId(), quint64(3));
    }

    void typeNames()
    {
        const QPair<qint32, const char *> rows[] = {
            {0x0000, "None"},
            {0x1000, "HardEventStart"},
            {0x2001, "NetworkConnected"},
            {0x2002, "NetworkDisconnected"},
            {0x2003, "NetworkError"},
            {0x3001, "NexoDataChange"},
            {0x4000, "RCEventStart"},
            {0x4001, "RCPowerStatusChange"},
            {0x4011, "RCRunModelChange"},
            {0x4021, "RCRunStart"},
            {0x4022, "RCRunStop"},
            {0x4023, "RCBeforeRunStart"},
            {0x4024, "RCBeforeRunStop"},
            {0x4031, "RCNotifyDataChange"},
            {0x5000, "UIEventStart"},
            {0x8000, "UserEventStart"},
            {0x0001, "SystemEvent(0x0001)"},
            {0x0FFF, "SystemEvent(0x0fff)"},
            {0x1001, "HardwareEvent(0x1001)"},
            {0x1FFF, "HardwareEvent(0x1fff)"},
            {0x2000, "NetworkEvent(0x2000)"},
            {0x3000, "NexoEvent(0x3000)"},
            {0x4002, "RCEvent(0x4002)"},
            {0x5FFF, "UIEvent(0x5fff)"},
            {0x6000, "Unknown(0x6000)"},
            {0x7FFF, "Unknown(0x7fff)"},
            {0x8001, "UserEventStart(0x8001)"},
            {0xFFFF, "UserEventStart(0xffff)"},
            {0x10000, "Unknown(0x10000)"},
            {-1, "Unknown(0xffffffff)"},
        };
        for (const auto &[value, name] : rows)
            QCOMPARE(eventTypeToString(static_cast<ZepletEventType>(value)), QString(name));
    }

    void construction()
    {
        const QDateTime before = QDateTime::currentDateTimeUtc();
        const ZepletEvent event(RCRunStart, "system", 7);
        QCOMPARE(event.type, RCRunStart);
        QCOMPARE(event.source, QString("system"));
        QCOMPARE(event.data, QVariant(7));
        QCOMPARE(event.timestamp.timeSpec(), Qt::UTC);
        QVERIFY(before <= event.timestamp && event.timestamp <= QDateTime::currentDateTimeUtc());
        QCOMPARE(ZepletEvent().type, None);
    }

    void copyIsTheSameEventAndMoveTakesIt()
    {
        ZepletEvent event(RCRunStart, "system", 7);
        event.setProperty("x", 1);
        ZepletEvent assigned;
        assigned.setProperty("old", 1);
        assigned = event;
        assigned = *&assigned;
        ZepletEvent source(event);
        const ZepletEvent moved(std::move(source));
        QVERIFY(source.properties.isEmpty());
        for (const ZepletEvent &copy : {ZepletEvent(event), assigned, moved}) {
            QCOMPARE(copy.id, event.id);
            QCOMPARE(copy.seq, event.seq);
            QCOMPARE(copy.timestamp, event.timestamp);
            QCOMPARE(copy.type, RCRunStart);
            QCOMPARE(copy.data, QVariant(7));
            QCOMPARE(copy.propertyNames(), QStringList("x"));
        }
        assigned.setProperty("x", 2);
        QCOMPARE(event.property("x"), QVariant(1));
        event = std::move(assigned);
        QVERIFY(assigned.properties.isEmpty());
        QCOMPARE(event.property("x"), QVariant(2));
    }

    void properties()
    {
        ZepletEvent event;
        QCOMPARE(event.property("x", 5), QVariant(5));
        QVERIFY(!event.hasProperty("x"));

        event.setProperty("x", QVariant());
        QVERIFY(event.hasProperty("x"));
        QVERIFY(!event.property("x", 5).isValid());

        event.setProperty("x", 1);
        event.setProperty("y", 2);
        QCOMPARE(event.property("x"), QVariant(1));
        const QStringList names = event.propertyNames();
        QCOMPARE(QSet<QString>(names.begin(), names.end()), (QSet<QString> {"x", "y"}));

        event.removeProperty("not there");
        QCOMPARE(event.propertyNames().size(), 2);
        event.removeProperty("x");
        QCOMPARE(event.propertyNames(), QStringList("y"));
    }

    void text()
    {
        for (const QString source : {"system", "", "%1 %3 %4 %5 %99"}) {
            ZepletEvent event(RCRunStart, source, "not shown");
            event.seq = 42;
            event.id = "1b4e28ba-2fa1-11d2-883f-0016d3cca427";
            event.timestamp = QDateTime({2024, 5, 6}, {7, 8, 9, 123}, Qt::UTC);
            QCOMPARE(event.toString(),
                     QString("ZepletEvent{type=RCRunStart, source='" + source
                             + "', seq=42, id='1b4e28ba-2fa1-11d2-883f-0016d3cca427', "
                               "time='2024-05-06T07:08:09Z'}"));
        }
    }

    void idsAreVersion4Uuids()
    {
        // More than one batch of random bits.
        for (int i = 0; i < 500; ++i) {
            const QString id = ZepletEvent().id;
            const QUuid uuid(id);
            QCOMPARE(uuid.version(), QUuid::Random);
            QCOMPARE(uuid.variant(), QUuid::DCE);
            QCOMPARE(uuid.toString(QUuid::WithoutBraces), id);
        }
    }

    void numbersAndIdsAreUniqueAcrossThreads()
    {
        constexpr int Threads = 4;
        constexpr int Events = 2000;
        std::vector<std::vector<ZepletEvent>> made(Threads);
        std::vector<std::thread> threads;
        for (auto &events : made) {
            threads.emplace_back([&events] {
                for (int i = 0; i < Events; ++i)
                    events.emplace_back();
            });
        }
        for (std::thread &thread : threads)
            thread.join();

        QSet<quint64> numbers;
        QSet<QString> ids;
        for (const auto &events : made) {
            for (std::size_t i = 0; i < events.size(); ++i) {
                QVERIFY(i == 0 || events[i - 1].seq < events[i].seq);
                numbers.insert(events[i].seq);
                ids.insert(events[i].id);
            }
        }
        QCOMPARE(numbers.size(), Threads * Events);
        QCOMPARE(ids.size(), Threads * Events);
    }
};

QTEST_GUILESS_MAIN(TestZepletEvent)
#include "tst_zepletevent.moc"
