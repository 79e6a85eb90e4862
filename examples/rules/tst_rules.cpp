#include <zeplet-test/testpanel.h>

#include <QLabel>
#include <QListWidget>
#include <QTest>

using zeplet::test::TestPanel;

class TestRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsOfWhatHappens();
};

void TestRules::tellsOfWhatHappens()
{
    TestPanel panel;
    QVERIFY2(panel.start(), qPrintable(panel.problem()));
    QWidget *const page = panel.page("rules");
    QVERIFY2(page, qPrintable(panel.problem()));

    const auto *notice = page->findChild<QLabel *>("notice");
    const auto *list = page->findChild<QListWidget *>();
    for (const char *rule : {"Motors go on", "Next start", "Next start"})
        QVERIFY2(panel.click(page, rule), qPrintable(panel.problem()));
    QCOMPARE(list->count(), 2);
    panel.control("set power off");
    QVERIFY2(panel.waitForEvent(zeplet::RCPowerStatusChange), qPrintable(panel.problem()));
    QCOMPARE(notice->text(), QString("The rule starts anew."));
    panel.control("set power on");
    QTRY_COMPARE(notice->text(), QString("The motors are on: keep clear."));

    panel.control("program start");
    QTRY_COMPARE(notice->text(), QString("The program has started."));
    QCOMPARE(list->count(), 1); // that one was good for one start

    QCOMPARE(panel.detach("rules"), QStringList());
}

QTEST_MAIN(TestRules)
#include "tst_rules.moc"
