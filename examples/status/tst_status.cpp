#include <zeplet-test/testpanel.h>

#include <QTest>
#include <ostrel/moduleobject.h>

using zeplet::test::TestPanel;

class TestStatus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void switchesTheRobot();
};

void TestStatus::switchesTheRobot()
{
    TestPanel panel;
    QVERIFY2(panel.start(), qPrintable(panel.problem()));
    QWidget *const page = panel.page("status");
    QVERIFY2(page, qPrintable(panel.problem()));

    QVERIFY2(panel.click(page, "Start"), qPrintable(panel.problem()));
    QVERIFY2(panel.expectRequest("rl_program.start"), qPrintable(panel.problem()));
    QVERIFY2(panel.waitForEvent(zeplet::RCRunStart), qPrintable(panel.problem()));
    QVERIFY2(panel.click(page, "Stop"), qPrintable(panel.problem()));
    QVERIFY2(panel.waitForEvent(zeplet::RCRunStop), qPrintable(panel.problem()));

    // With the question on, a start of the operator waits; a plugin that goes takes it back.
    QVERIFY2(panel.click(page, "Ask before a start"), qPrintable(panel.problem()));
    panel.clearEvents();
    m("brisa.r.operator")->set(nullptr, "start");
    QVERIFY2(panel.waitForEvent(zeplet::RCBeforeRunStart), qPrintable(panel.problem()));
    QCOMPARE(panel.requests("rl_program.start"), 0);
    QVERIFY2(panel.click(page, "Start"), qPrintable(panel.problem()));
    QVERIFY2(panel.expectRequest("rl_program.start"), qPrintable(panel.problem()));

    QCOMPARE(panel.detach("status"), QStringList());
}

QTEST_MAIN(TestStatus)
#include "tst_status.moc"
