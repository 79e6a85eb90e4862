#include "openproject.h"
#include "testcolumns.h"

#include <QSignalSpy>
#include <cmath>
#include <limits>
#include <memory>
#include <zeplet/projectdata/datafile.h>
#include <zeplet/projectdata/pointhotupdate.h>

using namespace zeplet;

using Edit = std::function<bool()>;
Q_DECLARE_METATYPE(Edit)

namespace
{

const QByteArray points = R"([
    {"name": "P1", "pers": "false", "value": {"[0][0][0]": {"pose": {"elb": 7}}, "note": {}}},
    {"name": "Array", "pers": "true", "func": "f", "task": "t", "property": "joint",
     "value": {"[0][0][0]": {"a": 1}, "[1][0][0]": {"inner_pos": [9], "extern_pos": [8]}}},
    {"name": "Bare"}])";

const QVector<double> pose {1, 2, 3, 4, 5, 6};
constexpr double infinite = std::numeric_limits<double>::infinity();

InterfaceManager *manager()
{
    return zepletInterface();
}

// Each operation with its arguments, to be called later.
Edit create(const QString &name)
{
    return [=] { return manager()->createPoint(name, true, false); };
}
Edit cart(const QString &name, const QVector<double> &values, const QString &index = {})
{
    return [=] { return manager()->setPointCartData(name, values, index); };
}
Edit joints(const QString &name, const QVector<double> &values, const QString &index = {})
{
    return [=] { return manager()->setPointJointData(name, values, index); };
}
Edit object(const QString &name, const QJsonObject &element, const QString &index = {})
{
    return [=] { return manager()->setPointElementJson(name, index, element); };
}
Edit ensure(const QString &name, const QString &index)
{
    return [=] { return manager()->ensurePointElement(name, index); };
}
Edit removePoint(const QString &name)
{
    return [=] { return manager()->removePoint(name); };
}
Edit removeElement(const QString &name, const QString &index)
{
    return [=] { return manager()->removePointElement(name, index); };
}

QJsonObject deep(int levels)
{
    QJsonValue value = 1;
    for (int i = 0; i < levels; ++i)
        value = QJsonObject {{"a", value}};
    return value.toObject();
}

} // namespace

class TestPointEditing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_project.reset(); // gives the search path back
        m_project = std::make_unique<OpenProject>(m_fake);
        m_project->setPoints(points);
    }

    void whatIsWrongChangesNothing_data()
    {
        const auto row = testcolumns<Edit, QString>("edit", "error");
        const QString cartName = "setPointCartData: ";
        const QString jointName = "setPointJointData: ";
        const QString removeName = "removePointElement: ";
        const QString nowhere = "index not found, name=P1 index=[2][0][0]";
        const QString unfit
            = "setPointElementJson: numbers that are not finite, or too many levels, "
              "name=P1";
        const QString infinity = "not all values are finite, name=P1";
        row("no name", create(" "), "");
        row("name taken", create(" p1 "), "createPoint: already exists, name=p1");
        row("short pose", cart("P1", {1, 2, 3, 4, 5}), cartName + "xyz_abc size < 6");
        row("pose nowhere", cart("x", pose), cartName + "point not found, name=x");
        row("pose, no element", cart("P1", pose, "[2]"), cartName + "value " + nowhere);
        row("infinite pose", cart("P1", {1, 2, 3, 4, 5, infinite}), cartName + infinity);
        row("no joints", joints("P1", {}), jointName + "joints empty");
        row("joints nowhere", joints("x", {1}), jointName + "point not found, name=x");
        row("joints, no value", joints("bare", {1}),
            jointName + "value index not found, name=bare index=[0][0][0]");
        row("joint is no number", joints("P1", {0, 0, 0, 0, 0, 0, std::nan("")}),
            jointName + infinity);
        row("empty JSON", object("P1", {}), "");
        row("JSON nowhere", object("x", {{"a", 1}}), "");
        row("infinite JSON", object("P1", {{"a", QJsonArray {QJsonValue(infinite)}}}), unfit);
        row("deep JSON", object("P1", deep(65)), unfit);
        row("ensure nowhere", ensure("x", ""), "ensurePointElement: point not found, name=x");
        row("remove nowhere", removePoint("x"), "removePoint: not found, name=x");
        row("remove element nowhere", removeElement("x", ""),
            removeName + "point not found, name=x");
        row("remove no element", removeElement("P1", "[2]"), removeName + nowhere);
        row("not an element", removeElement("P1", "note"),
            removeName + "index not found, name=P1 index=note");
    }

    void whatIsWrongChangesNothing()
    {
        QFETCH(Edit, edit);
        QFETCH(QString, error);
        const QJsonValue before = m("tavik.project")->exportToJson();
        const int requests = m_fake.hub.requests().size();
        LogCapture log;
        QVERIFY(!edit());
        QCOMPARE(log.take().join('\n').remove("E|"), error);
        QCOMPARE(m("tavik.project")->exportToJson(), before);
        QCOMPARE(m_fake.hub.requests().size(), requests);
        QCOMPARE(m_project->file() + m_project->takePushes().join('\n').toUtf8(), QByteArray());
    }

    void anEditIsStoredToldWrittenAndPushed_data()
    {
        const auto row
            = testcolumns<Edit, QString, QString, QByteArray>("edit", "told", "where", "element");
        row("pose", cart("p1", pose + QVector<double> {7}), "edit 0", "P1",
            R"({"pose": {"elb": 7, "frame": {"pos": {"x": 1, "y": 2, "z": 3},
                                             "ori": {"euler": {"a": 4, "b": 5, "c": 6}}}}})");
        row("joints", joints("P1", {1, 2.5}, "[0]"), "edit 0", "P1",
            R"({"pose": {"elb": 7}, "inner_pos": [1, 2.5, 0, 0, 0, 0, 0]})");
        row("persistent first", object("Array", {{"b", 2}}), "edit 1", "Array", R"({"b": 2})");
        row("persistent other", joints("array", {1, 2, 3, 4, 5, 6, 7, 8}, "[1]"), "",
            "Array [1][0][0]", R"({"inner_pos": [1, 2, 3, 4, 5, 6, 7], "extern_pos": [8]})");
        row("ensured", ensure("array", "[2]"), "", "Array [2][0][0]", R"({"a": 1})");
        row("ensured, first", ensure("Bare", ""), "edit 2", "Bare", "null");
        row("index with dots", object("Bare", {{"b.c", 1}}, "a.#1"), "edit 2", "Bare a.#1",
            R"({"b.c": 1})");
        row("element removed", removeElement("Array", "[1]"), "edit 1", "Array [1][0][0]", "");
        row("created", create(" New\t"), "add 3", "New", "null");
        row("point removed", removePoint("p1"), "", "P1", "");
        row("last element removed", removeElement("p1", ""), "", "P1", "");
    }

    void anEditIsStoredToldWrittenAndPushed()
    {
        QFETCH(Edit, edit);
        QFETCH(QString, told);
        QFETCH(QString, where);
        QFETCH(QByteArray, element);
        // Who hears of it finds it in the store, with its position, and nothing on the disk yet.
        QJsonValue heard;
        QObject watcher;
        connect(m("tavik.project.point.hot_update.operate"), &ostrel::ModuleObject::changed,
                &watcher, [&] {
                    QCOMPARE(m_project->announced(), told);
                    QCOMPARE(m_project->file(), QByteArray());
                    heard = m_project->list()->exportToJson();
                });
        LogCapture log;
        QVERIFY(edit());
        QCOMPARE(m_project->announced(), told);
        const QStringList place = where.split(' ');
        QCOMPARE(m_project->element(place[0], place.value(1, "[0][0][0]")),
                 element.isEmpty() ? QJsonValue(QJsonValue::Undefined) : json(element));

        const QJsonValue stored = m_project->list()->exportToJson();
        QCOMPARE(told.isEmpty() ? stored : heard, stored);
        const QJsonObject content = QJsonDocument::fromJson(m_project->file()).object();
        QCOMPARE(content, QJsonObject({{"version", "0.2"}, {"points", stored}}));
        QCOMPARE(m_project->pushed(), m_project->file());
        m_project->setPoints("[]");
        m_project->list()->importFromJson(nullptr, content["points"], true, true, true);
        QCOMPARE(m_project->list()->exportToJson(), stored);
        QCOMPARE(log.ofLevel("I").mid(0, 2),
                 QStringList({"begin save point json", "end save point json"}));
        QCOMPARE(log.ofLevel("E"), QStringList());
    }

    void aNewPointHasAllFields()
    {
        LogCapture log;
        QVERIFY(manager()->createPoint("a", true, true));
        QJsonObject record = manager()->getPointObjDataByName("a");
        const QRegularExpression text(R"(^Auto generate at: \d{4}(/\d\d){2} \d\d(:\d\d){2}$)");
        QVERIFY(text.match(record.take("description").toString()).hasMatch());
        QCOMPARE(record,
                 json(R"({"id": 3, "name": "a", "property": "joint", "pers": "true",
            "func": "main", "task": "t1", "d": [0, 0, 0], "value": {"[0][0][0]": null}})")
                     .toObject());
    }

    void theControllerIsAskedWithWholeRecords()
    {
        LogCapture log;
        QVERIFY(manager()->setPointElementJson("Array", "[1]", {{"b", 2}}));
        const auto sent = [this] {
            const QJsonObject params = m_fake.hub.last("hub.command").params.toObject();
            return params["key"] == "project.variable" ? params["value"] : QJsonValue();
        };
        QCOMPARE(sent(), json(R"({"operator": "pers_point_refresh", "variables": [{"name": "Array",
            "type": "jointtarget", "s_d": "[1][0][0]", "func": "f", "task": "t",
            "[1][0][0]": {"b": 2}}]})"));
        QVERIFY(manager()->removePoint("bare"));
        const QJsonValue removal = json(R"({"operator": "remove", "variables": [{"name": "Bare",
                                            "func": "", "task": ""}]})");
        QCOMPARE(sent(), removal);
        const QString line = log.ofLevel("S").first();
        QCOMPARE(line.left(15), QString("hotRemovePoint:"));
        QCOMPARE(json(line.mid(15).toUtf8()), removal);
        QVERIFY(manager()->setPointJointData("P1", {1}, ""));
        QCOMPARE(m_project->list()->getStr("#0.property", ""), QString("joint"));
        QVERIFY(manager()->setPointCartData("P1", pose, ""));
        m_project->list()->childAt(0)->set(nullptr, "name", "a.b", true);
        QVERIFY(hotUpdatePersPointElement(m_project->list()->childAt(0), " [0]"));
        QCOMPARE(sent()["variables"][0]["type"], QJsonValue("robtarget"));
    }

    void whoWatchesHearsOfAnEdit()
    {
        QSignalSpy record(m_project->list()->childAt(1), &ostrel::ModuleObject::changed);
        QSignalSpy list(m_project->list(), &ostrel::ModuleObject::changed);
        LogCapture log;
        QVERIFY(manager()->setPointElementJson("Array", "[1]", {{"b", 2}}));
        QVERIFY(manager()->ensurePointElement("Array", "[2]"));
        QVERIFY(manager()->removePointElement("Array", "[2]"));
        QCOMPARE(record.size(), 3);
        QCOMPARE(list.size(), 0);
        QVERIFY(manager()->removePoint("Bare"));
        QCOMPARE(list.size(), 1);
    }

    void aFailingStepEndsAnEdit_data()
    {
        const auto row = testcolumns<QJsonValue, QByteArray, Edit, QStringList, bool>(
            "answer", "rsync", "edit", "errors", "written");
        const Edit set = joints("Array", {1}, "[1]");
        row("element refused", 5, "exit 0", set,
            {"pers_point_refresh failed, name=Array index=[1][0][0] ret=5"}, false);
        row("removal refused", -1, "exit 0", removePoint("Array"),
            {"removePoint: hotRemove failed, name=Array"}, false);
        row("not pushed", 0, "exit 1", set, {"push point.json failed"}, true);
        row("no integer", true, "exit 0", set, {}, true);
        row("a text", "5", "exit 0", removePoint("Array"), {}, true);
    }

    void aFailingStepEndsAnEdit()
    {
        QFETCH(QJsonValue, answer);
        QFETCH(QByteArray, rsync);
        QFETCH(Edit, edit);
        QFETCH(QStringList, errors);
        QFETCH(bool, written);
        m_project->setAnswer(answer);
        m_project->setRsync(rsync);
        QSignalSpy banners(brisa::ManagerHelper::instance(), &brisa::ManagerHelper::logThrown);
        LogCapture log;
        QCOMPARE(edit(), errors.isEmpty());
        QVERIFY(banners.isEmpty());
        QCOMPARE(log.ofLevel("E").mid(log.ofLevel("E").size() - errors.size()), errors);
        QCOMPARE(!m_project->file().isEmpty(), written);
        QCOMPARE(m_project->takePushes().size(), int(written));
        QCOMPARE(manager()->getPointNameList().contains("Array"), answer != QJsonValue("5"));
        const QVector<double> joints = manager()->getPointJointDataByName("Array", "[1]");
        QCOMPARE(joints.value(0, 1), answer == QJsonValue(-1) ? 9.0 : 1.0);
    }

    void whatCannotBeWrittenIsNotPushed()
    {
        StandIns::touch("LOCALHOST");
        for (const char *project : {"LOCALHOST/demo", "LOCALHOST/..", "no workspace"}) {
            m("tavik.project.cur_project")->set(nullptr, project);
            if (project == QLatin1String("no workspace")) // a path at the root is none of ours
                m_project->settings()->set("workspace", "");
            LogCapture log;
            QVERIFY(!manager()->setPointCartData("P1", pose, ""));
            QVERIFY(log.ofLevel("E").contains("write point.json failed"));
            QCOMPARE(m_project->takePushes(), QStringList());
            QCOMPARE(manager()->getPointDataByName("P1", ""), pose);
        }
    }

    void filesAndPathsFollowTheProject()
    {
        LogCapture log;
        m("tavik.project.cur_project")->set(nullptr, "");
        m("brisa.r.id")->set(nullptr, "R1");
        QVERIFY(manager()->removePoint("Bare"));
        m("brisa.r.id")->set(nullptr, "");
        const QString path = QDir::currentPath() + "/R1/_temp/point.json";
        QVERIFY(QFile::exists(path));
        const QString push = m_project->takePushes().value(0);
        QVERIFY2(push.endsWith('|' + path + "|brisa@127.0.0.1::hmi/_temp/point.json"),
                 qPrintable(push));

        log.take();
        auto *list = m("tavik.project.point._list");
        QVERIFY(writeDataToJson("v", list, "var") && writeDataToJson("o", list, "other"));
        QVERIFY(!writeDataToJson(path + "/below", list, "other"));
        QCOMPARE(log.ofLevel("I"), QStringList({"begin save var json", "end save var json"}));
        QVERIFY(log.ofLevel("E").contains("write json file failed"));
        const QJsonArray records = list->exportToJson().toArray();
        QCOMPARE(QJsonDocument::fromJson(m_project->read("v")).object()["variables"], records);
        QCOMPARE(QJsonDocument::fromJson(m_project->read("o")).array(), records);
    }

    void anyNameIsOnlyAName()
    {
        const QString names[] = {"with blank", R"('"quoted")", "; touch hurt", "$(touch hurt)",
                                 "%1 %2",      "a.b.#0",       "../../up/x",   "[0][0][0]",
                                 "#0",         "点位",         "\\n",          QString(255, 'x')};
        LogCapture log;
        for (const QString &name : names) {
            QVERIFY(manager()->createPoint(name, false, false));
            QVERIFY(manager()->ensurePointElement(name, "[1]"));
            QVERIFY(manager()->setPointCartData(name, pose, "[1]"));
            QCOMPARE(manager()->getPointDataByName(name.toUpper(), "[1][0][0]"), pose);
            const QJsonArray records
                = QJsonDocument::fromJson(m_project->pushed()).object()["points"].toArray();
            QCOMPARE(records[3], QJsonValue(manager()->getPointObjDataByName(name)));
            QCOMPARE(records.size(), 4);
            QVERIFY(manager()->removePoint(name));
        }
        QCOMPARE(m_project->list()->exportToJson(), json(points));
        QVERIFY(!QFile::exists("hurt"));
        QCOMPARE(log.ofLevel("E"), QStringList());
    }

    void triggersHoldTheLastPositionOnly()
    {
        triggerPointHotUpdate("edit", -1);
        QCOMPARE(m_project->announced(), QString());
        m("tavik.project.point.hot_update.points")->set(nullptr, QVariantList {7, 8});
        triggerPointHotUpdate("add", 2);
        QCOMPARE(m_project->announced(), QString("add 2"));
    }

private:
    FakeController m_fake;
    std::unique_ptr<OpenProject> m_project;
};

QTEST_MAIN(TestPointEditing)
#include "tst_pointediting.moc"
