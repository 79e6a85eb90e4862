#include "offscreen.h"
#include "openproject.h"
#include "sentcommands.h"
#include "testcolumns.h"

#include <QSignalSpy>
#include <limits>

using namespace zeplet;

using Operation = std::function<bool(InterfaceManager &)>;
Q_DECLARE_METATYPE(Operation)

namespace
{

const char *const variables = R"({"built": true,
    "default": {"id": 0, "name": "", "type": "", "value": {}, "pers": false, "description": "new"},
    "_list": [
    {"id": 0, "name": "count", "type": "int", "value": {"[0][0][0]": 1}, "pers": true,
     "description": "old"},
    {"id": 1, "name": "a.b", "type": "QString", "value": {"[0][0][0]": "x"}, "pers": true},
    {"id": 2, "name": "camera", "type": "socketconn", "value": {"[0][0][0]": 3}},
    {"id": 3, "name": "scale", "type": "serials", "value": {"[0][0][0]": 4}},
    {"id": 4, "name": "bare", "type": "double", "pers": true, "description": "old"},
    {"id": 5, "name": "server", "type": "socketserver"}]})";

QJsonArray list()
{
    return m("tavik.project.var._list")->exportToJson().toArray();
}

const double nan = std::numeric_limits<double>::quiet_NaN();
const double infinite = std::numeric_limits<double>::infinity();

/** What the controller is told of a persistent variable. */
QString entry(const QString &name, const QString &type, const QString &value,
              const QString &oldName = QString())
{
    return q("{'name':'" + name + "'," + oldName + "'pers':true,'type':'" + type
             + "','value':{'[0][0][0]':" + value + "}}");
}

} // namespace

class TestVariables : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { ignoreOffscreenNoise(); }

    void init()
    {
        m_project = std::make_unique<OpenProject>(m_fake);
        m("tavik.project.var")->importFromJson(nullptr, json(variables), true, true, true);
        m_sent = std::make_unique<SentCommands>(m_fake.hub);
    }

    void queries()
    {
        InterfaceManager &api = *zepletInterface();
        QCOMPARE(api.getVarDataList(""),
                 QStringList({"count", "a.b", "camera", "scale", "bare", "server"}));
        QCOMPARE(api.getVarDataList("int"), QStringList("count"));
        QCOMPARE(api.getVarDataList("Int"), QStringList());
        QCOMPARE(api.getVarObjDataByName("a.b"), list().at(1).toObject());
        for (const char *name : {"A.B", "", "#0"})
            QCOMPARE(api.getVarObjDataByName(name), QJsonObject());
        QCOMPARE(m_sent->take(), QStringList());
    }

    void changes_data()
    {
        const auto row = testcolumns<Operation, QString, QString, QString>("operation", "request",
                                                                           "entries", "names");
        const QString before = "count,a.b,camera,scale,bare,server";
        const auto add = [](auto name, auto value) {
            return [=](auto &api) { return api.addVarData(name, value, true); };
        };
        const auto update = [](auto name, auto value) {
            return [=](auto &api) { return api.updateVarData(name, value); };
        };
        const auto remove = [](const QStringList &names) {
            return [=](auto &api) { return api.delVarData(names); };
        };
        row("add a number", add("Count", 5), "add", entry("Count", "int", "5"), before + ",Count");
        row("add, untrimmed", add(" #0", "%1"), "add", entry(" #0", "QString", "'%1'"),
            before + ", #0");
        row("update", update("count", "text"), "edit",
            entry("count", "int", "'text'", "'old_name':'count',"), before);
        row("update without a value", update("bare", 1.5), "edit",
            entry("bare", "double", "1.5", "'old_name':'bare',"), before);
        row("delete two of five", remove({"a.b", "camera", "none", "server", "count"}), "remove",
            entry("count", "int", "1") + ',' + entry("a.b", "QString", "'x'"),
            "camera,scale,bare,server");
        row("delete one", remove({"count"}), "remove", entry("count", "int", "1"),
            "a.b,camera,scale,bare,server");
    }

    void changes()
    {
        QFETCH(Operation, operation);
        QFETCH(QString, request);
        QFETCH(QString, entries);
        QFETCH(QString, names);
        InterfaceManager &api = *zepletInterface();
        LogCapture log;
        QSignalSpy listChanges(m("tavik.project.var._list"), &ostrel::ModuleObject::changed);
        QSignalSpy built(m("tavik.project.var.built"), &ostrel::ModuleObject::changed);
        QVERIFY(operation(api));
        QCOMPARE(built.size(), request == "add" ? 1 : 0);
        QCOMPARE(listChanges.size(), request == "edit" ? 0 : 1);
        const QString sent = q("{'operator':'") + request + q("','variables':[") + entries + "]}";
        QCOMPARE(m_sent->take(), QStringList("project.variable " + sent));
        QCOMPARE(log.ofLevel("S"), QStringList("hotUpdateVar:" + sent));
        QCOMPARE(api.getVarDataList("").join(','), names);
        if (request != "remove") {
            QJsonObject expected = json(entries.toUtf8()).toObject();
            expected.remove("old_name");
            QJsonObject record = api.getVarObjDataByName(expected["name"].toString());
            const int place = names.split(',').indexOf(record["name"].toString());
            QCOMPARE(record.take("id").toInt(), place);
            QCOMPARE(record.take("description").toString(),
                     QString(request == "add" ? "new" : "old"));
            QCOMPARE(record, expected);
        }
        QCOMPARE(m("tavik.project.var.built")->getBool(false), request != "add");
        QCOMPARE(json(file_()).toObject(),
                 QJsonObject({{"version", "0.2"}, {"variables", list()}}));
        QCOMPARE(OpenProject::pushed(), file_());
        QVERIFY(m_project->takePushes().value(0).endsWith("::hmi/demo/var.json"));
    }

    void refusals_data()
    {
        const auto row = testcolumns<QString, Operation>("problem", "operation");
        const auto add = [&](const QVariant &value, const QString &name, const QString &why) {
            const QString problem = "addVarData: " + why;
            row(qPrintable(problem), problem,
                [=](auto &api) { return api.addVarData(name, value, true); });
        };
        const auto update = [&](const QVariant &value, const QString &name, const QString &why) {
            const QString problem = "updateVarData: " + why;
            row(qPrintable(problem), problem,
                [=](auto &api) { return api.updateVarData(name, value); });
        };
        QVariant deep;
        for (int level = 0; level < 100; ++level)
            deep = QVariantList {deep};
        add(1, "", "name is empty");
        add(1, "count", "variable already exists:count");
        add(nan, "n", "value is not finite:n");
        add(deep, "n", "value has too many levels:n");
        update(1, "", "name is empty");
        update(1, "Count", "variable not found:Count");
        update(1, "scale", "unsupported type:serials");
        update(QVariantList {1, infinite}, "count", "value is not finite:count");
        row("delete a connection", "", [](auto &api) { return api.delVarData("camera"); });
        row("delete nothing", "", [](auto &api) { return api.delVarData(QStringList()); });
    }

    void refusals()
    {
        QFETCH(Operation, operation);
        QFETCH(QString, problem);
        LogCapture log;
        QVERIFY(!operation(*zepletInterface()));
        QCOMPARE(log.ofLevel("E").join('\n'), problem);
        QVERIFY(isUntouched());
        QCOMPARE(m_sent->take(), QStringList());
    }

    void withoutALink()
    {
        LogCapture log;
        m_fake.setUp(false);
        QVERIFY(!zepletInterface()->addVarData("n", 1, true));
        QVERIFY(!zepletInterface()->updateVarData("count", 2));
        QVERIFY(!zepletInterface()->delVarData("count"));
        QCOMPARE(
            log.ofLevel("E"),
            QStringList({"addVarData: rc is not connected", "updateVarData: rc is not connected",
                         "delVarData: rc is not connected"}));
        QVERIFY(isUntouched());
    }

    void whatTheControllerRefusesIsUndone_data()
    {
        const auto row = testcolumns<QByteArray>("answer");
        for (const char *answer : {"1", "-1", "0.5", "null", "true", "{}", "'0'", "refused"})
            row(answer, answer);
    }

    void whatTheControllerRefusesIsUndone()
    {
        QFETCH(QByteArray, answer);
        LogCapture log; // which also takes the host's line about a refusal
        if (answer == "refused")
            m_fake.hub.refuse("hub.command", "no");
        else
            m_project->setAnswer(json(q(answer).toUtf8()));
        QSignalSpy listChanges(m("tavik.project.var._list"), &ostrel::ModuleObject::changed);
        QVERIFY(!zepletInterface()->addVarData("n", 1, true));
        QCOMPARE(listChanges.size(), 2); // it came and it went
        QVERIFY(isUntouched());
        QVERIFY(!zepletInterface()->updateVarData("count", 2));
        QVERIFY(!zepletInterface()->updateVarData("bare", 2));
        QVERIFY(!zepletInterface()->delVarData("count"));
        QVERIFY(isUntouched());
        QCOMPARE(log.ofLevel("E"),
                 QStringList({"addVarData: hot update failed:n",
                              "updateVarData: hot update failed:count",
                              "updateVarData: hot update failed:bare"}));
        QCOMPARE(m_sent->take().size(), 4);
    }

    void whatCannotBeSavedStays_data()
    {
        const auto row = testcolumns<QByteArray, QString>("rsync", "reason");
        row("no push", "exit 1", "push var.json failed");
        row("no file", "exit 0", "write var.json failed");
    }

    void whatCannotBeSavedStays()
    {
        QFETCH(QByteArray, rsync);
        QFETCH(QString, reason);
        LogCapture log;
        m_project->setRsync(rsync);
        if (rsync == "exit 0") // a file where the directory should be
            StandIns::touch("LOCALHOST");
        QVERIFY(!zepletInterface()->addVarData("n", 1, true));
        QVERIFY(!zepletInterface()->updateVarData("count", 2));
        QVERIFY(!zepletInterface()->delVarData("a.b"));
        const QStringList names {"count", "camera", "scale", "bare", "server", "n"};
        QCOMPARE(zepletInterface()->getVarDataList(""), names);
        QCOMPARE(list().at(0)["value"], json(q("{'[0][0][0]': 2}").toUtf8()));
        const QStringList lines = log.ofLevel("E");
        QCOMPARE(lines.count(reason), 3);
        for (const char *problem : {"addVarData: save/push var.json failed:n",
                                    "updateVarData: save/push var.json failed:count",
                                    "delVarData: save/push var.json failed"})
            QVERIFY2(lines.contains(problem), problem);
    }

    void cleanup() { m_project.reset(); }

private:
    static QByteArray file_() { return OpenProject::read("LOCALHOST/demo/var.json"); }
    static bool isUntouched()
    {
        return list() == json(variables).toObject()["_list"].toArray() && file_().isEmpty();
    }

    FakeController m_fake;
    std::unique_ptr<OpenProject> m_project;
    std::unique_ptr<SentCommands> m_sent;
};

QTEST_MAIN(TestVariables)
#include "tst_variables.moc"
