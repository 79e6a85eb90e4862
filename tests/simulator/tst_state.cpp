#include "testcolumns.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QtTest>
#include <simulator/simulator.h>
#include <simulator/statefile.h>

using simulator::Scenario;
using simulator::Simulator;
using simulator::StateFile;

namespace
{
const QByteArray cell = R"({
    "robot": {"version": "3.1.0"}, "arm": "six", "joints": [0, 0, 0, 0, 90, 0],
    "hub": {"cell": {"door": "closed", "lamp": false}, "demo": 1},
    "io": {"signals": [{"name": "di", "type": "DI"}, {"name": "ao", "type": "AO", "value": 1}]},
    "registers": [{"name": "R", "value": ["0", "1"]}, {"name": "S", "value": ["a"]}],
    "tools": {"project": [{"name": "gripper", "pose": [0, 0, 1, 0, 0, 0]}]},
    "variables": [{"name": "count", "type": "int", "value": 0}, {"name": "batch", "value": "A"}]
})";
} // namespace

/** What a simulator knows again after its end. */
class TestState : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_directory = std::make_unique<QTemporaryDir>();
        m_scenario = *Scenario::fromText(cell, nullptr);
    }

    void survives_data()
    {
        const auto row = testcolumns<QStringList, QString, QByteArray>("lines", "asks", "answer");
        row("level", {"set level 5"}, "state", R"({"robot": {"level": 5}})");
        row("mode", {"set mode auto"}, "state", R"({"robot": {"mode": "auto"}})");
        row("identity", {"set id A b", "set version 3.2.0", "set robot X"}, "state",
            R"({"robot": {"id": "A b", "version": "3.2.0", "robot": "X"}})");
        row("motors and program: off as after a power cut", {"set power on", "program start"},
            "state", R"({"robot": {"power": "off", "state": "idle"}})");
        row("joints", {"joints set 10.5 0 0 0 90 0"}, "joints get", "[10.5, 0, 0, 0, 90, 0]");
        row("another tool", {"frame set tool global probe 1 2 3 4 5 6"}, "tools",
            R"({"g_tools": [{"name": "probe", "pose": {"x": 1, "y": 2, "z": 3, "a": 4, "b": 5, "c": 6}}]})");
        row("no tool left", {"frame remove tool project gripper"}, "tools",
            R"({"tools": [], "g_tools": []})");
        row("chosen tool", {R"(hub set motion.tool "gripper")"}, "hub get motion",
            R"({"tool": "gripper", "wobj": "wobj0", "state": "idle"})");
        row("signals", {"signal set di true", "signal set ao 2.5"}, "signal get",
            R"({"di": true, "ao": 2.5})");
        row("simulation", {"simulation on"}, "simulated", "true");
        row("register", {"register set R 1 x y"}, "register get",
            R"([{"name": "R", "value": ["0", "x y"]}, {"name": "S", "value": ["a"]}])");
        row("variable", {"var set count 7"}, "var get count", R"({"value": 7, "type": "int"})");
        row("open project", {"project open P", "project open Q"}, "state", R"({"project": "Q"})");
        row("autoload", {"project autoload P/task0"}, "project get",
            R"({"autoload_prj_path": "P/task0"})");
        row("project's variable", {"project open V", "var set pers 9", "var set other 9"},
            "var get", R"({"pers": {"value": 9}, "other": {"value": 1}})");
        row("hub", {"hub set cell {\"lamp\": true}", "hub set new.key [1]"}, "hub get",
            R"({"cell": {"lamp": true}, "new": {"key": [1]}, "demo": 1})");
    }

    /** Twice: what was restored stays kept, too. */
    void survives()
    {
        QFETCH(QStringList, lines);
        QFETCH(QString, asks);
        QFETCH(QByteArray, answer);
        if (lines.first() == "project open V")
            writeProjectVariables();
        for (const QStringList &now : {lines, QStringList(), QStringList()}) {
            const Started started(*this);
            for (const QString &line : now)
                QVERIFY2(started.simulator->control(line).isDone(), qPrintable(line));
            if (now.isEmpty())
                QVERIFY2(contains(ask(*started.simulator, asks), value(answer)),
                         qPrintable(QJsonDocument({ask(*started.simulator, asks)}).toJson()));
        }
    }

    /** Only what was changed covers the scenario, and only where it fits. */
    void scenarioIsEdited()
    {
        {
            const Started started(*this);
            for (const char *line : {"signal set di true", "signal set ao 2", "register set R 0 9",
                                     "register set S 0 9", "var set count 3",
                                     "joints set 1 0 0 0 90 0", "hub set cell.lamp true"})
                QVERIFY(started.simulator->control(line).isDone());
        }
        QByteArray edited = cell;
        edited.replace(R"("name": "ao", "type": "AO", "value": 1)", R"("name": "ao", "type": "DO")")
            .replace(R"("value": "A")", R"("value": "B")")
            .replace(R"(["0", "1"])", R"(["2"])")
            .replace(R"("demo": 1)", R"("demo": 2)")
            .replace(R"("six", "joints": [0, 0, 0, 0, 90, 0])", R"("seven")");
        m_scenario = *Scenario::fromText(edited, nullptr);
        const Started started(*this);
        Simulator &simulator = *started.simulator;
        QCOMPARE(m_problem, QString());
        QCOMPARE(ask(simulator, "signal get"), value(R"({"di": true, "ao": false})"));
        QCOMPARE(ask(simulator, "register get"),
                 value(R"([{"name": "R", "value": ["2"]}, {"name": "S", "value": ["9"]}])"));
        QCOMPARE(ask(simulator, "var get count")["value"], QJsonValue(3));
        QCOMPARE(ask(simulator, "var get batch")["value"], QJsonValue("B"));
        QCOMPARE(ask(simulator, "joints get").toArray().size(), 7);
        QCOMPARE(ask(simulator, "hub get demo"), QJsonValue(2));
        QCOMPARE(ask(simulator, "hub get cell.lamp"), QJsonValue(true));
    }

    void damagedFile()
    {
        for (const QByteArray &content :
             {QByteArray(), QByteArray("{\"robot\": {"), QByteArray(R"({"window": 1})"),
              QByteArray(R"({"joints": [0, 0, 0, 0, 999, 0], "arm": "six"})")}) {
            write(path(), content);
            const Started started(*this);
            QVERIFY2(m_problem.startsWith(path() + " is no state of a simulator ("),
                     qPrintable(m_problem));
            QCOMPARE(read(path() + ".damaged"), content);
            QCOMPARE(ask(*started.simulator, "joints get"), value("[0, 0, 0, 0, 90, 0]"));
        }
    }

    /** Soon after a change, without an end; and the next change after a failure. */
    void written()
    {
        const Started started(*this);
        QSignalSpy problems(&*started.file, &StateFile::problem);
        QVERIFY(started.simulator->control("set level 4").isDone());
        QTRY_VERIFY(read(path()).contains("\"level\": 4"));
        QVERIFY(QFile::remove(path()) && QDir().mkdir(path()));
        QVERIFY(started.simulator->control("set level 5").isDone());
        QTRY_COMPARE(problems.count(), 1);
        QVERIFY(problems[0][0].toString().startsWith(path() + " cannot be written: "));
        QVERIFY(QDir().rmdir(path()));
        QVERIFY(started.simulator->control("set robot_template 6").isDone());
        QTRY_VERIFY(read(path()).contains("\"robot_template\": 6"));
    }

private:
    /** A simulator that goes on where the file says, and keeps its state there to its end. */
    struct Started {
        explicit Started(TestState &test)
        {
            test.m_problem.clear();
            simulator = std::make_unique<Simulator>(
                StateFile::restore(test.m_scenario, test.path(), &test.m_problem));
            file = std::make_unique<StateFile>(*simulator, test.m_scenario, test.path());
            QString error;
            if (!simulator->start(0, 0, &error))
                qFatal("%s", qPrintable(error));
        }

        std::unique_ptr<Simulator> simulator;
        std::unique_ptr<StateFile> file;
    };

    QString path() const { return m_directory->filePath("kept/state.json"); }

    static QJsonValue value(const QByteArray &json)
    {
        return QJsonDocument::fromJson('[' + json + ']').array().first();
    }

    /** The answer to a control line, or what none tells. */
    static QJsonValue ask(Simulator &simulated, const QString &line)
    {
        using simulator::Frames;
        if (line == "simulated")
            return simulated.io().values().simulated;
        if (line == "tools")
            return QJsonObject {
                {"tools", simulated.frames().toJson(Frames::Tool, Frames::Project)},
                {"g_tools", simulated.frames().toJson(Frames::Tool, Frames::Global)}};
        return simulated.control(line).result;
    }

    /** Whether an object has the members of another one, and theirs. */
    static bool contains(const QJsonValue &all, const QJsonValue &part)
    {
        if (!part.isObject())
            return all == part;
        const QJsonObject members = part.toObject();
        for (auto member = members.begin(); member != members.end(); ++member) {
            if (!contains(all[member.key()], *member))
                return false;
        }
        return true;
    }

    void writeProjectVariables()
    {
        m_scenario.files = {m_directory->filePath("c"), quint16(0)};
        write(m_directory->filePath("c/hmi/V/var.json"), R"({"variables": [
            {"name": "pers", "type": "int", "pers": true, "value": {"[0][0][0]": 1}},
            {"name": "other", "type": "int", "pers": false, "value": {"[0][0][0]": 1}}]})");
    }

    static void write(const QString &path, const QByteArray &content)
    {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    static QByteArray read(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    std::unique_ptr<QTemporaryDir> m_directory;
    Scenario m_scenario;
    QString m_problem;
};

QTEST_GUILESS_MAIN(TestState)
#include "tst_state.moc"
