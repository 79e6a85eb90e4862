#include <zeplet-test/testpanel.h>

#include <QLineEdit>
#include <QTableWidget>
#include <QTest>

using zeplet::test::TestPanel;

class TestPersistent : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void watchesAndWrites();
};

void TestPersistent::watchesAndWrites()
{
    zeplet::test::PanelSetup setup;
    setup.scenario = R"({"variables": [{"name": "count", "type": "int", "value": 3}]})";
    TestPanel panel(setup);
    QVERIFY2(panel.start(), qPrintable(panel.problem()));
    QWidget *const page = panel.page("persistent");
    QVERIFY2(page, qPrintable(panel.problem()));

    const auto fields = page->findChildren<QLineEdit *>();
    fields[0]->setText("count");
    QVERIFY2(panel.click(page, "Watch"), qPrintable(panel.problem()));
    auto *table = page->findChild<QTableWidget *>();
    QCOMPARE(table->rowCount(), 1);
    panel.control("var set count 7");
    QTRY_COMPARE(table->item(0, 1)->text(), QString("7"));

    table->selectRow(0);
    fields[1]->setText("12");
    QVERIFY2(panel.click(page, "Write"), qPrintable(panel.problem()));
    QTRY_COMPARE(table->item(0, 1)->text(), QString("12"));

    QCOMPARE(panel.detach("persistent"), QStringList());
}

QTEST_MAIN(TestPersistent)
#include "tst_persistent.moc"
