#include "testcolumns.h"

#include <QJsonArray>
#include <QTemporaryDir>
#include <QtTest>
#include <simulator/scenario.h>

using simulator::Scenario;

class TestScenario : public QObject
{
    Q_OBJECT

private slots:
    void everyMember()
    {
        QString error;
        const auto scenario = Scenario::fromText(R"({
        "robot": {"power": "on", "mode": "auto", "state": "program", "level": 7, "id": "R",
                  "version": "3.10.1", "robot": "SEVEN", "robot_template": 4},
        "hub": {"a": {"b": [1, null]}},
        "answers": {"controller": {"x.y": 1}, "hub": {"k": null}, "plugin": {"p": [2]}},
        "faults": [{"fault": "late_answer", "command": "x.y", "times": 2, "ms": 30},
                   {"fault": "wrong_answer", "answer": {"odd": true}},
                   {"fault": "hub_down", "ms": 50}],
        "timeline": [{"after": 5, "do": "set power off"},
                     {"every": 20, "do": ["program stop", "notify p 1"]}]
    })",
                                                 &error);
        QVERIFY2(scenario.has_value(), qPrintable(error));
        QVERIFY(scenario->robot.power && scenario->robot.automatic && scenario->robot.program);
        QCOMPARE(scenario->robot.level, 7);
        QCOMPARE(scenario->robot.id, QStringLiteral("R"));
        QCOMPARE(scenario->robot.version, QStringLiteral("3.10.1"));
        QCOMPARE(scenario->robot.robot, QStringLiteral("SEVEN"));
        QCOMPARE(scenario->robot.robotTemplate, 4);
        QCOMPARE(scenario->hub["a"]["b"], QJsonValue(QJsonArray {1, QJsonValue()}));
        QCOMPARE(scenario->answers.controller.value("x.y"), QJsonValue(1));
        QCOMPARE(scenario->answers.hub.value("k", 1), QJsonValue());
        QCOMPARE(scenario->answers.plugin.value("p"), QJsonValue(QJsonArray {2}));
        QCOMPARE(scenario->faults.size(), 3);
        QCOMPARE(scenario->faults[0].command, QStringLiteral("x.y"));
        QCOMPARE(scenario->faults[0].times, 2);
        QCOMPARE(scenario->faults[0].ms, 30);
        QCOMPARE(scenario->faults[1].answer, QJsonValue(QJsonObject {{"odd", true}}));
        QCOMPARE(scenario->faults[2].ms, 50);
        QCOMPARE(scenario->timeline[0].after, 5);
        QCOMPARE(scenario->timeline[0].every, 0);
        QCOMPARE(scenario->timeline[1].after, 20);
        QCOMPARE(scenario->timeline[1].lines.size(), 2);
    }

    void defaults()
    {
        const auto scenario
            = Scenario::fromText(R"({"faults": [{"fault": "late_answer"}]})", nullptr);
        QVERIFY(!scenario->robot.power && !scenario->robot.automatic && !scenario->robot.program);
        QCOMPARE(scenario->faults[0].ms, simulator::Faults::kDefaultDelay);
        QCOMPARE(scenario->faults[0].times, 0);
    }

    void errors_data()
    {
        const auto row = testcolumns<QByteArray, QString, QString>("text", "start", "part");
        row("broken text", "{\n  \"robot\": }", "line 2, column 1", "object");
        row("not an object", "[]", "expected an object", "array");
        row("unknown member below", R"({"robot": {"pwer": "on"}})",
            "robot.pwer: ", "unknown member");
        row("no such choice", R"({"robot": {"power": "ON"}})", "robot.power: ", "off, on");
        row("fraction", R"({"robot": {"level": 1.5}})", "robot.level: ", "found 1.5");
        row("below the range", R"({"robot": {"level": -1}})", "robot.level: ", "from 0");
        row("above the range", R"({"robot": {"level": 1e12}})", "robot.level: ", "integer");
        row("impossible state", R"({"robot": {"state": "program"}})", "robot.state: ", "motors");
        row("hub is no object", R"({"hub": []})", "hub: ", "found an array");
        row("dot in a step", R"({"hub": {"a": {"b.c": 1}}})", "hub.a.b.c: ", "without dots");
        row("unknown answers", R"({"answers": {"robot": {}}})",
            "answers.robot: ", "unknown member");
        row("plugin answer", R"({"answers": {"plugin": {"p": 1}}})",
            "answers.plugin.p: ", "an array");
        row("unknown fault", R"({"faults": [{"fault": "silent"}, {"fault": "late"}]})",
            "faults[1].fault: ", "unknown fault 'late' (known: no_answer");
        row("command of a condition", R"({"faults": [{"fault": "hub_down", "command": "x"}]})",
            "faults[0].command: ", "does not go");
        row("nothing to do", R"({"timeline": [{"after": 1}]})", "timeline[0].do: ", "control line");
        row("unknown line", R"({"timeline": [{"do": ["state", "jump"]}]})",
            "timeline[0].do[1]: ", "unknown control command 'jump'");
        row("quit is for people", R"({"timeline": [{"do": "quit"}]})",
            "timeline[0].do: ", "unknown");
        row("signal type", R"({"io": {"signals": [{"name": "a", "type": "di"}]}})",
            "io.signals[0].type: ", "DI, DO");
        row("signal value", R"({"io": {"signals": [{"name": "a", "type": "GI", "value": -1}]}})",
            "io.signals[0].value: ", "does not fit");
        row("signal without a name", R"({"io": {"signals": [{"name": ""}]}})",
            "io.signals[0].name: ", "1 to 255");
        row("two signals", R"({"io": {"signals": [{"name": "a"}, {"name": "a"}]}})",
            "io.signals[1]: ", "'a' is there twice");
        row("system signal", R"({"io": {"signals": [{"name": "a", "type": "DO"}],
            "system_inputs": [{"signal": "a", "function": "motor_on"}]}})",
            "io.system_inputs[0].signal: ", "the name of a DI");
        row("system function", R"({"io": {"signals": [{"name": "a"}],
            "system_inputs": [{"signal": "a", "function": "jump"}]}})",
            "io.system_inputs[0].function: ", "motor_off, motor_on");
        row("register", R"({"registers": [{"name": "R", "value": ["1", 2]}]})",
            "registers[0].value[1]: ", "expected a text");
        row("autoload", R"({"project": {"autoload": "../x"}})",
            "project.autoload: ", "no name of a project");
        row("rule without effect", R"({"hot_update": [{"operator": "add"}]})",
            "hot_update[0].reply: ", "either a reply or a reason");
        row("rule with two", R"({"hot_update": [{"reply": 1, "reason": "x"}]})",
            "hot_update[0].reply: ", "either a reply or a reason");
        row("program", R"({"program": {"every": 100, "do": ["var put x 1"]}})",
            "program.do[0]: ", "usage: var set");
        row("tool of the system", R"({"tools": {"project": [{"name": "tool0"}]}})",
            "tools.project[0].name: ", "belongs to the system");
        row("work object twice", R"({"wobjs": {"global": [{"name": "a"}, {"name": "a"}]}})",
            "wobjs.global[1].name: ", "twice");
        row("short pose", R"({"tools": {"project": [{"name": "a", "pose": [1, 2]}]}})",
            "tools.project[0].pose: ", "6 numbers");
        row("joints of another arm", R"({"arm": "seven", "joints": [0, 0, 0, 0, 0, 0]})",
            "joints: ", "7 numbers");
        row("joint beyond its limit", R"({"joints": [0, 0, 0, 0, 130, 0]})",
            "joints: ", "axis 5 goes from -125 to 125");
        row("too fast", R"({"timeline": [{"every": 1, "do": "state"}]})",
            "timeline[0].every: ", "10");
    }

    void errors()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, start);
        QFETCH(QString, part);
        QString error;
        QVERIFY(!Scenario::fromText(text, &error).has_value());
        QVERIFY2(error.startsWith(start) && error.contains(part), qPrintable(error));
        QVERIFY2(!error.contains('\n'), qPrintable(error));
    }

    void fileErrors()
    {
        QTemporaryDir directory;
        const QString path = directory.filePath("broken.json");
        QString error;
        QVERIFY(!Scenario::fromFile(path, &error).has_value());
        QVERIFY2(error.startsWith(path + ": "), qPrintable(error));

        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(R"({"robot": {"level": "x"}})");
        file.close();
        QVERIFY(!Scenario::fromFile(path, &error).has_value());
        QVERIFY2(error.startsWith(path + ": robot.level: "), qPrintable(error));
    }

    void shippedFiles()
    {
        const QFileInfoList files = QDir(SCENARIOS).entryInfoList({"*.json"});
        QVERIFY(files.size() >= 3);
        for (const QFileInfo &file : files) {
            QString error;
            QVERIFY2(Scenario::fromFile(file.filePath(), &error), qPrintable(error));
        }
    }
};

QTEST_GUILESS_MAIN(TestScenario)
#include "tst_scenario.moc"
