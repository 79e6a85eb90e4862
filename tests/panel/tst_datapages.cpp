#include "pagefixture.h"
#include "panelapplication.h"

#include <QComboBox>
#include <QDir>
#include <QJsonArray>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTabBar>
#include <nexo/nexo.h>
#include <ostrel/moduleobject.h>
#include <zeplet/interface/interfacemanager.h>

using zeplet::zepletInterface;

namespace
{

QString disk()
{
    static const QTemporaryDir directory;
    return directory.path();
}

simulator::Scenario cell()
{
    QString error;
    auto scenario = simulator::Scenario::fromText(R"json({
        "robot": {"power": "on"},
        "joints": [15, -10, 10, 0, 90, 15],
        "tools": {"project": [{"name": "gripper", "pose": [0, 0, 140, 0, 0, 0]}]},
        "variables": [{"name": "count", "type": "int", "value": 3}],
        "hot_update": [{"operator": "add", "name": "refused*", "reply": 7},
                       {"operator": "edit", "name": "fixed*", "reply": 7},
                       {"operator": "remove", "name": "kept*", "reply": 7}]})json",
                                                  &error);
    if (!scenario)
        qFatal("%s", qPrintable(error));
    scenario->files = {disk(), 0};
    return *scenario;
}

const QString cjk = QStringLiteral("抓取位置 über dem Förderband, mit einem sehr langen Namen");

} // namespace

/** The pages of points and variables as a person uses them, with a controller that has a disk. */
class TestDataPages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_panel.reachDisk();
        QVERIFY(m_panel.start());
        QCOMPARE(zepletInterface()->createProject("cell", "", true), 0);
        QTRY_VERIFY(QDir(disk()).exists("hmi/cell"));
    }

    void init() { QVERIFY(m_panel.show("zeplet.page-points")); }

    void aPointIsTaught()
    {
        QVERIFY(m_panel.click("newPoint"));
        QVERIFY(!m_panel.click("accept")); // without a name
        m_panel.find<QLineEdit>("pointName")->setText(" P1 ");
        QVERIFY(m_panel.click("accept"));
        QVERIFY(m_panel.find<QWidget>("busy")); // before the panel blocks
        QTRY_COMPARE(m_panel.notice(), QString("\"P1\" is taught."));
        const QVector<double> pose = zepletInterface()->getPointDataByName("P1", "");
        QCOMPARE(pose.size(), 6);
        QVERIFY(pose.at(2) > 500);
        QVERIFY(onController("point.json").contains("\"P1\""));
        QVERIFY(m_panel.click("newPoint"));
        m_panel.find<QLineEdit>("pointName")->setText("p1");
        QVERIFY(m_panel.find<QLabel>("validation")->text().contains("already"));
        QVERIFY(!m_panel.click("accept"));
    }

    // What teaching a position must not take along: persistence, description, place in the list.
    void teachingKeepsAllElse()
    {
        QVERIFY(zepletInterface()->createPoint("persistent", false, true));
        QVERIFY(zepletInterface()->createPoint("last", false, false));
        teach("persistent");
        QTRY_COMPARE(m_panel.notice(), QString("\"persistent\" is taught."));
        const QJsonObject record = zepletInterface()->getPointObjDataByName("persistent");
        QCOMPARE(record["pers"].toString(), QString("true"));
        QCOMPARE(zepletInterface()->getPointNameList().last(), QString("last"));
        teach("persistent", 1);
        QTRY_COMPARE(m_panel.cell("points", "persistent", 1), QString("Joint"));
        QCOMPARE(zepletInterface()->getPointJointDataByName("persistent", "").value(0), 15.0);
    }

    void zerosAreNeverTaught()
    {
        QVERIFY(zepletInterface()->createPoint("empty", false, false));
        announceRefusal();
        m_panel.simulator.control("fault refusal project.rl_program.get_rob_pos");
        teach("empty");
        QTRY_VERIFY2(m_panel.notice().contains("did not tell where"), qPrintable(m_panel.notice()));
        QVERIFY(m_panel.notice().contains("nothing was taught"));
        QVERIFY(zepletInterface()->getPointDataByName("empty", "").isEmpty());
    }

    void whatWasNotSavedIsSavedAgain()
    {
        QVERIFY(zepletInterface()->createPoint("far", false, false));
        teach("far");
        m_panel.simulator.control("files down");
        QVERIFY(press("editPoint"));
        m_panel.find<QLineEdit>("value0")->setText("12,5");
        QVERIFY(!m_panel.click("accept"));
        m_panel.find<QLineEdit>("value0")->setText("612.5");
        QVERIFY(m_panel.click("accept"));
        QTRY_VERIFY2(m_panel.notice().contains("save again"), qPrintable(m_panel.notice()));
        QCOMPARE(zepletInterface()->getPointDataByName("far", "").value(0), 612.5);
        QVERIFY(!onController("point.json").contains("612.5"));
        m_panel.simulator.control("files up");
        QVERIFY(press("savePoints"));
        QTRY_VERIFY(m_panel.notice().contains("are saved"));
        QVERIFY(onController("point.json").contains("612.5"));
        QTRY_VERIFY(!m_panel.find<QWidget>("savePoints"));
    }

    void elements()
    {
        QVERIFY(zepletInterface()->createPoint("grid", false, false));
        teach("grid");
        QVERIFY(press("addElement"));
        m_panel.find<QLineEdit>("index0")->setText("0");
        QVERIFY(!m_panel.click("accept"));
        m_panel.find<QLineEdit>("index2")->setText("2");
        QVERIFY(m_panel.click("accept"));
        QTRY_COMPARE(m_panel.cell("points", "grid", 2), QString("2"));
        QCOMPARE(m_panel.find<QComboBox>("elements")->currentText(), QString("[0][0][2]"));
        QVERIFY(press("removeElement"));
        QCOMPARE(zepletInterface()->getPointValueIndexList("grid").size(), 2);
        QVERIFY(m_panel.click("agree"));
        QTRY_COMPARE(m_panel.cell("points", "grid", 2), QString("1"));
        QCOMPARE(zepletInterface()->getPointValueIndexList("grid"), QStringList("[0][0][0]"));
    }

    void deletionAsksTheControllerFirst()
    {
        for (const char *name : {"kept point", "spare point"})
            QVERIFY(zepletInterface()->createPoint(name, false, false));
        remove("kept point");
        QTRY_VERIFY2(m_panel.notice().contains("did not let go"), qPrintable(m_panel.notice()));
        QVERIFY(!m_panel.cell("points", "kept point").isNull());
        remove("spare point");
        QTRY_VERIFY(m_panel.cell("points", "spare point").isNull());
        QVERIFY(!onController("point.json").contains("spare point"));
    }

    void theRobotMovesAndStops()
    {
        teachAt("goal", "joints set 35 -20 20 0 90 15", "joints set 15 -10 10 0 90 15");
        m_panel.simulator.control("set power off");
        QTRY_VERIFY(reason().contains("motors are off"));
        QVERIFY(!m_panel.click("moveStart"));
        m_panel.simulator.control("set power on");
        m_panel.find<QComboBox>("moveSpeed")->setCurrentText("1000 mm/s");
        QVERIFY(press("moveStart"));
        QTRY_VERIFY(isMoving());
        QVERIFY(!m_panel.find<QAbstractButton>("teachPoint")->isEnabled());
        QTRY_COMPARE(m_panel.notice(), QString("The robot is at \"goal\"."));
        QCOMPARE(qRound(joints().at(0).toDouble()), 35);

        m_panel.simulator.control("joints set -60 -10 10 0 90 15");
        m_panel.find<QComboBox>("moveSpeed")->setCurrentText("50 mm/s");
        m_panel.find<QComboBox>("moveWay")->setCurrentIndex(1);
        QVERIFY(press("moveStart"));
        QTRY_VERIFY(isMoving());
        QVERIFY(m_panel.click("moveStop"));
        QTRY_VERIFY2(m_panel.notice().contains("was stopped"), qPrintable(m_panel.notice()));
        QVERIFY(joints().at(0).toDouble() < 0);

        QVERIFY(press("moveStart"));
        QTRY_VERIFY(isMoving());
        QVERIFY(m_panel.show("panel.home"));
        QTRY_VERIFY(!isMoving());
        QVERIFY(joints().at(0).toDouble() < 0);
    }

    void refusedMovesSayWhy()
    {
        QVERIFY(zepletInterface()->createPoint("moon", false, false));
        QVERIFY(zepletInterface()->setPointCartData("moon", {90000, 0, 0, 180, 0, 0}, ""));
        QTRY_VERIFY(m_panel.tap("points", "moon"));
        m_panel.find<QComboBox>("moveWay")->setCurrentIndex(0);
        announceRefusal();
        QVERIFY(press("moveStart"));
        QTRY_VERIFY2(m_panel.notice().contains("did not get to \"moon\": "),
                     qPrintable(m_panel.notice()));
        passHub();
        QVERIFY(m_panel.notice().contains("reach"));
        m_panel.find<QComboBox>("moveWay")->setCurrentIndex(1);
        QVERIFY(press("moveStart"));
        QTRY_VERIFY(m_panel.notice().contains("arm configuration"));
    }

    // The same numbers are another place with another tool.
    void anotherToolIsAskedFor()
    {
        QVERIFY(m_panel.click("newPoint"));
        m_panel.find<QLineEdit>("pointName")->setText("gripped");
        m_panel.find<QComboBox>("teachTool")->setCurrentText("gripper");
        QVERIFY(m_panel.click("accept"));
        QTRY_VERIFY(m_panel.notice().contains("taught"));
        const int moves = m_panel.simulator.count("move.move_to.l");
        m_panel.find<QComboBox>("moveWay")->setCurrentIndex(0);
        QVERIFY(press("moveStart"));
        QCOMPARE(zepletInterface()->getCurTool(), QString("tool0"));
        QVERIFY(m_panel.click("agree"));
        QTRY_COMPARE(m_panel.simulator.count("move.move_to.l"), moves + 1);
        QCOMPARE(zepletInterface()->getCurTool(), QString("gripper"));
        m("tavik.toolpage.tool")->set(nullptr, "tool0");
    }

    void variables_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("sentence");
        QTest::addColumn<QString>("shown"); // as its value; null: it is not there
        QTest::newRow("made") << "batch size"
                              << "is there"
                              << "17";
        QTest::newRow("refused") << "refused one"
                                 << "did not take" << QString();
        QTest::newRow("unsaved") << "unsaved"
                                 << "save again"
                                 << "17";
    }

    void variables()
    {
        QFETCH(QString, name);
        QFETCH(QString, sentence);
        QFETCH(QString, shown);
        QVERIFY(m_panel.show("zeplet.page-variables"));
        if (name == "unsaved")
            m_panel.simulator.control("files down");
        QVERIFY(m_panel.click("newVariable"));
        m_panel.find<QLineEdit>("variableName")->setText(name);
        m_panel.find<QLineEdit>("variableValue")->setText("1.5");
        QVERIFY(!m_panel.click("accept")); // a whole number
        m_panel.find<QLineEdit>("variableValue")->setText("17");
        QVERIFY(m_panel.click("accept"));
        QTRY_VERIFY2(m_panel.notice().contains(sentence), qPrintable(m_panel.notice()));
        QCOMPARE(m_panel.cell("variables", name, 2), shown);
        QTRY_COMPARE(m_panel.find<QWidget>("saveVariables") != nullptr, name == "unsaved");
        if (name != "unsaved")
            return;
        m_panel.simulator.control("files up");
        QVERIFY(press("saveVariables"));
        QTRY_VERIFY(!m_panel.find<QWidget>("saveVariables"));
        QVERIFY(onController("var.json").contains(name.toUtf8()));
    }

    void refusedChangesAreUndone()
    {
        QVERIFY(zepletInterface()->addVarData("fixed one", 1, false));
        QVERIFY(zepletInterface()->addVarData("kept one", true, false));
        QVERIFY(m_panel.show("zeplet.page-variables"));
        QVERIFY(m_panel.tap("variables", "fixed one"));
        QVERIFY(m_panel.click("changeVariable"));
        m_panel.find<QLineEdit>("variableValue")->setText("2");
        QVERIFY(m_panel.click("accept"));
        QTRY_VERIFY2(m_panel.notice().contains("has its old one"), qPrintable(m_panel.notice()));
        QCOMPARE(m_panel.cell("variables", "fixed one", 2), QString("1"));
        QVERIFY(m_panel.tap("variables", "kept one"));
        QVERIFY(press("deleteVariable"));
        QVERIFY(m_panel.click("agree"));
        QTRY_VERIFY2(m_panel.notice().contains("did not let go"), qPrintable(m_panel.notice()));
        QVERIFY(!m_panel.cell("variables", "kept one").isNull());
    }

    void liveValues()
    {
        QVERIFY(zepletInterface()->addVarData("count", 3, true));
        zepletInterface()->registPERSVars({"elsewhere"});
        QTRY_COMPARE(zepletInterface()->getRegistedPERSVars(), QVector<QVariant> {"elsewhere"});
        QVERIFY(m_panel.show("zeplet.page-variables"));
        QTRY_COMPARE(m_panel.cell("variables", "count", 4), QString("3"));
        m_panel.simulator.control("var set count 8");
        QTRY_COMPARE(m_panel.cell("variables", "count", 4), QString("8"));
        QVERIFY(m_panel.show("panel.home"));
        QTRY_COMPARE(zepletInterface()->getRegistedPERSVars(), QVector<QVariant> {"elsewhere"});
    }

    void looks_data()
    {
        QTest::addColumn<QString>("page");
        QTest::addColumn<QString>("state");
        QTest::addColumn<QString>("theme");
        const QList<QPair<QString, QString>> states {
            {"points", "chosen"},    {"points", "teaching"},   {"points", "values"},
            {"points", "joints"},    {"points", "index"},      {"points", "side"},
            {"points", "top"},       {"points", "refused"},    {"points", "long"},
            {"points", "offline"},   {"variables", "list"},    {"variables", "form"},
            {"variables", "delete"}, {"variables", "offline"}, {"points", "moving"},
            {"points", "empty"},     {"variables", "empty"}};
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
        fill();
        QVERIFY(m_panel.show("zeplet.page-" + page));
        enter(state);
        if (state != "moving")
            QCOMPARE(m_panel.looks(theme), QString());
        else
            lookWhileMoving(theme);
    }

    void cleanup()
    {
        m_panel.click("cancel");
        m_panel.simulator.control("move stop");
        m_panel.simulator.control("fault clear");
        QTRY_VERIFY(PageFixture::isConnected());
        QTRY_VERIFY(!isMoving());
        QTRY_VERIFY(!m_panel.find<QWidget>("busy"));
    }

    void cleanupTestCase() { QVERIFY(m_panel.session->finish()); }

private:
    QByteArray onController(const QString &file) const
    {
        QFile read(disk() + "/hmi/cell/" + file);
        return read.open(QIODevice::ReadOnly) ? read.readAll() : QByteArray();
    }

    static void announceRefusal()
    {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^(hub|controller): .* refused: "));
    }

    /** Until the hub has answered all that was sent before. */
    static void passHub()
    {
        const auto answered = std::make_shared<bool>(false);
        nexo()->set(nullptr, "test.mark", QJsonValue(1),
                    [answered](const QJsonValue &, const QString &) { *answered = true; });
        QTRY_VERIFY(*answered);
    }

    /** Clicks once, as soon as the button can be clicked. */
    bool press(const QString &name)
    {
        return QTest::qWaitFor([&] { return m_panel.click(name); });
    }

    QString reason() const { return m_panel.find<QLabel>("moveReason")->text(); }

    bool isMoving()
    {
        return zepletInterface()->getNexoData("motion.state").toString() == "moving";
    }

    QJsonArray joints() { return zepletInterface()->getNexoData("motion.joints").toArray(); }

    void teach(const QString &name, int kind = 0)
    {
        QTRY_VERIFY(m_panel.tap("points", name));
        QVERIFY(press("teachPoint"));
        m_panel.find<QComboBox>("teachKind")->setCurrentIndex(kind);
        QVERIFY(m_panel.click("accept"));
        QTRY_VERIFY(!m_panel.find<QWidget>("busy"));
    }

    void teachAt(const QString &name, const QString &there, const QString &back)
    {
        QVERIFY(zepletInterface()->createPoint(name, false, false));
        m_panel.simulator.control(there);
        teach(name);
        m_panel.simulator.control(back);
    }

    void remove(const QString &name)
    {
        QTRY_VERIFY(m_panel.tap("points", name));
        QVERIFY(press("deletePoint"));
        QVERIFY(m_panel.click("agree"));
    }

    /** Another project, with what a real one has. */
    void fill()
    {
        if (QDir(disk()).exists("hmi/looks"))
            return;
        m_panel.simulator.control("joints set 15 -10 10 0 90 15");
        QCOMPARE(zepletInterface()->createProject("looks", "", true), 0);
        QTRY_VERIFY(QDir(disk()).exists("hmi/looks"));
        const QVector<QPair<QString, QVector<double>>> points {
            {"pick", {620, -180, 220, 180, 0, 0}},
            {"above_pick", {620, -180, 480, 180, 0, 0}},
            {"place", {480, 420, 180, 180, 0, 0}},
            {"camera", {300, -520, 640, 180, 0, 45}},
            {cjk, {250, 600, 320, 180, 0, 0}}};
        zepletInterface()->createPoint("home", true, false);
        zepletInterface()->setPointJointData("home", {0, -10, 10, 0, 90, 0}, "");
        for (const auto &[name, pose] : points) {
            zepletInterface()->createPoint(name, false, name == "place");
            zepletInterface()->setPointCartData(name, pose, "");
        }
        zepletInterface()->addVarData("part_count", 12, true);
        zepletInterface()->addVarData("cycle_time", 8.4, true);
        zepletInterface()->addVarData("Name der Charge 批次名称", "A-17, zweite Schicht", true);
        zepletInterface()->addVarData("paused", false, false);
    }

    void enter(const QString &state)
    {
        static const QHash<QString, QString> rows {{"long", cjk}, {"joints", "home"}};
        if (!m_panel.tap("points", rows.value(state, "pick")))
            m_panel.tap("variables", "cycle_time");
        static const QHash<QString, QString> buttons {
            {"teaching", "newPoint"}, {"values", "editPoint"}, {"joints", "editPoint"},
            {"index", "addElement"},  {"form", "newVariable"}, {"delete", "deleteVariable"}};
        if (buttons.contains(state))
            QVERIFY(m_panel.click(buttons.value(state)));
        if (state == "side" || state == "top")
            m_panel.find<QTabBar>("armViews")->setCurrentIndex(state == "side" ? 1 : 2);
        else if (auto *const views = m_panel.find<QTabBar>("armViews"))
            views->setCurrentIndex(0);
        if (state == "teaching")
            m_panel.find<QLineEdit>("pointName")->setText("pick");
        if (state == "refused") {
            zepletInterface()->setPointCartData("camera", {90000, 0, 0, 180, 0, 0}, "");
            m_panel.tap("points", "camera");
            m_panel.find<QComboBox>("moveWay")->setCurrentIndex(0);
            announceRefusal();
            QVERIFY(press("moveStart"));
            QTRY_VERIFY(!m_panel.notice().isEmpty());
            passHub();
            zepletInterface()->setPointCartData("camera", {300, -520, 640, 180, 0, 45}, "");
        }
        if (state == "offline") {
            m_panel.simulator.control("fault controller_down");
            QTRY_VERIFY(!PageFixture::isConnected());
        }
        if (state == "empty") {
            zepletInterface()->createProject("nothing", "", false);
            QCOMPARE(zepletInterface()->changeProject("nothing"), 0);
            QTRY_VERIFY(m_panel.cell("points", "pick").isNull()
                        && m_panel.cell("variables", "cycle_time").isNull());
        }
    }

    void lookWhileMoving(const QString &theme)
    {
        brisa::ThemeManager::instance()->setTheme(theme);
        m_panel.find<QComboBox>("moveWay")->setCurrentIndex(0);
        QVERIFY(press("moveStart"));
        QTRY_VERIFY(isMoving());
        QTRY_VERIFY(m_panel.find<QAbstractButton>("moveStop")->property("role") == "danger");
        QTest::qWait(700);
        const QString pictures = qEnvironmentVariable("ZEPLET_PICTURES");
        if (!pictures.isEmpty())
            m_panel.window().grab().save(pictures + '/' + QTest::currentDataTag() + ".png");
        QCOMPARE(widgetchecks::faults(&m_panel.window()).join('\n'), QString());
    }

    PageFixture m_panel {cell()};
};

int main(int argc, char *argv[])
{
    panel::PanelApplication application(argc, argv);
    TestDataPages test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_datapages.moc"
