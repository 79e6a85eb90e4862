#include <zeplet-test/testpanel.h>

#include <QLabel>
#include <QListWidget>
#include <QTest>

using zeplet::test::TestPanel;

class TestEvents : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void countsParts();
};

void TestEvents::countsParts()
{
    TestPanel panel;
    QVERIFY2(panel.start(), qPrintable(panel.problem()));
    QWidget *const page = panel.page("events");
    QVERIFY2(page, qPrintable(panel.problem()));

    const auto *counts = page->findChild<QLabel *>("counts");
    const auto *journal = page->findChild<QListWidget *>();
    for (const char *button : {"Good part", "Rejected part", "Good part"})
        QVERIFY2(panel.click(page, button), qPrintable(panel.problem()));
    QTRY_VERIFY(counts->text().startsWith("2 good, 1 rejected"));
    QCOMPARE(journal->count(), 3);

    // A program that ran and ended is a part, and not one that a person told of.
    panel.control("program start");
    QVERIFY2(panel.waitForEvent(zeplet::RCRunStart), qPrintable(panel.problem()));
    panel.control("program stop");
    QTRY_VERIFY(counts->text().startsWith("3 good, 1 rejected"));
    QCOMPARE(journal->count(), 3);

    QVERIFY2(panel.click(page, "Pause"), qPrintable(panel.problem()));
    QVERIFY2(panel.click(page, "Good part"), qPrintable(panel.problem()));
    QVERIFY2(panel.click(page, "New shift"), qPrintable(panel.problem()));
    QTRY_COMPARE(counts->text(), QString("0 good, 0 rejected"));

    QCOMPARE(panel.detach("events"), QStringList());
}

QTEST_MAIN(TestEvents)
#include "tst_events.moc"
