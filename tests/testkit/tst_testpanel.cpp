#include "testcolumns.h"

#include <QDir>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <zeplet-test/testpanel.h>
#include <zeplet/events/zepleteventsystem.h>
#include <zeplet/interface/interfacemanager.h>

using zeplet::ZepletEvent;
using zeplet::test::comparePicture;
using zeplet::test::PanelSetup;
using zeplet::test::TestPanel;

Q_DECLARE_METATYPE(zeplet::test::PanelSetup)

#define START(panel) QVERIFY2(panel.start(), qPrintable(panel.problem()))
#define DONE(call) QVERIFY2(call, qPrintable(panel.problem()))

/** The kit in the hands of an author. Each function, and each row of a table, has a panel of its
 *  own: none must find anything of the one before. */
class TestTestPanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anotherSetup()
    {
        PanelSetup setup;
        setup.project.clear();
        setup.language = "de";
        TestPanel panel(setup);
        START(panel);
        QCOMPARE(zeplet::zepletInterface()->getCurProject(), QString());
        QCOMPARE(panel.panelFile("point.json"), QString());
        QCOMPARE(panel.window()->windowTitle(), QString("Bedienpanel"));
    }

    void aDay()
    {
        const QByteArray path = qgetenv("PATH");
        const QString home = QDir::currentPath();
        {
            TestPanel panel;
            START(panel);
            QVERIFY(!TestPanel().start());
            QCOMPARE(panel.window()->windowTitle(), QString("Robot panel"));
            QCOMPARE(zeplet::zepletInterface()->getIOByType("DI").size(), 4);
            QWidget *const page = panel.page("mannered");
            DONE(page);
            QCOMPARE(comparePicture(page, "mannered.png"), QString());
            QVERIFY(panel.find<QPushButton>(page, "closeKey"));
            panel.control("answer controller gripper.close true");
            DONE(panel.click(page, "closeKey"));
            QJsonValue arguments;
            DONE(panel.expectRequest("gripper.close", &arguments));
            QCOMPARE(arguments, QJsonValue(QJsonObject {{"force", 40}}));
            DONE(panel.expectBanner("warning", "gripper closes"));

            ZepletEvent event;
            panel.control("set power off");
            DONE(panel.waitForEvent(zeplet::RCPowerStatusChange, &event));
            QCOMPARE(event.data.toString(), QString("off"));

            QVERIFY(zeplet::zepletInterface()->createPoint("pick", false, false));
            QVERIFY(QFile::exists(panel.panelFile("point.json")));
            QVERIFY(QFile::exists(panel.controllerFile("point.json")));
            QCOMPARE(panel.detach("mannered"), QStringList());
            QVERIFY(!panel.page("mannered"));
            DONE(panel.page("leaky"));
        }
        QCOMPARE(QDir::currentPath(), home);
        QCOMPARE(qgetenv("PATH"), path);
        QVERIFY(!qEnvironmentVariableIsSet("RSYNC_CONNECT_PROG"));
    }

    void leftovers_data()
    {
        const auto row = testcolumns<QString>("sentence");
        row("nothing", "");
        row("subscription", "A subscription to RCRunStart in the name \"nobody\" is left: ");
        row("nameless subscription", "A subscription to RCRunStop in the name \"\" is left: ");
        row("hub watch", "The hub key demo.x is still watched: ");
        row("notify watch", "The notify path demo.y is still watched: ");
        row("motion", "The errors of a motion are still watched: ");
        row("monitor", "The variable part_count is still monitored: ");
        row("centre page", "The centre page leaky.more is left: ");
        row("side page", "The page leaky.side of the right side bar is left: ");
        row("status entry", "The status bar entry leaky.bar is left: ");
        row("page of keys", "The page of keys leaky.keys is left: ");
        row("modal window", "A modal window still counts: ");
        row("modal count", "The count of modal windows is off by 3: ");
        row("full screen", "The centre widget fills the screen: ");
        row("window", "The window \"Leak\" is still open: ");
        row("filter", "The filter \"run\" is still on: ");
        row("nothing again", "");
    }
    void leftovers()
    {
        QFETCH(QString, sentence);
        TestPanel panel;
        START(panel);
        DONE(panel.click(panel.page("leaky"), QString(QTest::currentDataTag()).remove(" again")));
        const QStringList left = panel.detach("leaky");
        QCOMPARE(left.size(), sentence.isEmpty() ? 0 : 1);
        QVERIFY2(left.value(0).contains(sentence), qPrintable(left.join(" | ")));
        QCOMPARE(panel.detach("mannered"), QStringList()); // it has no part in it
    }

    void refusals_data()
    {
        const auto row = testcolumns<PanelSetup, QString>("setup", "problem");
        const auto with = [](const QString &file, const QByteArray &scenario = {}) {
            PanelSetup setup;
            setup.plugins = QStringList {file};
            setup.scenario = scenario;
            return setup;
        };
        row("missing file", with("nowhere.so"), "The plugin nowhere.so can't be copied: build it ");
        row("broken library", with(halfOf(PanelSetup().plugins.first())),
            "half.so is cut short: copy the whole file to the panel again.");
        row("scenario", with(PanelSetup().plugins.first(), R"({"robot": {"power": 3}})"),
            "robot.power");
    }
    void refusals()
    {
        QFETCH(PanelSetup, setup);
        QFETCH(QString, problem);
        TestPanel panel(setup);
        QVERIFY(!panel.start());
        QVERIFY2(panel.problem().contains(problem), qPrintable(panel.problem()));
        QVERIFY(!panel.page("mannered"));
        QVERIFY(!panel.start());
    }

    /** What came instead is said. */
    void whatDidNotCome()
    {
        TestPanel panel;
        START(panel);
        QVERIFY(!panel.click(panel.page("mannered"), "Open"));
        QCOMPARE(panel.problem(), QString("No button \"Open\" can be clicked; there can: Close."));
        QVERIFY(!panel.click(panel.page("absent"), "Close")); // the page's problem is not lost
        QVERIFY2(panel.problem().contains("no page of a plugin \"absent\""),
                 qPrintable(panel.problem()));
        panel.clearEvents();
        const auto custom = zeplet::zepletEvent()->registerCustomEventType("Gripped");
        zeplet::zepletEvent()->publish(custom);
        zeplet::zepletEvent()->publish(custom);
        QVERIFY(!panel.waitForEvent(zeplet::RCRunStart, nullptr, 1));
        QCOMPARE(panel.problem(),
                 QString("No event RCRunStart came within 1 ms; there came: Gripped (2)."));
        zeplet::zepletInterface()->rcExecRequestFullCommand("io.get", QJsonValue());
        QVERIFY(!panel.expectRequest("gripper.open", nullptr, 1));
        QCOMPARE(panel.problem(),
                 QString("No request gripper.open came within 1 ms; there came: io.get (1)."));
        QVERIFY(!panel.expectBanner("error", "jammed", 1));
        QCOMPARE(
            panel.problem(),
            QString("No banner \"error: ...jammed...\" came within 1 ms; there came: nothing."));
        QString problem;
        QVERIFY(panel.control("set power perhaps", &problem).isUndefined());
        QVERIFY(problem.contains("set power on|off"));
        QCOMPARE(panel.detach("nobody").size(), 1);
    }

    void faults()
    {
        TestPanel panel;
        START(panel);
        panel.control("answer controller gripper.close true");
        const auto close = [] {
            return zeplet::zepletInterface()->rcExecRequestFullCommand("gripper.close", true);
        };
        DONE(panel.injectFault("refusal", "gripper.close", {{"times", 1}}));
        QCOMPARE(close(), QJsonValue());
        QCOMPARE(close(), QJsonValue(true));
        DONE(panel.injectFault("wrong_answer", "", {{"answer", 7}}));
        QCOMPARE(close(), QJsonValue(7));
        panel.clearFaults();
        QCOMPARE(close(), QJsonValue(true));
        QVERIFY(!panel.injectFault("refusel", "gripper.close"));
        QVERIFY2(panel.problem().contains("unknown fault 'refusel'"), qPrintable(panel.problem()));
        QVERIFY(!panel.injectFault("refusal", "x", {{"times", "often"}}));
        DONE(panel.injectFault("controller_down", ""));
        DONE(panel.waitForEvent(zeplet::NetworkDisconnected));
    }

private:
    QString halfOf(const QString &library)
    {
        QFile whole(library);
        QFile half(m_directory.filePath("half.so"));
        if (whole.open(QIODevice::ReadOnly) && half.open(QIODevice::WriteOnly))
            half.write(whole.read(whole.size() / 2));
        return half.fileName();
    }

    QTemporaryDir m_directory;
};

QTEST_MAIN(TestTestPanel)

#include "tst_testpanel.moc"
