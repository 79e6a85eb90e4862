#include <zeplet-test/testpanel.h>

#include <QComboBox>
#include <QTest>
#include <zeplet/zeplet.h>

using zeplet::test::TestPanel;

class TestMoves : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sendsTheRobotToAPoint();
};

void TestMoves::sendsTheRobotToAPoint()
{
    TestPanel panel;
    QVERIFY2(panel.start(), qPrintable(panel.problem()));
    QWidget *const page = panel.page("moves");
    QVERIFY2(page, qPrintable(panel.problem()));

    QVERIFY2(panel.click(page, "Move straight"), qPrintable(panel.problem())); // chooses none
    QVERIFY(zeplet::zepletInterface()->addCurrentPoint("pick", false, "tool0", "wobj0", ""));
    auto *points = page->findChild<QComboBox *>();
    QTRY_COMPARE(points->count(), 1);
    points->setCurrentText("pick");
    QCOMPARE(panel.requests("move.opr.enough"), 0);
    QVERIFY2(panel.click(page, "Move straight"), qPrintable(panel.problem()));
    QVERIFY2(panel.expectRequest("move.move_to.l"), qPrintable(panel.problem()));
    QVERIFY2(panel.expectRequest("move.opr.enough"), qPrintable(panel.problem()));
    QVERIFY2(panel.click(page, "Stop"), qPrintable(panel.problem()));
    QVERIFY2(panel.expectRequest("move.stop"), qPrintable(panel.problem()));

    QCOMPARE(panel.detach("moves"), QStringList());
}

QTEST_MAIN(TestMoves)
#include "tst_moves.moc"
