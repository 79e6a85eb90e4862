#include <QRegularExpression>
#include <QTest>

#include <zeplet/events/zepleteventfilters.h>

using namespace zeplet;

class TestZepletEventFilters : public QObject
{
    Q_OBJECT

private slots:
    void bySource()
    {
        const struct {
            const char *pattern, *source;
            bool accepted;
        } rows[] = {
            {"", "anything", true},     {"", "", true},
            {"sys*", "system", true},   {"sys*", "sys", true},
            {"sys*", "mysystem", true}, // not anchored
            {"sys*", "SYSTEM", false},  {"s?s", "sys", true},
            {"s?s", "ss", false},       {"a.b", "axb", true}, // expressions keep their meaning
            {"^sys$", "system", false}, {"io[0-9]", "io7", true},
            {"(ab)*c", "ab-c", true}, // but for the star
            {"(", "(", false}, // broken
        };
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("invalid QRegularExpression"));
        for (const auto &[pattern, source, accepted] : rows) {
            const bool found = filterBySource(pattern)(ZepletEvent(None, source, {}));
            QVERIFY2(found == accepted, pattern);
        }
    }

    void byServiceKey()
    {
        const ZepletEvent event(NexoDataChange, "io.a", 1);
        QVERIFY(filterByServiceKey("io.a")(event));
        for (const char *key : {"IO.a", "io", ""})
            QVERIFY2(!filterByServiceKey(key)(event), key);
    }

    void byProperty()
    {
        const struct {
            const char *name;
            QVariant value;
            bool present, equal;
        } rows[] = {
            {"x", 5, true, true},
            {"x", 6, true, false},
            {"y", 5, false, false},
            {"y", QVariant(), false, true}, // missing equals invalid
            {"empty", QVariant(), true, true},
        };
        ZepletEvent event;
        event.setProperty("x", 5);
        event.setProperty("empty", QVariant());
        for (const auto &row : rows) {
            QCOMPARE(filterByProperty(row.name)(event), row.present);
            QCOMPARE(filterByPropertyValue(row.name, row.value)(event), row.equal);
        }
    }

    void adapters()
    {
        const ZepletEvent event(NexoDataChange, "key", 5);
        int calls = 0;
        adaptNetworkCallback([&calls] { ++calls; })(event);
        QCOMPARE(calls, 1);
        QVariant received;
        adaptNexoCallback([&received](const QVariant &value) { received = value; })(event);
        QCOMPARE(received, QVariant(5));

        adaptNetworkCallback({})(event);
        adaptNexoCallback({})(event);
    }
};

QTEST_GUILESS_MAIN(TestZepletEventFilters)
#include "tst_zepleteventfilters.moc"
