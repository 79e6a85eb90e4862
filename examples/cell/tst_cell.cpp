#include <zeplet-test/testpanel.h>

#include <QLabel>
#include <QTest>

using zeplet::test::TestPanel;

class TestCell : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void worksTheDevices();
};

void TestCell::worksTheDevices()
{
    zeplet::test::PanelSetup setup;
    setup.scenario = R"({"hub": {"cell": {"door": "closed"}},
                         "io": {"signals": [{"name": "do_conveyor", "type": "DO"},
                                            {"name": "do_lamp_green", "type": "DO"}]}})";
    TestPanel panel(setup);
    QVERIFY2(panel.start(), qPrintable(panel.problem()));
    QWidget *const page = panel.page("cell");
    QVERIFY2(page, qPrintable(panel.problem()));

    const auto *door = page->findChild<QLabel *>("door");
    const auto *notice = page->findChild<QLabel *>("notice");
    QTRY_COMPARE(door->text(), QString("The door is closed."));
    panel.control(R"(hub set cell.door "open")");
    QTRY_COMPARE(door->text(), QString("The door is open."));

    QVERIFY2(panel.click(page, "Run conveyor"), qPrintable(panel.problem()));
    QTRY_VERIFY(panel.control("signal get do_conveyor").toBool());
    QVERIFY2(panel.click(page, "Lamp on"), qPrintable(panel.problem()));
    QTRY_VERIFY(panel.control("hub get cell.lamp").toBool());
    QVERIFY2(panel.click(page, "Grip"), qPrintable(panel.problem()));
    QVERIFY2(notice->text().contains("hold"), qPrintable(notice->text()));
    QVERIFY(panel.injectFault("refusal", "hub.plugin"));
    QVERIFY2(panel.click(page, "Release"), qPrintable(panel.problem()));
    QCOMPARE(notice->text(), QString("The gripper did not answer."));

    QCOMPARE(panel.detach("cell"), QStringList());
}

QTEST_MAIN(TestCell)
#include "tst_cell.moc"
