#include <zeplet-test/testpanel.h>

#include <QLabel>
#include <QTest>

using zeplet::test::TestPanel;

/** The plugin in a panel with a simulated robot, whose motors are on at the start. */
class SampleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void buttonSwitchesMotors()
    {
        TestPanel panel;
        QVERIFY2(panel.start(), qPrintable(panel.problem()));
        QWidget *const page = panel.page("sample");
        QVERIFY2(page, qPrintable(panel.problem()));
        auto *const motors = panel.find<QLabel>(page, "motors");
        QCOMPARE(motors->text(), QString("The motors are on."));

        QVERIFY2(panel.click(page, "Switch the motors"), qPrintable(panel.problem()));
        QVERIFY(panel.expectRequest("system.state.switch_motor_off"));
        QVERIFY(panel.waitForEvent(zeplet::RCPowerStatusChange));
        QCOMPARE(motors->text(), QString("The motors are off."));
        QCOMPARE(panel.detach("sample"), QStringList());
    }
};

QTEST_MAIN(SampleTest)
#include "tst_sample.moc"
