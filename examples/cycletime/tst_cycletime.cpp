#include <zeplet-test/testpanel.h>

#include <QLabel>
#include <QMessageBox>
#include <QTest>

using zeplet::test::TestPanel;

class TestCycleTime : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void timesCycles();
};

void TestCycleTime::timesCycles()
{
    TestPanel panel;
    QVERIFY2(panel.start(), qPrintable(panel.problem()));
    QWidget *const page = panel.page("cycletime");
    QVERIFY2(page, qPrintable(panel.problem()));

    const auto *statistics = panel.window()->findChild<QLabel *>("statistics");
    QVERIFY(statistics);
    QTRY_COMPARE(statistics->text(), QString("No cycles yet."));
    panel.control("program start");
    QVERIFY2(panel.waitForEvent(zeplet::RCRunStart), qPrintable(panel.problem()));
    panel.control("program stop");
    QTRY_VERIFY(statistics->text().startsWith("Cycles: 1"));

    QVERIFY2(panel.click(page, "Clear"), qPrintable(panel.problem()));
    auto *question = page->findChild<QMessageBox *>();
    QVERIFY(question && question->isVisible());
    question->accept();
    QVERIFY2(panel.expectBanner("info", "begin anew"), qPrintable(panel.problem()));
    QTRY_COMPARE(statistics->text(), QString("No cycles yet."));

    // A plugin that goes takes an open question along.
    QVERIFY2(panel.click(page, "Clear"), qPrintable(panel.problem()));

    QCOMPARE(panel.detach("cycletime"), QStringList());
}

QTEST_MAIN(TestCycleTime)
#include "tst_cycletime.moc"
