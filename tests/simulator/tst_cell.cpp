#include "testclient.h"
#include "testcolumns.h"

#include <QJsonArray>
#include <QTemporaryDir>
#include <QtTest>
#include <simulator/jsontext.h>
#include <simulator/simulator.h>

using simulator::Scenario;
using simulator::Simulator;

namespace
{
const char *const kScenario = R"({
"io": {"signals": [{"name": "di", "type": "DI"}, {"name": "do", "type": "DO"},
                   {"name": "gi", "type": "GI"}, {"name": "go", "type": "GO", "value": 3},
                   {"name": "ai", "type": "AI"}, {"name": "ao", "type": "AO", "value": 0.5},
                   {"name": "start", "type": "DI"}, {"name": "runs", "type": "DO"}],
       "system_inputs": [{"signal": "start", "function": "program_start"}],
       "system_outputs": [{"signal": "runs", "function": "program_running"}]},
"registers": [{"name": "R", "value": ["a", "b"]}],
"project": {"tasks": ["t1", "t2"]},
"system_variables": [{"name": "v7", "type": "speed", "value": 7}],
"variables": [{"name": "n", "value": 1}, {"name": "flag", "value": false},
              {"name": "text", "value": "x"}, {"name": "local", "pers": false}],
"hot_update": [{"name": "open*", "reply": 0}, {"operator": "remove", "reason": "locked"},
               {"operator": "edit", "type": "robtarget", "reply": 3}, {"name": "?\\d", "reply": -4}]
})";

Scenario scenario(const QByteArray &text)
{
    QString error;
    const auto read = Scenario::fromText(text, &error);
    if (!read)
        qFatal("%s", qPrintable(error));
    return *read;
}

struct Cell : Simulator {
    explicit Cell(Scenario values = scenario(kScenario), const QString &files = {})
        : Simulator((values.files = {files, 0}, values))
    {
        QString error;
        if (!start(0, 0, &error))
            qFatal("%s", qPrintable(error));
    }
    /** The result of a control line as text; "error: ..." where it fails. */
    QString ask(const QString &line)
    {
        const simulator::Reply reply = control(line);
        return reply.isDone() ? QString::fromUtf8(simulator::jsonToText(reply.result))
                              : "error: " + reply.reason;
    }

    QSignalSpy problems {this, &Simulator::problem};
};

/** Sends "METHOD JSON" or, at the hub, "hub KEY JSON"; the result as text, or "error: ...". */
QString request(Cell &cell, const QString &line)
{
    const bool atHub = line.startsWith("hub ");
    const QString command = line.section(' ', atHub ? 1 : 0, atHub ? 1 : 0);
    const QString text = line.section(' ', atHub ? 2 : 1);
    QString error;
    const QJsonValue value = text.isEmpty() ? QJsonValue(QJsonValue::Undefined)
                                            : *simulator::jsonFromText(text, &error);
    ConnectedClient client(atHub ? cell.hubPort() : cell.controllerPort());
    const QJsonObject answer = atHub
        ? client.call("hub.command", QJsonObject {{"key", command}, {"value", value}})
        : client.call(command, value);
    if (answer.contains("error"))
        return "error: " + answer["error"]["message"].toString();
    return QString::fromUtf8(simulator::jsonToText(answer["result"]));
}

/** The values that came on a notify path. */
QJsonArray notified(const TestClient &client, const QString &path)
{
    QJsonArray values;
    for (const QJsonObject &notification : client.notifications) {
        if (notification["params"]["path"] == path)
            values += notification["params"]["value"];
    }
    return values;
}
} // namespace

/** What surrounds the robot: IO, registers, projects, variables and what its program does. */
class TestCell : public QObject
{
    Q_OBJECT

private slots:
    void requests_data()
    {
        // `part` is in the answer; "=..." is all of it. `line` is asked afterwards, for `then`.
        const auto row = testcolumns<QStringList, QString, QString, QString, QString>(
            "before", "sends", "part", "line", "then");
        const auto set = [](const char *values) {
            return QString("io.io_signal.set_signal_value {\"signal_value\": %1}").arg(values);
        };
        const QString get = "signal get";
        const QString all = R"({"ai":0,"ao":0.5,"di":false,"do":false,"gi":0,"go":3,)"
                            R"("runs":false,"start":false})";
        row("values", {}, "io.io_signal.get_signal_value {\"signal_value\": {}}",
            "={\"signal_value\":" + all + "}", get, all);
        row("outputs", {}, set(R"({"do": true, "go": 5, "ao": -1.5})"), "=true", get,
            QString(all)
                .replace("\"do\":false", "\"do\":true")
                .replace(":3", ":5")
                .replace("0.5", "-1.5"));
        row("input", {}, set(R"({"di": true})"), "'di' is not simulated", get, all);
        row("simulated", {"simulation on"}, set(R"({"di": true})"), "=true", "signal get di",
            "true");
        row("group input", {}, set(R"({"gi": 1})"), "'gi' is not simulated", get, all);
        row("system input", {"simulation on"}, set(R"({"start": true})"), "belongs to the system",
            get, all);
        row("system output", {}, set(R"({"runs": true})"), "belongs to the system", get, all);
        row("one of two is wrong", {}, set(R"({"do": true, "none": true})"), "no signal 'none'",
            get, all);
        row("kind", {}, set(R"({"do": 1})"), "fit the signal 'do' (DO)", get, all);
        row("truth value for a group", {}, set(R"({"go": true})"), "=true", "signal get go", "1");
        row("fraction", {}, set(R"({"go": 1.5})"), "fit the signal 'go'", get, all);
        row("negative group", {}, set(R"({"go": -1})"), "fit the signal 'go'", get, all);
        row("no object", {}, set("[]"), "has to be an object", get, all);
        row("simulation, wrong", {}, "io.io_signal.set_input_simu_mode {\"on\": 1}", "'on'", get,
            all);
        row("field sets inputs", {"signal set di true"}, "io.get",
            R"("signals":[{"label":"","name":"di","signal_type":1})", "signal get di", "true");
        row("register", {"register set R 1 two words"}, "register.get",
            R"(=[{"name":"R","value":["a","two words"]}])", "register set R 2 x",
            "error: the register 'R' has no index 2");

        const QString overview = "project get";
        const QString closed
            = R"({"autoload_prj_path":"","cur_func":"","cur_task":"","projects":[],)"
              R"("tasks":["t1","t2"]})";
        row("open", {}, R"(project.overview.open {"name": "A B"})", "=true", overview,
            R"({"autoload_prj_path":"","cur_func":"main","cur_task":"t1","projects":["A B"],)"
            R"("tasks":["t1","t2"]})");
        for (const char *name : {"..", ".", "", "a/b", "a\\u0000", "a\\n"})
            row(qPrintable(QString("open '%1'").arg(name)), {},
                QString(R"(project.overview.open {"name": "%1"})").arg(name),
                "no name of a project", overview, closed);
        row("too long", {},
            QString(R"(project.overview.open {"name": "%1"})").arg(QString(128, QChar(0xe4))),
            "no name of a project", overview, closed);
        row("open while running", {"set power on", "program start"},
            R"(project.overview.open {"name": "A"})", "while a program runs", overview, closed);
        row("autoload", {}, R"(project.overview.set_autoload {"autoload_prj_path": "../x"})",
            "no name of a project", overview, closed);
        row("autoload cleared", {"project autoload A/t"},
            R"(project.overview.set_autoload {"autoload_prj_path": ""})", "=true", overview,
            closed);
        row("remove task", {"project open A"}, R"(hub project.remove_task {"name": "A"})", "=0",
            overview, closed);
        row("remove unknown task", {}, R"(hub project.remove_task {"name": "B"})", "=0", overview,
            closed);
        row("remove path", {}, R"(hub project.remove_task {"name": "../A"})", "no name", overview,
            closed);
        row("frames", {"frame set tool project torch 1 2 3 0 0 0"}, "project.frames.get",
            R"("var_system_list":[{"name":"v7","type":"speed","value":7}])", overview, closed);

        row("modify", {}, R"(hub monitor.pers.modify {"n": 2, "text": "y"})", "=true",
            "hub get monitor", "null");
        row("modify by text", {}, R"(hub monitor.pers.modify {"n": "2.5", "flag": "true"})",
            "=true", "var get flag",
            R"({"name":"flag","pers":true,"record":{},"type":"double","value":true})");
        row("modify a local one", {}, R"(hub monitor.pers.modify {"local": 2})",
            "no persistent variable 'local'", "hub get monitor", "null");
        row("all or nothing", {}, R"(hub monitor.pers.modify {"n": 2, "flag": "maybe"})",
            "not fit the variable 'flag'", "var get n",
            R"({"name":"n","pers":true,"record":{},"type":"double","value":1})");
        row("read", {"var set n 0.1"}, R"(hub monitor.pers.read ["text", "none", "n", "flag"])",
            R"(={"data":["x","","0.1","false"]})", "hub get monitor", "null");
        row("read, wrong", {}, R"(hub monitor.pers.read [1])", "array of names", "hub get monitor",
            "null");
        row("no monitor", {"set version 3.3.1"}, R"(hub monitor.pers.read ["n"])",
            "unknown hub command", R"(hub set monitor.select ["n"])",
            "error: this version of the controller monitors no variables");

        const auto update = [](const char *operation, const char *entry) {
            return QString(R"(hub project.variable {"operator": "%1", "variables": [%2]})")
                .arg(operation, entry);
        };
        row("add a variable", {}, update("add", R"({"name": "v", "type": "int", "pers": true,
            "value": {"[0][0][0]": 4}})"),
            "=0", "hub get monitor", "null");
        row("rule's number", {}, update("edit", R"({"name": "p", "type": "robtarget"})"), "=3",
            "point get", "{}");
        row("rule's reason", {}, update("remove", R"({"name": "n"})"), "=error: locked",
            "point get", "{}");
        row("the first rule counts", {}, update("remove", R"({"name": "open1"})"), "=0",
            "point get", "{}");
        row("a pattern is no expression", {},
            update("add", R"({"name": "a1", "type": "robtarget"})"), "=0", "point get a1",
            R"({"name":"a1","type":"robtarget"})");
        row("nothing of a refused update", {}, update("add", R"({"name": "p", "type": "robtarget"},
            {"name": "x\\d", "type": "robtarget"})"),
            "=-4", "point get", "{}");
        row("operator", {}, update("jump", R"({"name": "p"})"), "has to be one of add", "point get",
            "{}");
        row("without a name", {}, update("add", "{}"), "objects with a name", "point get", "{}");
        row("refresh of an element", {R"(hub get x)"},
            update(
                "pers_point_refresh",
                R"({"name": "p", "type": "jointtarget", "s_d": "[0][1][0]", "[0][1][0]": {"a": 1}})"),
            "=0", "point get p",
            R"({"name":"p","type":"jointtarget","value":{"[0][1][0]":{"a":1}}})");
    }

    void requests()
    {
        QFETCH(QStringList, before);
        QFETCH(QString, sends);
        QFETCH(QString, part);
        QFETCH(QString, line);
        Cell cell;
        for (const QString &step : before)
            QVERIFY2(cell.control(step).isDone(), qPrintable(step));
        const QString answer = request(cell, sends);
        if (part.startsWith('='))
            QCOMPARE(answer, part.mid(1));
        QVERIFY2(part.startsWith('=') || (answer.contains(part)), qPrintable(answer));
        QTEST(cell.ask(line), "then");
        QCOMPARE(cell.problems.size(), 0);
    }

    void changesAreNotified_data()
    {
        const auto row
            = testcolumns<QStringList, QString, int, QString>("lines", "path", "count", "last");
        row("simulation", {"simulation on", "simulation on"}, "io.state", 1,
            "\"input_simu_mode\":true");
        row("registers", {"register set R 0 z", "register set R 0 z"}, "register.state", 1,
            "[\"z\",\"b\"]");
        row("project", {"project open A", "project open A"}, "project.overview", 1, "[\"A\"]");
        row("frames", {"frame set wobj global g 1 2 3 0 0 0"}, "project.frames", 1,
            "g_wobjs\":[{\"name\":\"g\"");
    }

    void changesAreNotified()
    {
        QFETCH(QStringList, lines);
        QFETCH(QString, path);
        QFETCH(int, count);
        QFETCH(QString, last);
        Cell cell;
        ConnectedClient client(cell.controllerPort());
        for (const QString &line : lines)
            QVERIFY2(cell.control(line).isDone(), qPrintable(line));
        client.call("io.get"); // what was sent before is there
        QCOMPARE(notified(client, path).size(), count);
        const QString value = simulator::jsonToText(notified(client, path).last());
        QVERIFY2(value.contains(last), qPrintable(value));
    }

    void fastSignalsAreCollected()
    {
        Cell cell;
        ConnectedClient client(cell.controllerPort());
        for (int i = 1; i <= 1000; ++i)
            QVERIFY(cell.control(QString("signal set ao %1").arg(i)).isDone());
        QVERIFY(cell.control("signal set do true").isDone());
        const auto values = [&client] { return notified(client, "io.signal_value"); };
        QTRY_COMPARE(values().last()["ao"], QJsonValue(1000));
        QCOMPARE(values().first(), QJsonValue(json(R"({"ao": 1})"))); // at once
        QCOMPARE(values().last()["do"], QJsonValue(true));
        QVERIFY2(values().size() <= 20, qPrintable(QString::number(values().size())));
    }

    void systemSignalsFollowTheRobot()
    {
        Cell cell;
        QCOMPARE(cell.ask("signal set start true"), "true"); // refused: motors are off
        QCOMPARE(cell.ask("signal get runs"), "false");
        QCOMPARE(cell.ask("set power on"), "true");
        QCOMPARE(cell.ask("signal set start false"), "true");
        QVERIFY(!cell.robot().values().program);
        QCOMPARE(cell.ask("signal set start true"), "true");
        QVERIFY(cell.robot().values().program);
        QCOMPARE(cell.ask("signal get runs"), "true");
        QCOMPARE(cell.ask("program stop"), "true");
        QCOMPARE(cell.ask("signal get runs"), "false");
    }

    void selectionIsReported()
    {
        Cell cell;
        const auto values = [&cell] { return cell.ask("hub get monitor.values"); };
        QCOMPARE(cell.ask(R"(hub set monitor.select ["n", "local", "later"])"), "true");
        QCOMPARE(cell.ask("hub get monitor.pers"), R"(["n","local","later"])");
        QCOMPARE(values(), R"({"n":"1"})"); // only what is persistent
        QCOMPARE(cell.ask("var set n 2"), "true");
        QCOMPARE(values(), R"({"n":"2"})");
        request(cell, R"(hub project.variable {"operator": "add", "variables": [
            {"name": "later", "type": "QString", "pers": true, "value": {"[0][0][0]": "t"}}]})");
        QCOMPARE(values(), R"({"later":"t","n":"2"})");
        QCOMPARE(cell.ask("hub set monitor.select 3"),
                 "error: 'monitor.select' takes an array of names");
        QCOMPARE(cell.ask("hub set monitor.select null"), "true");
        QCOMPARE(cell.ask("hub get monitor.pers") + values(), "[]{}");
    }

    void variablesOfAProject()
    {
        QTemporaryDir directory;
        Cell cell(scenario(kScenario), directory.path());
        QCOMPARE(cell.ask("project open P 1"), "true");
        const QString path = directory.filePath("hmi/P 1/var.json");
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly)); // the directory is there for a first save
        file.write(R"({"version": "0.2", "variables": [
            {"name": "mine", "type": "int", "pers": true, "value": {"[0][0][0]": 8}}]})");
        file.close();
        QCOMPARE(cell.ask("project open P 1"), "true");
        QCOMPARE(request(cell, R"(hub monitor.pers.read ["mine", "n"])"), R"({"data":["8","1"]})");

        QVERIFY(cell.control("set power on").isDone() && cell.control("program start").isDone());
        QCOMPARE(cell.ask("var set mine 9"), "true"); // stays when the panel says it again
        QCOMPARE(request(cell, R"(project.overview.open {"name": "P 1"})"), "true");
        QCOMPARE(request(cell, R"(hub monitor.pers.read ["mine"])"), R"({"data":["9"]})");
        QVERIFY(cell.control("program stop").isDone());

        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("{\"variables\": [");
        file.close();
        QCOMPARE(cell.ask("project open P 1"), "true");
        QCOMPARE(cell.problems.size(), 1);
        QVERIFY(cell.problems[0][0].toString().contains(path));
        QCOMPARE(cell.ask("var get mine"), "null");
    }

    void autoloadProjectIsOpened()
    {
        QTemporaryDir directory;
        Cell cell(scenario(R"({"project": {"autoload": "AUTO/t"}})"), directory.path());
        QCOMPARE(cell.projects().current(), "AUTO");
        QVERIFY(QFileInfo(directory.filePath("hmi/AUTO")).isDir());
    }

    void program()
    {
        Cell cell(scenario(R"({"variables": [{"name": "n", "value": 0}],
            "io": {"signals": [{"name": "do", "type": "DO"}]},
            "program": {"every": 10, "do": ["var set n 1", "signal set do true", "var set n 2",
                                            "var set none 3", "var set n 4"]}})"));
        QVERIFY(cell.control("set power on").isDone() && cell.control("program start").isDone());
        QTRY_COMPARE(cell.problems.size(), 1); // a line that fails ends it
        QVERIFY(cell.problems[0][0].toString().startsWith("program: var set none 3: there is no"));
        QVERIFY(!cell.robot().values().program);
        QVERIFY(cell.ask("var get n").contains("\"value\":2"));
        QCOMPARE(cell.ask("signal get do"), "true");

        QSignalSpy changes(&cell.variables(), &simulator::Variables::changed);
        QVERIFY(cell.control("program start").isDone()); // from its first line again
        QTRY_VERIFY(!changes.isEmpty());
        QVERIFY(cell.ask("var get n").contains("\"value\":1"));
        QVERIFY(cell.control("program stop").isDone());
    }

    void programMoves()
    {
        Cell cell(scenario(R"({"robot": {"power": "on"}, "variables": [{"name": "n", "value": 0}],
            "program": {"every": 10, "do": ["joints move 0.3 0 10 -10 0 80 0", "var set n 1",
                                            "joints move 0.01 40 10 -10 0 80 0"]}})"));
        QVERIFY(cell.control("joints set 0 0 0 0 90 0").isDone());
        QVERIFY(cell.control("program start").isDone());
        QString arrived; // when the next line comes
        connect(&cell.variables(), &simulator::Variables::changed, this,
                [&] { arrived = cell.ask("joints get"); });
        QTRY_COMPARE(arrived, "[0,10,-10,0,80,0]");
        QTRY_VERIFY(cell.motion().isMoving());
        QVERIFY(cell.control("program stop").isDone());
        QTRY_VERIFY(!cell.motion().isMoving());
        QVERIFY(cell.motion().joints().first() < 40);
        QVERIFY(cell.ask("joints move 1 0 0 500 0 0 0").startsWith("error: "));
        QCOMPARE(cell.problems.size(), 0);
    }
};

QTEST_GUILESS_MAIN(TestCell)
#include "tst_cell.moc"
