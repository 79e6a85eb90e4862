#include <zeplet-test/testpanel.h>

#include <QLineEdit>
#include <QTableWidget>
#include <QTest>

using zeplet::test::TestPanel;

class TestMonitor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsEvents();
};

void TestMonitor::showsEvents()
{
    TestPanel panel;
    QVERIFY2(panel.start(), qPrintable(panel.problem()));
    QWidget *const page = panel.page("monitor");
    QVERIFY2(page, qPrintable(panel.problem()));

    panel.find<QLineEdit>(page, "watchName")->setText("demo.lamp");
    QVERIFY2(panel.click(page, "Watch hub key"), qPrintable(panel.problem()));
    QVERIFY2(panel.expectRequest("hub.watch"), qPrintable(panel.problem()));
    panel.control("hub set demo.lamp true");
    panel.control("set power off");
    const auto *table = page->findChild<QTableWidget *>();
    for (const char *event : {"NexoDataChange", "RCPowerStatusChange"})
        QTRY_VERIFY(!table->findItems(event, Qt::MatchExactly).isEmpty());

    QCOMPARE(panel.detach("monitor"), QStringList());
}

QTEST_MAIN(TestMonitor)
#include "tst_monitor.moc"
