#include <zeplet-test/testpanel.h>

#include <QFile>
#include <QListWidget>
#include <QTest>
#include <zeplet/zeplet.h>

using zeplet::test::TestPanel;

class TestPallet : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void makesPlaces();
};

void TestPallet::makesPlaces()
{
    TestPanel panel;
    QVERIFY2(panel.start(), qPrintable(panel.problem()));
    QWidget *const page = panel.page("pallet");
    QVERIFY2(page, qPrintable(panel.problem()));

    zeplet::InterfaceManager *const robot = zeplet::zepletInterface();
    const auto *places = page->findChild<QListWidget *>();
    QVERIFY2(panel.click(page, "Teach place"), qPrintable(panel.problem()));
    QVERIFY2(panel.click(page, "Make places"), qPrintable(panel.problem()));
    QCOMPARE(places->count(), 4);
    const QVector<double> first = robot->getPointDataByName("pallet", "");
    QVector<double> third = robot->getPointDataByName("pallet", "[2]");
    QCOMPARE(third.value(0), first.value(0) + 160);
    third[0] = first.value(0);
    QCOMPARE(third, first); // else the same

    panel.clearEvents();
    QVERIFY2(panel.click(page, "Raise all 10 mm"), qPrintable(panel.problem()));
    QCOMPARE(robot->getPointDataByName("pallet", "[3]").value(2), first.value(2) + 10);
    QTRY_VERIFY(panel.requests("project.variable") >= 4); // the point, and each further element
    for (const char *button : {"Park position", "Back up"})
        QVERIFY2(panel.click(page, button), qPrintable(panel.problem()));
    QVERIFY(QFile::exists("zeplets/client/pallet/points.json"));
    QCOMPARE(robot->getPointJointDataByName("park", "").value(4), 90.0);

    QCOMPARE(panel.detach("pallet"), QStringList());
}

QTEST_MAIN(TestPallet)
#include "tst_pallet.moc"
