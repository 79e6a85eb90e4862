#include "robotpeer.h"

using ostrel::ModuleObject;

namespace
{

const char *const io
    = R"({"signals": [{"name": "zeta", "signal_type": 2, "label": "last first"},)"
      R"({"name": "a.b", "signal_type": 1, "label": ""}, {"name": "#0", "signal_type": 6, "label": "x"},)"
      R"({"name": "[0]", "signal_type": 1, "label": ""}],)"
      R"("input_system_io": [{"signal": "a.b", "function": "motors_on"}], "output_system_io": [],)"
      R"("input_simu_mode": true})";
const char *const frames
    = R"({"tool": {"system_list": [{"name": "tool0"}], "_list": [{"name": "t1"}]},)"
      R"("wobj": {"system_list": [{"name": "wobj0"}], "_list": []}, "g_tools": [{"name": "g_tool_1"}],)"
      R"("g_wobjs": [], "var_system_list": [{"name": "v100", "type": "speed", "value": 100}]})";
const char *const overview = R"({"autoload_prj_path": "p/x", "cur_task": "t", "cur_func": "f",)"
                             R"("projects": [], "tasks": ["t"]})";

QJsonValue json(const QByteArray &text)
{
    ModuleObject node;
    node.fromJsonText(nullptr, text);
    return node.exportToJson();
}

QByteArray text(const QString &key)
{
    return m(key)->toJsonText(false);
}

} // namespace

class TestListMirrors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_peer = std::make_unique<RobotPeer>();
        m_peer->controller.answer("io.get", json(io));
        m_peer->controller.answer("project.frames.get", json(frames));
        m_peer->controller.answer("project.overview.get", json(overview));
        m_peer->controller.answer("register.get", json(R"([{"name": "r", "value": ["1", "2"]}])"));
        m_peer->controller.answer("io.io_signal.get_signal_value",
                                  json(R"({"signal_value": {"zeta": true, "a.b": 2.5}})"));
        m_peer->setUp(true);
        QTRY_COMPARE(m("tavik.project.cur_task")->getStr(""), QString("t"));
    }

    void cleanup() { m_peer.reset(); }

    void everythingIsAskedFor()
    {
        const QStringList order {"zeta", "a.b", "#0", "[0]"}; // the controller's
        QCOMPARE(m("tavik.robot.io.signal_detail")->childNames(), order);
        const std::pair<const char *, const char *> rows[] = {
            {"tavik.robot.io.signal_detail.zeta", R"({"label":"last first","signal_type":2})"},
            {"tavik.robot.sysytem_io.input_system_io",
             R"([{"function":"motors_on","signal":"a.b"}])"},
            {"tavik.robot.sysytem_io.output_system_io", "[]"},
            {"tavik.robot.io.input_simu_mode", "true"},
            {"tavik.robot.io.values", R"({"a.b":2.5,"zeta":true})"},
            {"tavik.robot.register._list", R"([{"name":"r","value":["1","2"]}])"},
            {"tavik.project.tool.system_list", R"([{"name":"tool0"}])"},
            {"tavik.project.tool._list", R"([{"name":"t1"}])"},
            {"tavik.project.wobj.system_list", R"([{"name":"wobj0"}])"},
            {"tavik.setting.g_tool.g_tools", R"([{"name":"g_tool_1"}])"},
            {"tavik.project.var.system_list", R"([{"name":"v100","type":"speed","value":100}])"},
            {"tavik.project.autoload_prj_path", R"("p/x")"},
            {"tavik.project.cur_func", R"("f")"},
            {"tavik.project.tasks", R"(["t"])"},
        };
        for (const auto &[key, content] : rows)
            QCOMPARE(text(key), QByteArray(content));
    }

    void onlyDifferencesAreSet()
    {
        QSignalSpy catalogue(m("tavik.robot.io.signal_detail"), &ModuleObject::changed);
        QSignalSpy mode(m("tavik.robot.io.input_simu_mode"), &ModuleObject::changed);
        QSignalSpy values(m("tavik.robot.io.values"), &ModuleObject::changed);
        m_peer->notify("io.state", json(io));
        m_peer->notify("io.signal_value", json(R"({"zeta": true})"));
        m_peer->notify("io.state", QJsonObject {{"input_simu_mode", false}});
        m_peer->notify("io.signal_value", json(R"({"a.b": 3, "new": false})"));
        m_peer->pass();
        QCOMPARE(catalogue.size(), 0);
        QCOMPARE(mode.size(), 1);
        QCOMPARE(values.size(), 1);
        QCOMPARE(text("tavik.robot.io.values"), QByteArray(R"({"a.b":3,"zeta":true,"new":false})"));
        // Another order is another catalogue.
        m_peer->notify("io.state",
                       json(R"({"signals": [{"name": "#0", "signal_type": 1},)"
                            R"({"name": "zeta", "signal_type": 2}]})"));
        m_peer->pass();
        QCOMPARE(m("tavik.robot.io.signal_detail")->childNames(), QStringList({"#0", "zeta"}));
    }

    void malformedContentLeavesTheLast()
    {
        const struct {
            const char *path, *key, *content;
        } rows[] = {
            {"io.state", "tavik.robot.io.signal_detail", R"({"signals": {"a": 1}})"},
            {"io.state", "tavik.robot.io.signal_detail",
             R"({"signals": [{"name": "a", "signal_type": 7}]})"},
            {"io.state", "tavik.robot.io.signal_detail",
             R"({"signals": [{"name": "a", "signal_type": 1}, {"name": "a", "signal_type": 1}]})"},
            {"io.state", "tavik.robot.io.input_simu_mode", R"({"input_simu_mode": "yes"})"},
            {"io.state", "tavik.robot.sysytem_io.input_system_io", R"({"input_system_io": ["a"]})"},
            {"io.signal_value", "tavik.robot.io.values", R"({"zeta": false, "a.b": "high"})"},
            {"register.state", "tavik.robot.register._list", R"([{"name": "r", "value": [1]}])"},
            {"register.state", "tavik.robot.register._list", R"({})"},
            {"project.frames", "tavik.project.tool._list", R"({"tool": {"_list": [{"id": 1}]}})"},
            {"project.frames", "tavik.project.var.system_list",
             R"({"var_system_list": [{"name": "v"}]})"},
            {"project.overview", "tavik.project.cur_task", R"({"cur_task": 5})"},
        };
        for (const auto &[path, key, content] : rows) {
            cleanup();
            init();
            const QByteArray before = text(key);
            m_peer->announce(QString("the controller says of %1 is malformed").arg(key));
            m_peer->notify(path, json(content));
            m_peer->notify(path, json(content)); // told once
            m_peer->pass();
            QCOMPARE(text(key), before);
        }
    }

    void reconnectAsksAgain()
    {
        m("tavik.project.cur_project")->set(nullptr, "R1/cell");
        m_peer->setControllerUp(false);
        m_peer->controller.answer("register.get", json(R"([{"name": "new", "value": []}])"));
        m_peer->setControllerUp(true);
        QTRY_COMPARE(m("tavik.robot.register._list")->getStr("#0.name", ""), QString("new"));
        QTRY_COMPARE(m_peer->controller.received("project.overview.get"), 2);
        QTRY_COMPARE(m_peer->controller.last("project.overview.open").params.toObject(),
                     (QJsonObject {{"name", "cell"}}));
    }

private:
    std::unique_ptr<RobotPeer> m_peer;
};

QTEST_GUILESS_MAIN(TestListMirrors)
#include "tst_listmirrors.moc"
