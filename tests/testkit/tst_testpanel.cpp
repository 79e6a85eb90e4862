#include <QDir>
#include <QPushButton>
#include <QTest>
#include <zeplet-test/testpanel.h>
#include <zeplet/interface/interfacemanager.h>

using zeplet::test::PanelSetup;
using zeplet::test::TestPanel;

class TestTestPanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aTestOfAPlugin_data()
    {
        QTest::addColumn<int>("round");
        QTest::newRow("first") << 1;
        QTest::newRow("second") << 2;
    }
    void aTestOfAPlugin()
    {
        const QString home = QDir::currentPath();
        {
            TestPanel panel;
            QVERIFY2(panel.start(), qPrintable(panel.problem()));
            QWidget *const page = panel.page("mannered");
            QVERIFY2(page, qPrintable(panel.problem()));
            QVERIFY(!panel.click(page, "Off"));
            QCOMPARE(panel.problem(),
                     QString("No button \"Off\" can be clicked; there can: &Start."));
            panel.control("answer controller gripper.close true");
            QVERIFY2(panel.click(page, "Start"), qPrintable(panel.problem()));
            QJsonValue arguments;
            QVERIFY2(panel.expectRequest("gripper.close", &arguments), qPrintable(panel.problem()));
            QCOMPARE(arguments, QJsonValue(QJsonObject {{"force", 40}}));
            QVERIFY(panel.expectBanner("warning", "gripper closes"));
            zeplet::ZepletEvent event;
            panel.control("set power off");
            QVERIFY2(panel.waitForEvent(zeplet::RCPowerStatusChange, &event),
                     qPrintable(panel.problem()));
            QCOMPARE(event.data.toString(), QString("off"));
            QVERIFY(zeplet::zepletInterface()->createPoint("pick", false, false));
            QVERIFY(QFile::exists(panel.panelFile("point.json")));
            QVERIFY(QFile::exists(panel.controllerFile("point.json")));
            QCOMPARE(panel.detach("mannered"), QStringList());
        }
        QCOMPARE(QDir::currentPath(), home);
    }
};

QTEST_MAIN(TestTestPanel)
#include "tst_testpanel.moc"
