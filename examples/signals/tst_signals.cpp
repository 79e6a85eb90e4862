#include <zeplet-test/testpanel.h>

#include <QComboBox>
#include <QTableWidget>
#include <QTest>

using zeplet::test::TestPanel;

class TestSignals : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void togglesAnOutput();
};

void TestSignals::togglesAnOutput()
{
    TestPanel panel;
    QVERIFY2(panel.start(), qPrintable(panel.problem()));
    QWidget *const page = panel.page("signals");
    QVERIFY2(page, qPrintable(panel.problem()));

    auto *table = page->findChild<QTableWidget *>();
    QTRY_COMPARE(table->item(0, 0)->text(), QString("di_1"));
    QTest::keyClick(page->findChild<QComboBox *>(), Qt::Key_Down); // digital outputs
    QTRY_COMPARE(table->item(0, 0)->text(), QString("do_1"));
    table->selectRow(0);
    QVERIFY2(panel.click(page, "Toggle"), qPrintable(panel.problem()));
    QTRY_VERIFY(panel.control("signal get do_1").toBool());
    QTRY_VERIFY(table->item(0, 1)->text().contains('1'));

    QCOMPARE(panel.detach("signals"), QStringList());
}

QTEST_MAIN(TestSignals)
#include "tst_signals.moc"
