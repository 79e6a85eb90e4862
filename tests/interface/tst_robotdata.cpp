#include "fakecontroller.h"
#include "logcapture.h"
#include "testcolumns.h"

#include <zeplet/interface/interfacemanager.h>

#include <QSignalSpy>
#include <limits>

using namespace zeplet;

namespace
{

const QString readCommand = "io.io_signal.get_signal_value";
const QString writeCommand = "io.io_signal.set_signal_value";
const QString versionLine = "checkBrisaVersion err! current Brisa version : 3.3.1";

QJsonObject named(const QString &name, const QString &type = QString())
{
    return {{"name", name}, {"type", type}};
}

QJsonObject typed(int type)
{
    return {{"signal_type", type}};
}

void fill(const QString &key, const QJsonValue &json)
{
    m(key)->importFromJson(nullptr, json, true, true, false);
}

} // namespace

class TestRobotData : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_fake.setUp(true);
        m("brisa.r.version")->set(nullptr, "3.10");
    }

    void signalValues()
    {
        auto *manager = zepletInterface();
        const QJsonObject values {{"a.b", true}, {"#0", false}, {"number", 1}, {"text", "true"}};
        m_fake.controller.answer(readCommand, QJsonObject {{"signal_value", values}});
        QVERIFY(manager->getIOValue("a.b"));
        for (const char *name : {"#0", "number", "text"})
            QVERIFY(!manager->getIOValue(name));
        QCOMPARE(manager->getIOHash(), values.toVariantHash());
        QCOMPARE(m_fake.controller.last(readCommand).params,
                 QJsonValue(QJsonObject {{"signal_value", QJsonObject()}}));

        LogCapture log;
        QVERIFY(!manager->getIOValue("a"));
        QCOMPARE(log.take(), QStringList("I|io signal [%1] is not exist!"));
        m_fake.controller.answer(readCommand, QJsonObject());
        QVERIFY(!manager->getIOValue("a.b") && manager->getIOHash().isEmpty());
        QCOMPARE(log.take(), QStringList({"E|get io signal error!", "E|get io signal error!"}));
        m_fake.controller.refuse(readCommand, "no");
        QVERIFY(!manager->getIOValue("a.b"));
        QVERIFY(log.ofLevel("E").contains("get io signal error!"));
        m_fake.setControllerUp(false);
        log.take();
        QVERIFY(!manager->getIOValue("a.b") && manager->getIOHash().isEmpty());
        QCOMPARE(log.take(), QStringList({"E|net work error!", "E|net work error!"}));
    }

    void signalsByType()
    {
        QJsonObject catalogue;
        for (int type = 1; type <= 6; ++type)
            catalogue.insert(QString("s.%1").arg(type), typed(type));
        catalogue.insert("#1", typed(1));
        catalogue.insert("untyped", named("untyped"));
        fill("tavik.robot.io.signal_detail", catalogue);
        auto *manager = zepletInterface();
        QCOMPARE(manager->getIOByType("DI"), QStringList({"#1", "s.1"}));
        for (const char *name : {"DO", "GI", "GO", "AI", "AO"})
            QCOMPARE(manager->getIOByType(name).size(), 1);
        QCOMPARE(manager->getIOByType("AO"), manager->getIOByType(6));
        LogCapture log;
        QVERIFY(manager->getIOByType(0).isEmpty() && manager->getIOByType(7).isEmpty()
                && manager->getIOByType("di").isEmpty());
        QCOMPARE(log.take(),
                 QStringList(QVector<QString>(3, "E|Get IO By Err Signaltype!").toList()));
    }

    void writes_data()
    {
        const auto row = testcolumns<QString, QString, QVariant, QString>("name", "type",
                                                                          "simulated", "refusal");
        const QString system = "System IO cannot be simulated.";
        const QString simulation = "DI Signal can only be changed in simulation mode.";
        row("output", "x.1", "DO", false, "");
        row("output that is a system input", "in.1", "DO", true, system);
        row("input that is a system output", "out.1", "DI", true, system);
        row("part of a system name", "in", "DO", false, "");
        row("input", "x.1", "DI", false, simulation);
        row("input, mode unknown", "x.1", "DI", QVariant(), simulation);
        row("simulated input", "x.1", "DI", true, "");
        row("group of a system name", "in.1", "GO", false, "");
        row("unknown type", "in.1", "di", false, "");
    }

    void writes()
    {
        QFETCH(QString, name);
        QFETCH(QString, type);
        QFETCH(QVariant, simulated);
        QFETCH(QString, refusal);
        fill("tavik.robot.sysytem_io",
             QJsonObject {{"input_system_io", QJsonArray {QJsonObject {{"signal", "in.1"}}}},
                          {"output_system_io", QJsonArray {QJsonObject {{"signal", "out.1"}}}}});
        m("tavik.robot.io.input_simu_mode")->set(nullptr, simulated);
        m_fake.controller.answer(writeCommand, true);
        const int before = m_fake.controller.received(writeCommand);
        QSignalSpy banners(brisa::ManagerHelper::instance(), &brisa::ManagerHelper::logThrown);
        LogCapture log; // this process has no module of the panel's own plugin
        QCOMPARE(zepletInterface()->setIOValue(name, type, true), 0);
        zepletInterface()->rcExecRequest("io", "barrier", {}); // what was sent has arrived
        QCOMPARE(m_fake.controller.received(writeCommand) - before, refusal.isEmpty() ? 1 : 0);
        QCOMPARE(banners.size(), refusal.isEmpty() ? 0 : 1);
        if (refusal.isEmpty())
            QCOMPARE(m_fake.controller.last(writeCommand).params,
                     QJsonValue(QJsonObject {{"signal_value", QJsonObject {{name, true}}}}));
        else
            QCOMPARE(banners.at(0).mid(1), QVariantList({"error", refusal}));
    }

    void registers()
    {
        auto *manager = zepletInterface();
        QVERIFY(manager->getRegisterHash().isEmpty());
        const QJsonArray list {QJsonObject {{"name", "a"}, {"value", QJsonArray {"1", "2"}}},
                               QJsonObject {{"name", "only"}},
                               QJsonObject {{"value", QJsonArray {"3"}}},
                               7,
                               QJsonObject {{"name", "b"}, {"value", QJsonArray()}},
                               QJsonObject {{"name", "a"}, {"value", QJsonArray {"4"}}}};
        fill("tavik.robot.register._list", list);
        QCOMPARE(manager->getRegisterValue(), QJsonValue(list));
        QCOMPARE(manager->getRegisterHash(),
                 (QHash<QString, QStringList> {{"a", {"4"}}, {"b", {}}}));
    }

    void framesAndMotionData()
    {
        auto *manager = zepletInterface();
        QCOMPARE(manager->getCurTool() + manager->getCurWobj(), QString("tool0wobj0"));
        m("tavik.toolpage.tool")->set(nullptr, "");
        m("tavik.toolpage.wobj")->set(nullptr, "g_wobj_1");
        QCOMPARE(manager->getCurTool() + manager->getCurWobj(), QString("g_wobj_1"));

        fill("tavik.project.tool._list", QJsonArray {named("t2"), named(""), named("t1")});
        fill("tavik.project.tool.system_list", QJsonArray {named("tool0")});
        fill("tavik.setting.g_tool.g_tools", QJsonArray {named("t1")});
        QCOMPARE(manager->getToolList(), QStringList({"tool0", "t2", "", "t1", "t1"}));
        fill("tavik.project.wobj._list", QJsonArray {named("w1")});
        fill("tavik.project.wobj.system_list", QJsonArray {named("wobj0")});
        fill("tavik.setting.g_wobj.g_wobjs", QJsonArray {named("g_wobj_1")});
        QCOMPARE(manager->getWobjList(), QStringList({"wobj0", "w1", "g_wobj_1"}));

        fill("tavik.project.var._list",
             QJsonArray {named("v1", "speed"), named("V", "Speed"), named("z1", "zone")});
        fill("tavik.project.var.system_list",
             QJsonArray {named("fine", "zone"), named("v5", "speed"), named("i", "int")});
        QCOMPARE(manager->getSpeedList(), QStringList({"v5", "v1"}));
        QCOMPARE(manager->getZoneList(), QStringList({"fine", "z1"}));
    }

    void otherVersionsHaveNoPersistentVariables()
    {
        auto *manager = zepletInterface();
        const auto ask = [&](int code, int answered) {
            const auto got = manager->getValuesOfPERSVars({"a", "b"});
            return manager->registPERSVars({"a"}) == code
                && manager->setValuesOfPERSVars({"a"}, {1}) == code && got.size() == 2
                && manager->getRegistedPERSVars().size() == answered;
        };
        m_fake.hub.answer("hub.command", QJsonValue());
        LogCapture log;
        m("brisa.r.version")->set(nullptr, "3.3.1");
        const int before = m_fake.hub.requests().size();
        QVERIFY(ask(-240, 0));
        QCOMPARE(manager->setValuesOfPERSVars({"a", "b"}, {1}), -240);
        QCOMPARE(log.ofLevel("S"), QStringList(QVector<QString>(5, versionLine).toList()));
        QCOMPARE(m_fake.hub.requests().size(), before);
        for (const char *version : {"2.3", "3.0.1", "3.10", "3.2"}) {
            m("brisa.r.version")->set(nullptr, version);
            QVERIFY(ask(0, 0));
        }
    }

    void persistentVariablesOnTheWire()
    {
        auto *manager = zepletInterface();
        LogCapture log;
        const auto sent = [this](const char *method) -> QString {
            const QJsonObject params = m_fake.hub.last(method).params.toObject();
            return params["key"].toString() + ' '
                + QJsonDocument(QJsonArray {params["value"]}).toJson(QJsonDocument::Compact);
        };
        m_fake.hub.answer("hub.command", QJsonObject {{"data", QJsonArray {"1", 2.5, "3"}}});
        QCOMPARE(manager->getValuesOfPERSVars({"a.b", "#1"}), QVector<QString>({"1", "2.5"}));
        QCOMPARE(sent("hub.command"), QString(R"(monitor.pers.read [["a.b","#1"]])"));
        QCOMPARE(manager->getValuesOfPERSVars({"a", "b", "c", "d"}),
                 QVector<QString>({"1", "2.5", "3", ""}));
        QCOMPARE(log.ofLevel("S"), QStringList({"Results:1, 2.5", "Results:1, 2.5, 3, "}));

        QCOMPARE(manager->registPERSVars({"a.b", "#1"}), 0);
        QTRY_COMPARE(sent("hub.set"), QString(R"(monitor.select [["a.b","#1"]])"));
        QCOMPARE(manager->registPERSVars({}), 0);
        QTRY_COMPARE(sent("hub.set"), QString("monitor.select [null]"));

        QCOMPARE(manager->setValuesOfPERSVars({"a.b", "#1"}, {1.5, "x"}), 0);
        const QString modified = R"(monitor.pers.modify [{"#1":"x","a.b":1.5}])";
        QTRY_COMPARE(sent("hub.command"), modified);
        const double nan = std::numeric_limits<double>::quiet_NaN();
        QCOMPARE(manager->setValuesOfPERSVars({"a", "b"}, {1}), -1);
        QCOMPARE(manager->setValuesOfPERSVars({"a", "b"}, {1, QVariantList {nan}}), -1);
        QCOMPARE(log.ofLevel("E"), QStringList("setValuesOfPERSVars: value is not finite, name=b"));
        manager->registPERSVars({"last"});
        QTRY_COMPARE(sent("hub.set"), QString(R"(monitor.select [["last"]])"));
        QCOMPARE(sent("hub.command"), modified);
    }

    void registeredNamesComeFromTheHub()
    {
        auto *manager = zepletInterface();
        for (const QJsonValue &held :
             {QJsonValue(QJsonArray {"b", "a"}), QJsonValue("text"), QJsonValue(QJsonArray())}) {
            m_fake.hub.notify("hub.changed",
                              QJsonObject {{"key", "monitor.pers"}, {"value", held}});
            const QVector<QVariant> names = held.toArray().toVariantList().toVector();
            QTRY_COMPARE(nexo()->get(nullptr, "monitor.pers")->exportToJson(), held);
            QCOMPARE(manager->getRegistedPERSVars(), names);
        }
    }

private:
    FakeController m_fake;
};

QTEST_MAIN(TestRobotData)
#include "tst_robotdata.moc"
