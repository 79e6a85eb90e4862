#include "logcapture.h"
#include "offscreen.h"
#include "robotsite.h"
#include "testcolumns.h"

#include <QCryptographicHash>
#include <csignal>
#include <functional>
#include <sys/resource.h>

using zeplet::InterfaceManager;

namespace
{

/** How an edit reaches the controller. */
enum Way { Told, Taught, Refreshed, Removed, Variable };

struct Edit {
    const char *name;
    Way way;
    std::function<bool(InterfaceManager &)> run;
};

const QVector<double> pose {1, 2, 3, 4, 5, 6};
const QJsonObject element {{"pose", QJsonObject {{"elb", 9}}}};

const Edit edits[] = {
    {"createPoint", Told, [](auto &api) { return api.createPoint("new", true, false); }},
    {"addCurrentPoint: new", Taught,
     [](auto &api) { return api.addCurrentPoint("new", false, "tool0", "wobj0", ""); }},
    {"addCurrentPoint: replaced", Taught,
     [](auto &api) { return api.addCurrentPoint("p", true, "tool0", "wobj0", ""); }},
    {"addCurrentPoint: element", Taught,
     [](auto &api) { return api.addCurrentPoint("array", false, "tool0", "wobj0", "[1][0][0]"); }},
    {"setPointCartData", Told, [](auto &api) { return api.setPointCartData("P", pose, ""); }},
    {"setPointCartData: persistent", Refreshed,
     [](auto &api) { return api.setPointCartData("kept", pose, "[1][0][0]"); }},
    {"setPointJointData", Told,
     [](auto &api) { return api.setPointJointData("array", pose, "[1][0][0]"); }},
    {"setPointElementJson", Told,
     [](auto &api) { return api.setPointElementJson("P", "[2][0][0]", element); }},
    {"ensurePointElement", Refreshed,
     [](auto &api) { return api.ensurePointElement("kept", "[2][0][0]"); }},
    {"removePoint", Removed, [](auto &api) { return api.removePoint("p"); }},
    {"removePointElement", Told,
     [](auto &api) { return api.removePointElement("kept", "[1][0][0]"); }},
    {"removePointElement: the last", Removed,
     [](auto &api) { return api.removePointElement("P", ""); }},
    {"addVarData", Variable, [](auto &api) { return api.addVarData("new", 1.5, true); }},
    {"updateVarData", Variable, [](auto &api) { return api.updateVarData("count", 7); }},
    {"delVarData", Variable, [](auto &api) { return api.delVarData("count"); }},
};

/** How far an edit comes: its change is in the data store, in the panel's file as well, in the
 *  controller's as well. Only the last is a success. */
enum Reached { Nowhere, Store, File, Controller };

struct Break {
    const char *name;
    Reached reached[5]; ///< by the way that the edit takes
    std::function<void(RobotSite &)> apply;
    bool dropsLinks = false;
};

void limitFiles(rlim_t bytes)
{
    rlimit limit = {};
    ::getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = std::min(bytes, limit.rlim_max);
    ::setrlimit(RLIMIT_FSIZE, &limit);
}

auto control(const char *line)
{
    return [line](RobotSite &site) { site.simulator.control(line); };
}

const char *const noPosition = "controller lost at the position";

const Break breaks[] = {
    {"controller down",
     {Controller, Nowhere, Controller, Controller, Nowhere},
     [](RobotSite &site) {
         site.simulator.control("fault controller_down");
         QTRY_VERIFY(!RobotSite::isControllerUp());
     },
     true},
    {noPosition,
     {Controller, Controller, Controller, Controller, Controller},
     control("fault dropped_link project.rl_program.get_rob_pos"),
     true},
    {"hub down",
     {Controller, Controller, Controller, Controller, Nowhere},
     [](RobotSite &site) {
         site.simulator.control("fault hub_down");
         QTRY_VERIFY(!RobotSite::isHubUp());
     },
     true},
    {"hub lost at the update",
     {Controller, Controller, Controller, Controller, Nowhere},
     control("fault dropped_link project.variable"),
     true},
    {"update refused with a code",
     {Controller, Controller, Store, Nowhere, Nowhere},
     [](RobotSite &site) {
         site.simulator.call([](simulator::Simulator &s) {
             s.faults().add({simulator::FaultKind::WrongAnswer, "project.variable", 0, 0, -3});
         });
     }},
    {"update refused with a reason",
     {Controller, Controller, Controller, Controller, Nowhere},
     control("fault refusal project.variable")},
    {"no room on the panel",
     {Store, Store, Store, Store, Store},
     [](RobotSite &) { limitFiles(100); }},
    {"daemon down", {File, File, File, File, File}, control("files down")},
    {"cut during the push",
     {File, File, File, File, File},
     [](RobotSite &site) {
         site.leadRsync("dd bs=1 count=3000 2>/dev/null | socat - TCP:127.0.0.1:%1");
     }},
    {"wrong password",
     {File, File, File, File, File},
     [](RobotSite &) { RobotSite::write("controller/rsyncd.secrets", "brisa:1\n"); }},
};

/** Text that rsync can't make much shorter. */
QString noise()
{
    QByteArray text;
    while (text.size() < 16000)
        text += QCryptographicHash::hash(text, QCryptographicHash::Sha256).toHex();
    return text;
}

QJsonArray points()
{
    const QJsonObject cart {
        {"pose", QJsonObject {{"frame", QJsonObject {{"pos", QJsonObject {{"x", 1.5}}}}}}}};
    const auto point = [&](const char *name, const char *persistent, const QStringList &indexes) {
        QJsonObject value;
        for (const QString &index : indexes)
            value.insert(index, cart);
        return QJsonObject {{"name", name},
                            {"property", "cart"},
                            {"pers", persistent},
                            {"d", QJsonArray {0, 0, 0}},
                            {"value", value}};
    };
    QJsonObject spare = point("spare", "false", {"[0][0][0]"});
    spare.insert("description", noise());
    return {point("P", "false", {"[0][0][0]"}), point("array", "false", {"[0][0][0]", "[1][0][0]"}),
            point("kept", "true", {"[0][0][0]", "[1][0][0]"}), spare};
}

QJsonArray variables()
{
    const auto variable = [](const char *name, int value) {
        return QJsonObject {{"name", name},
                            {"type", "int"},
                            {"pers", true},
                            {"value", QJsonObject {{"[0][0][0]", value}}}};
    };
    QJsonObject spare = variable("spare", 1);
    spare.insert("description", noise());
    return {variable("count", 1), spare};
}

/** What a position that never came leaves: the same members, all numbers 0. */
QJsonValue zeroed(const QJsonValue &value)
{
    QJsonObject object = value.toObject();
    for (auto member = object.begin(); member != object.end(); ++member)
        *member = zeroed(*member);
    QJsonArray array = value.toArray();
    for (auto item = array.begin(); item != array.end(); ++item)
        *item = zeroed(*item);
    return value.isObject() ? QJsonValue(object)
        : value.isArray()   ? QJsonValue(array)
        : value.isDouble()  ? QJsonValue(0)
                            : value;
}

QJsonObject elementsOf(const QJsonArray &records, const QJsonValue &name)
{
    for (const QJsonValue &record : records) {
        if (record["name"] == name)
            return record["value"].toObject();
    }
    return {};
}

/** The records as they are where the elements that were taught hold no position. */
QJsonArray withoutPosition(QJsonArray records, const QJsonArray &before)
{
    for (auto item = records.begin(); item != records.end(); ++item) {
        QJsonObject record = item->toObject();
        QJsonObject value = record["value"].toObject();
        const QJsonObject old = elementsOf(before, record["name"]);
        for (auto level = value.begin(); level != value.end(); ++level) {
            if (*level != old[level.key()])
                *level = zeroed(*level);
        }
        record["value"] = value;
        *item = record;
    }
    return records;
}

const QByteArray oldFile = "{\"what\": \"an older save left\"}";

} // namespace

/** Every edit of points and variables, broken at every step, and the next one after that. */
class TestEditFaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        ignoreOffscreenNoise();
        std::signal(SIGXFSZ, SIG_IGN);
        LogCapture log;
        m_site = std::make_unique<RobotSite>();
        QCOMPARE(api().createProject("cell", "", true), 0);
        QTRY_VERIFY(QFileInfo("controller/hmi/cell").isDir());
        QTRY_COMPARE(m("tavik.project.cur_task")->getStr(""), QString("task0"));
        m_secrets = RobotSite::read("controller/rsyncd.secrets");
        for (const Edit &edit : edits) {
            prepare();
            QVERIFY2(edit.run(api()), edit.name);
            checkFiles(kindOf(edit));
            QTRY_COMPARE(m_site->simulator.count("project.variable"), 1);
            m_done.append(stored(kindOf(edit)));
        }
    }

    void everyEditAtEveryBreak_data()
    {
        QTest::addColumn<int>("edit");
        QTest::addColumn<int>("fault");
        for (int fault = 0; fault < int(std::size(breaks)); ++fault) {
            for (int edit = 0; edit < int(std::size(edits)); ++edit) {
                if (breaks[fault].name != noPosition || edits[edit].way == Taught)
                    QTest::addRow("%s, %s", breaks[fault].name, edits[edit].name) << edit << fault;
            }
        }
    }

    void everyEditAtEveryBreak()
    {
        QFETCH(int, edit);
        QFETCH(int, fault);
        const Edit &now = edits[edit];
        const QByteArray what = breaks[fault].name;
        const QString kind = kindOf(now);
        LogCapture log;
        prepare();
        const QJsonArray before = stored(kind);
        breaks[fault].apply(*m_site);
        const bool result = now.run(api());
        limitFiles(RLIM_INFINITY);

        const Reached reached = breaks[fault].reached[now.way];
        QCOMPARE(result, reached == Controller);
        QJsonArray expected = reached == Nowhere ? before : m_done.at(edit);
        if (now.way == Taught && what == noPosition)
            expected = withoutPosition(expected, before);
        QCOMPARE(stored(kind), expected);
        if (reached >= File)
            QCOMPARE(onPanel(kind), RobotSite::document(kind));
        else
            QCOMPARE(RobotSite::read(RobotSite::panelFile(kind)), oldFile);
        QCOMPARE(RobotSite::read(RobotSite::controllerFile(kind)),
                 reached == Controller ? RobotSite::read(RobotSite::panelFile(kind)) : oldFile);
        const bool unheard = what == "update refused with a code"
            || what == "update refused with a reason" || what == "hub lost at the update";
        if (unheard && (now.way == Told || now.way == Taught))
            QTRY_VERIFY(toldOperator().contains("did not take over the change to point"));

        mend(breaks[fault].dropsLinks);
        const bool isNext = reached != Controller || breaks[fault].dropsLinks;
        if (isNext) {
            QVERIFY(editSpare(kind));
            checkFiles(kind);
            QCOMPARE(stored(kind), expected);
        }
        // Once each: nothing is tried again, and nothing that was swallowed comes later.
        const int unsaid = what == "hub down" || (what == "controller down" && reached == Nowhere);
        QTRY_COMPARE(m_site->simulator.count("project.variable"), (isNext ? 2 : 1) - unsaid);
    }

    void editsWithinOneSecondAllArrive()
    {
        LogCapture log;
        prepare();
        for (int i = 1; i < 6; ++i) {
            QVERIFY(api().setPointCartData("P", {double(i), 2, 3, 4, 5, 6}, ""));
            QVERIFY(api().updateVarData("count", i));
            checkFiles("point");
            checkFiles("var");
        }
    }

    /** One failure must not lead to the next. */
    void cleanup()
    {
        limitFiles(RLIM_INFINITY);
        if (QTest::currentTestFailed())
            mend(true);
    }

    void cleanupTestCase() { m_site.reset(); }

private:
    static InterfaceManager &api() { return *zeplet::zepletInterface(); }
    static QString kindOf(const Edit &edit) { return edit.way == Variable ? "var" : "point"; }

    /** The same points, variables and files for each row. */
    void prepare()
    {
        RobotSite::records("point")->importFromJson(nullptr, points(), true, true, true);
        RobotSite::records("var")->importFromJson(nullptr, variables(), true, true, true);
        for (const char *kind : {"point", "var"}) {
            RobotSite::write(RobotSite::panelFile(kind), oldFile);
            RobotSite::write(RobotSite::controllerFile(kind), oldFile);
        }
        m_site->simulator.control("count reset");
        m_site->banners.clear();
    }

    void mend(bool links)
    {
        m_site->simulator.control("fault clear");
        RobotSite::write("controller/rsyncd.secrets", m_secrets);
        m_site->leadRsync("socat - TCP:127.0.0.1:%1");
        if (links)
            m_site->link();
    }

    static bool editSpare(const QString &kind)
    {
        return kind == "var" ? api().updateVarData("spare", 2)
                             : api().setPointCartData("spare", pose, "");
    }

    /** Both files say what the data store says. */
    static void checkFiles(const QString &kind)
    {
        QCOMPARE(onPanel(kind), RobotSite::document(kind));
        QCOMPARE(RobotSite::read(RobotSite::controllerFile(kind)),
                 RobotSite::read(RobotSite::panelFile(kind)));
    }

    /** What the data store has of that kind, but for the spare one and for times. */
    static QJsonArray stored(const QString &kind)
    {
        QJsonArray records;
        for (const QJsonValue &record : RobotSite::records(kind)->exportToJson().toArray()) {
            QJsonObject object = record.toObject();
            object.remove("description");
            if (object["name"] != "spare")
                records.append(object);
        }
        return records;
    }

    static QJsonObject onPanel(const QString &kind)
    {
        return QJsonDocument::fromJson(RobotSite::read(RobotSite::panelFile(kind))).object();
    }

    QString toldOperator() const
    {
        QStringList texts;
        for (const QVariantList &banner : m_site->banners)
            texts.append(banner.at(2).toString());
        return texts.join(' ');
    }

    std::unique_ptr<RobotSite> m_site;
    QByteArray m_secrets;
    QVector<QJsonArray> m_done; ///< what each edit makes of the records
};

QTEST_MAIN(TestEditFaults)
#include "tst_editfaults.moc"
