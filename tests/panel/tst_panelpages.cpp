#include "pagefixture.h"
#include "panelapplication.h"

#include <QDir>
#include <QLineEdit>
#include <QTabBar>
#include <kest/bmodule.h>
#include <kest/expandsidebar.h>
#include <kivra/navigation.h>
#include <ostrel/moduleobject.h>
#include <zeplet/interface/interfacemanager.h>

using zeplet::zepletInterface;

namespace
{

simulator::Scenario cell()
{
    QString error;
    const auto scenario = simulator::Scenario::fromText(R"json({
        "project": {"tasks": ["task0"], "function": "main"},
        "registers": [{"name": "R_PARTS", "value": ["0", "500"]}],
        "io": {
            "signals": [
                {"name": "di.door[1]", "type": "DI", "label": "Schutztür der Zelle", "value": true},
                {"name": "di_start", "type": "DI"},
                {"name": "do_gripper_with_a_name_that_is_longer_than_any_column", "type": "DO",
                 "label": "Greifer schließen, wenn das Teil in der Aufnahme liegt und geprüft ist"},
                {"name": "do_motors", "type": "DO"},
                {"name": "gi_part", "type": "GI", "value": 3},
                {"name": "ao_speed", "type": "AO", "label": "Conveyor speed", "value": 12.5}],
            "system_inputs": [{"signal": "di_start", "function": "program_start"}],
            "system_outputs": [{"signal": "do_motors", "function": "motor_on"}]}})json",
                                                        &error);
    if (!scenario)
        qFatal("%s", qPrintable(error));
    return *scenario;
}

const char *const longName = "do_gripper_with_a_name_that_is_longer_than_any_column";

} // namespace

/** The panel's pages as a person uses them: what they show, refuse and ask. */
class TestPanelPages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(m_panel.start()); }

    void init() { QVERIFY(m_panel.show("zeplet.page-projects")); }

    void newProject()
    {
        create("  Zelle 7 ", "Gehäuse schweißen");
        QTRY_COMPARE(m_panel.cell("projects", "Zelle 7"), QString("Zelle 7"));
        QCOMPARE(zepletInterface()->getCurProject(), QString("SIM-0001/Zelle 7"));
        QVERIFY(QDir(robotDirectory()).exists("Zelle 7/projectinfo.json"));
        QVERIFY(m_panel.notice().contains("Zelle 7"));
    }

    void invalidNames_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("sentence");
        QTest::newRow("empty") << " "
                               << "needs a name";
        QTest::newRow("path") << "a/b"
                              << "no path";
        QTest::newRow("up") << ".."
                            << "no path";
        QTest::newRow("taken") << "here"
                               << "already";
    }

    void invalidNames()
    {
        QFETCH(QString, name);
        QFETCH(QString, sentence);
        QCOMPARE(zepletInterface()->createProject("here", "", false), 0);
        QTRY_VERIFY(!m_panel.cell("projects", "here").isNull());
        QVERIFY(m_panel.click("newProject"));
        m_panel.find<QLineEdit>("projectName")->setText(name);
        QVERIFY(m_panel.find<QLabel>("validation")->text().contains(sentence));
        QVERIFY(!m_panel.click("accept"));
        QVERIFY(m_panel.click("cancel"));
        QCOMPARE(zepletInterface()->removeProject("here"), 0);
    }

    // Whatever the library refuses is told, with the project's name, and locks nothing.
    void refusals_data()
    {
        QTest::addColumn<QString>("action");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("sentence");
        QTest::newRow("create reserved") << "create"
                                         << "_temp"
                                         << "reserved";
        QTest::newRow("create behind our back") << "raced"
                                                << "raced"
                                                << "already";
        QTest::newRow("create without disk") << "create" << QString(300, 'x') << "disk";
        QTest::newRow("open what is gone") << "open"
                                           << "gone"
                                           << "no longer";
        QTest::newRow("remove what is gone") << "remove"
                                             << "gone"
                                             << "no longer";
    }

    void refusals()
    {
        QFETCH(QString, action);
        QFETCH(QString, name);
        QFETCH(QString, sentence);
        const QDir disk(robotDirectory());
        const bool known = action == "open" || action == "remove";
        if (known) {
            QCOMPARE(zepletInterface()->createProject(name, "", false), 0);
            QTRY_VERIFY(m_panel.tap("projects", name));
            QVERIFY(QDir(disk.filePath(name)).removeRecursively());
            QVERIFY(m_panel.click(action + "Project"));
            QVERIFY(action == "open" || m_panel.click("agree"));
        } else {
            openForm(name);
            QVERIFY(action != "raced" || disk.mkpath(name));
            QVERIFY(m_panel.click("accept"));
        }
        QTRY_VERIFY2(m_panel.notice().contains(sentence), qPrintable(m_panel.notice()));
        QVERIFY(m_panel.notice().contains(name.left(15)));
        QCOMPARE(m_panel.looks("light"), QString());
        QTRY_VERIFY(!m_panel.find<QWidget>("busy"));
        QCOMPARE(m("brisa.msg._")->getInt(0), 0);
        QTRY_COMPARE(m_panel.cell("projects", name).isNull(), action != "raced");
    }

    void removalAsksFirst()
    {
        QCOMPARE(zepletInterface()->createProject("kept", "", false), 0);
        QTRY_VERIFY(m_panel.tap("projects", "kept"));
        QVERIFY(m_panel.click("removeProject"));
        QCOMPARE(m("brisa.msg._")->getInt(0), 1);
        QTest::keyClick(m_panel.window().focusWidget(), Qt::Key_Escape);
        QCOMPARE(m("brisa.msg._")->getInt(0), 0);
        QVERIFY(QDir(robotDirectory()).exists("kept"));
        QVERIFY(m_panel.click("removeProject"));
        QVERIFY(QDir(robotDirectory()).exists("kept"));
        QVERIFY(m_panel.click("agree"));
        QVERIFY(m_panel.find<QWidget>("busy")); // before the panel blocks
        QVERIFY(QDir(robotDirectory()).exists("kept"));
        QTRY_VERIFY(m_panel.cell("projects", "kept").isNull());
        QVERIFY(!QDir(robotDirectory()).exists("kept"));
    }

    void otherProjectsWaitForTheProgram()
    {
        QCOMPARE(zepletInterface()->createProject("next", "", false), 0);
        QTRY_VERIFY(m_panel.tap("projects", "next"));
        startProgram();
        QVERIFY(m_panel.click("openProject"));
        QVERIFY(m_panel.notice().contains("running"));
        QVERIFY(!zepletInterface()->getCurProject().endsWith("next"));
        m_panel.simulator.control("program stop");
        QTRY_COMPARE(zepletInterface()->getRobotPhyStatus(), QString("idle"));
        QVERIFY(m_panel.click("openProject"));
        QTRY_COMPARE(zepletInterface()->getCurProject(), QString("SIM-0001/next"));
    }

    void signalsFollowTheController()
    {
        showSignals(0);
        QTRY_COMPARE(m_panel.cell("signals", "di.door[1]", 1), QString("On"));
        m_panel.simulator.control("signal set di.door[1] false");
        QTRY_COMPARE(m_panel.cell("signals", "di.door[1]", 1), QString("Off"));
        showSignals(5);
        m_panel.simulator.control("signal set ao_speed 7.25");
        QTRY_COMPARE(m_panel.cell("signals", "ao_speed", 1), QString("7.25"));
        showSignals(6);
        QTRY_COMPARE(m_panel.cell("registers", "R_PARTS", 1), QString("0,  500"));
        m_panel.simulator.control("register set R_PARTS 0 17");
        QTRY_COMPARE(m_panel.cell("registers", "R_PARTS", 1), QString("17,  500"));
    }

    void outputsAreSet()
    {
        showSignals(1);
        QTRY_COMPARE(m_panel.cell("signals", longName, 3), QString("Switch on"));
        QVERIFY(m_panel.tap("signals", longName, 3));
        QTRY_COMPARE(m_panel.cell("signals", longName, 1), QString("On"));
        QCOMPARE(m_panel.cell("signals", "do_motors", 3), QString(""));
        showSignals(5);
        QVERIFY(m_panel.tap("signals", "ao_speed", 3));
        auto *const value = m_panel.find<QLineEdit>("signalValue");
        value->setText("3,5");
        QVERIFY(!m_panel.click("accept"));
        value->setText("3.5");
        QVERIFY(m_panel.click("accept"));
        QTRY_COMPARE(m_panel.cell("signals", "ao_speed", 1), QString("3.5"));
    }

    void inputsAreSetWhileTheyAreSimulated()
    {
        showSignals(0);
        QTRY_COMPARE(m_panel.cell("signals", "di.door[1]", 3), QString(""));
        QVERIFY(m_panel.click("simulateInputs"));
        QCOMPARE(m_panel.simulator.count("io.io_signal.set_input_simu_mode"), 0);
        QVERIFY(m_panel.click("agree"));
        QTRY_VERIFY(!m_panel.cell("signals", "di.door[1]", 3).isEmpty());
        QCOMPARE(m_panel.cell("signals", "di_start", 3), QString(""));
        const QString before = m_panel.cell("signals", "di.door[1]", 1);
        QVERIFY(m_panel.tap("signals", "di.door[1]", 3));
        QTRY_VERIFY(m_panel.cell("signals", "di.door[1]", 1) != before);
        QVERIFY(m_panel.click("simulateInputs"));
        QTRY_COMPARE(m_panel.cell("signals", "di.door[1]", 3), QString(""));
    }

    void startWaitsForAPlugin()
    {
        QVERIFY(m_panel.show("zeplet.page-run"));
        m_panel.simulator.control("set power on");
        zepletInterface()->startRunningFilter(true);
        QTRY_VERIFY(m_panel.click("runStart"));
        QTRY_VERIFY(m_panel.find<QWidget>("cancelWaiting"));
        QTRY_VERIFY(!m_panel.find<QAbstractButton>("runStart")->isEnabled());
        QVERIFY(m_panel.click("cancelWaiting"));
        QTRY_VERIFY(!m_panel.find<QWidget>("cancelWaiting"));
        QCOMPARE(m_panel.simulator.count("rl_program.start"), 0);
        QTRY_VERIFY(m_panel.click("runStart"));
        QTRY_VERIFY(m_panel.find<QWidget>("cancelWaiting"));
        QVERIFY(zepletInterface()->startRunning());
        QTRY_COMPARE(zepletInterface()->getRobotPhyStatus(), QString("program"));
        QTRY_VERIFY(!m_panel.find<QWidget>("cancelWaiting"));
        zepletInterface()->startRunningFilter(false);
        QVERIFY(m_panel.click("runStop"));
        QTRY_COMPARE(zepletInterface()->getRobotPhyStatus(), QString("idle"));
    }

    void startNeedsTheMotors()
    {
        QVERIFY(m_panel.show("zeplet.page-run"));
        m_panel.simulator.control("set power off");
        QTRY_VERIFY(m_panel.find<QLabel>("startReason")->text().contains("motors are off"));
        QVERIFY(!m_panel.click("runStart"));
        QVERIFY(m_panel.click("switchPower"));
        QTRY_VERIFY(zepletInterface()->getRobotEleStatus());
        QTRY_VERIFY(m_panel.find<QAbstractButton>("runStart")->isEnabled());
    }

    void looks_data()
    {
        QTest::addColumn<QString>("page");
        QTest::addColumn<QString>("state");
        QTest::addColumn<QString>("theme");
        const QList<QPair<QString, QString>> states {
            {"projects", "list"},     {"projects", "form"},     {"projects", "refusal"},
            {"projects", "confirm"},  {"projects", "offline"},  {"signals", "inputs"},
            {"signals", "simulated"}, {"signals", "outputs"},   {"signals", "analogue"},
            {"signals", "empty"},     {"signals", "registers"}, {"signals", "offline"},
            {"projects", "narrow"},   {"signals", "narrow"},    {"run", "narrow"},
            {"run", "idle"},          {"run", "running"},       {"run", "waiting"},
            {"run", "offline"}};
        for (const auto &[page, state] : states) {
            for (const char *theme : {"light", "dark"})
                QTest::addRow("%s-%s-%s", qPrintable(page), qPrintable(state), theme)
                    << page << state << theme;
        }
    }

    void looks()
    {
        QFETCH(QString, page);
        QFETCH(QString, state);
        QFETCH(QString, theme);
        QVERIFY(m_panel.show("zeplet.page-" + page));
        enter(state);
        QCOMPARE(m_panel.looks(theme), QString());
    }

    void cleanup()
    {
        m_guest.reset();
        m_panel.click("cancel");
        m_panel.click("cancelWaiting");
        m_panel.simulator.control("simulation off");
        m_panel.simulator.control("program stop");
        if (!PageFixture::isConnected()) {
            m_panel.simulator.control("fault clear");
            QTRY_VERIFY(PageFixture::isConnected());
        }
        QTRY_VERIFY(zepletInterface()->getRobotPhyStatus() != "program");
        zepletInterface()->startRunningFilter(false);
    }

    // An overlay that is still open goes with the panel.
    void cleanupTestCase()
    {
        QVERIFY(m_panel.show("zeplet.page-projects"));
        QVERIFY(m_panel.click("newProject"));
        QVERIFY(m_panel.session->finish());
        QCOMPARE(m("brisa.msg._")->getInt(0), 0);
    }

private:
    QString robotDirectory() const { return m_panel.workspace() + "/SIM-0001"; }

    void openForm(const QString &name)
    {
        QVERIFY(m_panel.click("newProject"));
        m_panel.find<QLineEdit>("projectName")->setText(name);
    }

    void create(const QString &name, const QString &description)
    {
        openForm(name);
        m_panel.find<QLineEdit>("projectDescription")->setText(description);
        QVERIFY(m_panel.click("accept"));
    }

    void showSignals(int tab)
    {
        QVERIFY(m_panel.show("zeplet.page-signals"));
        m_panel.find<QTabBar>("signalTypes")->setCurrentIndex(tab);
    }

    void startProgram()
    {
        m_panel.simulator.control("set power on");
        m_panel.simulator.control("program start");
        QTRY_COMPARE(zepletInterface()->getRobotPhyStatus(), QString("program"));
    }

    void enter(const QString &state)
    {
        static const QHash<QString, int> tabs {{"inputs", 0},   {"simulated", 0}, {"outputs", 1},
                                               {"analogue", 5}, {"empty", 3},     {"registers", 6}};
        if (tabs.contains(state))
            showSignals(tabs.value(state));
        if (state == "list" || state == "confirm")
            m_panel.tap("projects", "Zelle 7");
        if (state == "simulated")
            m_panel.simulator.control("simulation on");
        else if (state == "form")
            openForm("焊接/单元");
        else if (state == "refusal")
            create("_temp", QString());
        else if (state == "confirm")
            m_panel.click("removeProject");
        else if (state == "running")
            startProgram();
        else if (state == "waiting")
            waitForPlugin();
        else if (state == "offline")
            goOffline();
        else if (state == "narrow")
            openSideBar();
    }

    void waitForPlugin()
    {
        m_panel.simulator.control("set power on");
        zepletInterface()->startRunningFilter(true);
        QTRY_VERIFY(m_panel.click("runStart"));
        QTRY_VERIFY(m_panel.find<QWidget>("cancelWaiting"));
    }

    void openSideBar()
    {
        auto *const bar = m_panel.window().findChild<kest::ExpandSideBar *>();
        m_guest = std::make_unique<kest::BModule>();
        QVERIFY(bar->addPage(m_guest.get(), "guest", new QLabel("guest")));
        bar->show();
        qo::kivra::registerPhysicalButtons(m_guest.get(), "guest", {{"Key", {}, {}, {}}}, {},
                                           {instantiatedCenterWidget()->currentKey()});
        const QString page = instantiatedCenterWidget()->currentKey();
        QVERIFY(m_panel.show("panel.home") && m_panel.show(page));
    }

    void goOffline()
    {
        m_panel.simulator.control("fault controller_down");
        QTRY_VERIFY(!PageFixture::isConnected());
    }

    PageFixture m_panel {cell()};
    std::unique_ptr<kest::BModule> m_guest; ///< has the side bar and keys
};

int main(int argc, char *argv[])
{
    panel::PanelApplication application(argc, argv);
    TestPanelPages test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_panelpages.moc"
