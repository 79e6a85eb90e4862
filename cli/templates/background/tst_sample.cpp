#include <zeplet-test/testpanel.h>

#include <QLabel>
#include <QTest>

using zeplet::test::TestPanel;

/** The plugin in a panel with a simulated robot, whose motors are on at the start. */
class SampleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsAreCounted()
    {
        TestPanel panel;
        QVERIFY2(panel.start(), qPrintable(panel.problem()));
        auto *const status = panel.find<QLabel>(panel.window(), "sample_starts");
        QVERIFY(status);
        QCOMPARE(status->text(), QString("Starts: 0"));

        panel.control("program start");
        QVERIFY2(panel.waitForEvent(zeplet::RCRunStart), qPrintable(panel.problem()));
        QCOMPARE(status->text(), QString("Starts: 1"));
        QCOMPARE(panel.detach("sample"), QStringList());
    }
};

QTEST_MAIN(SampleTest)
#include "tst_sample.moc"
