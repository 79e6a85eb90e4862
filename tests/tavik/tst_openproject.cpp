#include "robotpeer.h"

using ostrel::ModuleObject;

/** Which project is open, the list of projects, and where they lie. */
class TestOpenProject : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_peer = std::make_unique<RobotPeer>();
        m_peer->write("ws/R1/cell/point.json", R"({"version": "0.2", "points": [{"name": "P"}]})");
        m_peer->write("ws/R1/cell/projectinfo.json", R"({"description": "d", "create_time": "t"})");
    }

    void cleanup() { m_peer.reset(); }

    void templates()
    {
        QCOMPARE(m("tavik.project.point.default")->toJsonText(false),
                 QByteArray(R"({"id":0,"name":"","property":"cart","pers":"false",)"
                            R"("description":"","func":"","task":"","d":[0,0,0],"value":{}})"));
        QCOMPARE(m("tavik.project.var.default")->toJsonText(false),
                 QByteArray(R"({"id":0,"name":"","type":"","value":{},"pers":false,)"
                            R"("description":""})"));
    }

    void autoload()
    {
        const struct {
            const char *path, *before, *after;
        } rows[] = {{"cell/main", "", "R1/cell"},
                    {"cell", "", "R1/cell"},
                    {"gone/main", "", ""},
                    {"../R1", "", ""},
                    {"", "", ""},
                    {"_temp/x", "", ""},
                    {"cell", "R1/other", "R1/other"}};
        for (const auto &[path, before, after] : rows) {
            cleanup();
            init();
            QDir().mkpath("ws/R1/_temp");
            m("brisa.r.id")->set(nullptr, "R1");
            m("tavik.project.cur_project")->set(nullptr, before);
            m_peer->controller.answer("project.overview.get",
                                      QJsonObject {{"autoload_prj_path", path}, {"cur_task", "t"}});
            m_peer->setUp(true);
            QTRY_COMPARE(m("tavik.project.cur_task")->getStr(""), QString("t"));
            QCOMPARE(current(), QString(after));
            QCOMPARE(points(), after == QString("R1/cell") ? 1 : 0);
        }
    }

    void closedProject()
    {
        openCell();
        QCOMPARE(points(), 1);
        QCOMPARE(m("tavik.project.project_info.description")->getStr(""), QString("d"));
        m("tavik.project.cur_project")->set(nullptr, "");
        QCOMPARE(points(), 0);
        QVERIFY(!m("tavik.project.project_info")->contains("description"));
    }

    /** The saves of another robot, workspace or project must not get these points. */
    void nothingIsSavedInAnotherPlace()
    {
        const auto changeRobot = [] { m("brisa.r.id")->set(nullptr, "R2"); };
        const auto changeWorkspace = [] { RobotPeer::settings()->set("workspace", "ws2"); };
        for (const auto &change : {std::function<void()>(changeRobot), {changeWorkspace}}) {
            for (const char *project : {"R1/cell", ""}) {
                cleanup();
                init();
                openCell();
                m("tavik.project.cur_project")->set(nullptr, project);
                m("tavik.project.point._list")->set(nullptr, "#0.name", "Q", true);
                change();
                QCOMPARE(current(), QString());
                QCOMPARE(points(), 0);
                const QString told = m_peer->told();
                QVERIFY2(told.contains(*project ? "The project R1/cell was closed"
                                                : "stays in ws/R1/_temp"),
                         qPrintable(told));
            }
        }
        openCell();
        m("brisa.r.id")->set(nullptr, "R1");
        QString seen;
        connect(m("tavik.project.cur_project"), &ModuleObject::changed, m_peer->data.get(),
                [&] { seen = m("tavik.project.point._list.#0.name")->getStr("-"); });
        m_peer->write("ws2/R1/other/point.json",
                      R"({"version": "0.2", "points": [{"name": "O"}]})");
        m("tavik.project.cur_project")->set(nullptr, "R1/other");
        QCOMPARE(seen, QString("O"));
    }

    void namesThatLeaveTheWorkspace()
    {
        m_peer->write("ws/point.json", R"({"version": "0.2", "points": [{}]})");
        m("brisa.r.id")->set(nullptr, "R1");
        for (const char *name : {"R1/..", "..", "R1/a\nb"}) {
            openCell();
            m("tavik.project.cur_project")->set(nullptr, name);
            m("tavik.project.convert_signal")->set(nullptr, true);
            QCOMPARE(points(), 0);
            QVERIFY(m_peer->told().contains("no plain name"));
        }
    }

    void identities()
    {
        const std::pair<QString, bool> rows[]
            = {{"R1", true},   {"", true},      {"..", false}, {"a/b", false},
               {"   ", false}, {"a\tb", false}, {".", false},  {QString(256, 'x'), false}};
        for (const auto &[identity, usable] : rows) {
            cleanup();
            init();
            m_peer->setIdentity(identity);
            m_peer->setUp(true);
            QCOMPARE(m("brisa.r.id")->getStr("?"), usable ? identity : QString());
            m_peer->notify("system.state", QJsonObject {{"id", identity}, {"power", "on"}});
            m_peer->pass();
            QCOMPARE(m_peer->told().count("can't name a directory"), usable ? 0 : 1);
        }
    }

    void projectList()
    {
        for (const char *name : {"zeta", "Alpha", "_temp", "dolmen_default"})
            QDir().mkpath(QString("ws/R1/") + name);
        m_peer->write("ws/R1/file", "");
        m_peer->write("ws/R1/zeta/projectinfo.json", "{");
        m("brisa.r.id")->set(nullptr, "R1");
        const QByteArray rest = R"({"create_time":"t","description":"d","name":"cell"})";
        QCOMPARE(names(), QStringList({"Alpha", "cell", "zeta"}));
        QCOMPARE(m("tavik.project.project_list.#1")->toJsonText(false), rest);
        QDir().mkpath("ws/R1/later");
        m("tavik.project.refresh_project")->set(nullptr, QVariant());
        QCOMPARE(names(), QStringList({"Alpha", "cell", "later", "zeta"}));
    }

    void workspaceIsNeverEmpty()
    {
        using Settings = brisa::SettingManager;
        Settings *const settings = RobotPeer::settings();
        m_peer->told();
        settings->set("workspace", "  ");
        QCOMPARE(settings->getStr("workspace", ""), QString("ws"));
        QVERIFY(m_peer->told().contains("\"workspace\" is empty: the panel keeps ws"));
        // The same after a restart on settings that lack it, or that a person has damaged.
        settings->set("workspace", "ws2");
        for (const char *file : {"{\"workspace\": \"\"}", "{}"}) {
            m_peer->write("settings.json", file);
            m_peer->data.reset();
            QVERIFY(settings->load("settings.json"));
            m_peer->restart();
            QCOMPARE(settings->getStr("workspace", ""), QString("ws2"));
        }
        settings->load(QString());
    }

private:
    static QString current() { return m("tavik.project.cur_project")->getStr(""); }
    static int points() { return m("tavik.project.point._list")->childCount(); }

    static QStringList names()
    {
        QStringList names;
        for (const QJsonValue &entry : m("tavik.project.project_list")->exportToJson().toArray())
            names.append(entry["name"].toString());
        return names;
    }

    void openCell()
    {
        m("brisa.r.id")->set(nullptr, "R1");
        m("tavik.project.cur_project")->set(nullptr, "R1/cell");
        m("tavik.project.convert_signal")->set(nullptr, true);
    }

    std::unique_ptr<RobotPeer> m_peer;
};

QTEST_GUILESS_MAIN(TestOpenProject)
#include "tst_openproject.moc"
