#include <QRegularExpression>
#include <QTest>

#include <zeplet/events/zepleteventfilters.h>

using namespace zeplet;

class TestZepletEventFilters : public QObject
{
    Q_OBJECT

private slots:
    void bySource_data();
    void bySource();
    void byServiceKey_data();
    void byServiceKey();
    void byProperty_data();
    void byProperty();
    void adapters();
};

void TestZepletEventFilters::bySource_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("source");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("empty pattern") << ""
                                   << "anything" << true;
    QTest::newRow("empty pattern, empty source") << ""
                                                 << "" << true;
    QTest::newRow("any text") << "sys*"
                              << "system" << true;
    QTest::newRow("no text at all") << "sys*"
                                    << "sys" << true;
    QTest::newRow("not anchored") << "sys*"
                                  << "mysystem" << true;
    QTest::newRow("other case") << "sys*"
                                << "SYSTEM" << false;
    QTest::newRow("one character") << "s?s"
                                   << "sys" << true;
    QTest::newRow("one character is needed") << "s?s"
                                             << "ss" << false;
    QTest::newRow("a point is any character") << "a.b"
                                              << "axb" << true;
    QTest::newRow("anchors keep their meaning") << "^sys$"
                                                << "system" << false;
    QTest::newRow("classes keep their meaning") << "io[0-9]"
                                                << "io7" << true;
    QTest::newRow("stars are replaced in groups too") << "(ab)*c"
                                                      << "ab-c" << true;
    QTest::newRow("no pattern at all matches a broken one") << "("
                                                            << "(" << false;
}

void TestZepletEventFilters::bySource()
{
    QFETCH(QString, pattern);
    QFETCH(QString, source);
    if (pattern == QLatin1String("("))
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("invalid QRegularExpression"));
    QTEST(filterBySource(pattern)(ZepletEvent(None, source, {})), "accepted");
}

void TestZepletEventFilters::byServiceKey_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("the key") << "io.a" << true;
    QTest::newRow("other case") << "IO.a" << false;
    QTest::newRow("a part") << "io" << false;
    QTest::newRow("empty") << "" << false;
}

void TestZepletEventFilters::byServiceKey()
{
    QFETCH(QString, key);
    QTEST(filterByServiceKey(key)(ZepletEvent(NexoDataChange, "io.a", 1)), "accepted");
}

void TestZepletEventFilters::byProperty_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("present");
    QTest::addColumn<bool>("equal");
    QTest::newRow("equal") << "x" << QVariant(5) << true << true;
    QTest::newRow("different") << "x" << QVariant(6) << true << false;
    QTest::newRow("missing") << "y" << QVariant(5) << false << false;
    QTest::newRow("missing equals invalid") << "y" << QVariant() << false << true;
    QTest::newRow("present but invalid") << "empty" << QVariant() << true << true;
}

void TestZepletEventFilters::byProperty()
{
    QFETCH(QString, name);
    QFETCH(QVariant, value);
    ZepletEvent event;
    event.setProperty("x", 5);
    event.setProperty("empty", QVariant());
    QTEST(filterByProperty(name)(event), "present");
    QTEST(filterByPropertyValue(name, value)(event), "equal");
}

void TestZepletEventFilters::adapters()
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

QTEST_GUILESS_MAIN(TestZepletEventFilters)
#include "tst_zepleteventfilters.moc"
