#include <zeplet-test/testpanel.h>

#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>
#include <zeplet/zeplet.h>

using zeplet::test::TestPanel;

class TestPoints : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void teachesAndRaises();
};

void TestPoints::teachesAndRaises()
{
    TestPanel panel;
    QVERIFY2(panel.start(), qPrintable(panel.problem()));
    QWidget *const page = panel.page("points");
    QVERIFY2(page, qPrintable(panel.problem()));

    page->findChild<QLineEdit *>()->setText("pick");
    QVERIFY2(panel.click(page, "Teach pose"), qPrintable(panel.problem()));
    QCOMPARE(page->findChild<QListWidget *>()->count(), 1);
    QVERIFY(QFile::exists(panel.controllerFile("point.json")));

    const double height = zeplet::zepletInterface()->getPointDataByName("pick", "").value(2);
    QVERIFY2(panel.click(page, "Raise 10 mm"), qPrintable(panel.problem()));
    QCOMPARE(zeplet::zepletInterface()->getPointDataByName("pick", "").value(2), height + 10);

    QVERIFY2(panel.click(page, "Remove"), qPrintable(panel.problem())); // asks
    QVERIFY2(panel.click(page, "Remove"), qPrintable(panel.problem()));
    QCOMPARE(page->findChild<QListWidget *>()->count(), 0);

    QCOMPARE(panel.detach("points"), QStringList());
}

QTEST_MAIN(TestPoints)
#include "tst_points.moc"
