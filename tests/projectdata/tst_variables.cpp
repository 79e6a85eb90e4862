#include "offscreen.h"
#include "openproject.h"
#include "sentcommands.h"
#include "testcolumns.h"

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
     "description": "parts"},
    {"id": 1, "name": "a.b", "type": "QString", "value": {"[0][0][0]": "x"}, "pers": false},
    {"id": 2, "name": "camera", "type": "socketconn", "value": {"[0][0][0]": 3}},
    {"id": 3, "name": "scale", "type": "serials", "value": {"[0][0][0]": 4}},
    {"id": 4, "name": "bare", "type": "double"}]})";

QJsonArray list()
{
    return m("tavik.project.var._list")->exportToJson().toArray();
}

QString request(const QString &operation, const QString &entries)
{
    return R"(project.variable {"operator":")" + operation + R"(","variables":[)" + entries + "]}";
}

const QString count1 = R"({"name":"count","pers":true,"type":"int","value":{"[0][0][0]":1}})";
const QString ab = R"({"name":"a.b","pers":false,"type":"QString","value":{"[0][0][0]":"x"}})";
const double nan = std::numeric_limits<double>::quiet_NaN();
const double infinite = std::numeric_limits<double>::infinity();

// Raw strings with quotes don't go into a class with Q_OBJECT.
QString q(QString text)
{
    return text.replace('\'', '"');
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
                 QStringList({"count", "a.b", "camera", "scale", "bare"}));
        QCOMPARE(api.getVarDataList("int"), QStringList("count"));
        QCOMPARE(api.getVarDataList("Int"), QStringList());
        QCOMPARE(api.getVarObjDataByName("a.b"), list().at(1).toObject());
        for (const char *name : {"A.B", "", "#0"})
            QCOMPARE(api.getVarObjDataByName(name), QJsonObject());
        QCOMPARE(m_sent->take(), QStringList());
    }

    void changes_data()
    {
        const auto row = testcolumns<Operation, QString, QString>("operation", "sent", "changed");
        row("add a number", [](auto &api) { return api.addVarData("Count", 5, true); },
            request("add",
                    q("{'name':'Count','pers':true,'type':'int','value':{'[0][0][0]':5}}")),
            q("5 {'description':'new','id':5,'name':'Count','pers':true,'type':'int','value':{'[0][0][0]':5}}"));
        row("add a text, untrimmed", [](auto &api) { return api.addVarData(" #0", "%1", false); },
            request("add",
                    q("{'name':' #0','pers':false,'type':'QString','value':{'[0][0][0]':'%1'}}")),
            q("5 {'description':'new','id':5,'name':' #0','pers':false,'type':'QString','value':{'[0][0][0]':'%1'}}"));
        row("update", [](auto &api) { return api.updateVarData("count", "now a text"); },
            request("edit", q("{'name':'count','old_name':'count','pers':true,'type':'int','value':{'[0][0][0]':'now a text'}}")),
            q("0 {'description':'parts','id':0,'name':'count','pers':true,'type':'int','value':{'[0][0][0]':'now a text'}}"));
        row("update without a value", [](auto &api) { return api.updateVarData("bare", 1.5); },
            request("edit", q("{'name':'bare','old_name':'bare','type':'double','value':{'[0][0][0]':1.5}}")),
            q("4 {'id':4,'name':'bare','type':'double','value':{'[0][0][0]':1.5}}"));
        row("delete two of four",
            [](auto &api) {
                return api.delVarData(QStringList {"a.b", "camera", "none", "count"});
            },
            request("remove", count1 + ',' + ab), q("0 {'id':2,'name':'camera','type':'socketconn','value':{'[0][0][0]':3}}"));
        row("delete one", [](auto &api) { return api.delVarData("count"); },
            request("remove", count1), q("0 {'id':1,'name':'a.b','pers':false,'type':'QString','value':{'[0][0][0]':'x'}}"));
    }

    void changes()
    {
        QFETCH(Operation, operation);
        QFETCH(QString, sent);
        QFETCH(QString, changed);
        LogCapture log;
        QVERIFY(operation(*zepletInterface()));
        QCOMPARE(m_sent->take(), QStringList(sent));
        QCOMPARE(log.ofLevel("S"), QStringList("hotUpdateVar:" + sent.section(' ', 1)));
        QCOMPARE(QJsonValue(list().at(changed.section(' ', 0, 0).toInt())),
                 json(changed.section(' ', 1).toUtf8()));
        const bool isAdded = sent.contains(q("'add'"));
        QCOMPARE(m("tavik.project.var.built")->getBool(false), !isAdded);
        const QJsonObject file = json(file_()).toObject();
        QCOMPARE(file, QJsonObject({{"version", "0.2"}, {"variables", list()}}));
        QCOMPARE(OpenProject::pushed(), file_());
        QVERIFY(m_project->takePushes().value(0).endsWith("::hmi/demo/var.json"));
    }

    void refusals_data()
    {
        const auto row = testcolumns<Operation, QString>("operation", "problem");
        row("add ''", [](auto &api) { return api.addVarData("", 1, true); },
            "addVarData: name is empty");
        row("add again", [](auto &api) { return api.addVarData("count", 1, true); },
            "addVarData: variable already exists:count");
        row("add nan", [](auto &api) { return api.addVarData("n", nan, true); },
            "addVarData: value is not finite:n");
        row("update ''", [](auto &api) { return api.updateVarData("", 1); },
            "updateVarData: name is empty");
        row("update Count", [](auto &api) { return api.updateVarData("Count", 1); },
            "updateVarData: variable not found:Count");
        row("update a connection", [](auto &api) { return api.updateVarData("scale", 1); },
            "updateVarData: unsupported type:serials");
        row("update within a list",
            [](auto &api) { return api.updateVarData("count", QVariantList {1, infinite}); },
            "updateVarData: value is not finite:count");
        row("delete a connection", [](auto &api) { return api.delVarData("camera"); }, "");
        row("delete nothing", [](auto &api) { return api.delVarData(QStringList()); }, "");
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
        QCOMPARE(log.ofLevel("E"), QStringList({"addVarData: rc is not connected",
                                                "updateVarData: rc is not connected",
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
        QVERIFY(!zepletInterface()->addVarData("n", 1, true));
        QVERIFY(isUntouched());
        QVERIFY(!zepletInterface()->updateVarData("count", 2));
        QVERIFY(!zepletInterface()->updateVarData("bare", 2));
        QVERIFY(!zepletInterface()->delVarData("count"));
        QVERIFY(isUntouched());
        QCOMPARE(log.ofLevel("E"), QStringList({"addVarData: hot update failed:n",
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
        const QStringList names {"count", "camera", "scale", "bare", "n"};
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
