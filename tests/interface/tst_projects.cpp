#include "fakecontroller.h"
#include "logcapture.h"
#include "storewrites.h"
#include "testcolumns.h"

#include <brisa/settingmanager.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace zeplet;

namespace
{

const QString autoloadCommand = "project.overview.set_autoload";

void setWorkspace(const QString &path)
{
    brisa::ManagerHelper::instance()->settingManager()->set("workspace", path);
}

QJsonObject readInfo(const QString &project)
{
    QFile file(project + "/projectinfo.json");
    return file.open(QFile::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object()
                                      : QJsonObject();
}

const QStringList switched {"_blocking_toolwobj_frame_sync=true", "cur_project=%1", "tool=tool0",
                            "wobj=wobj0", "_blocking_toolwobj_frame_sync=false"};

QStringList switchedTo(const QString &project)
{
    return QStringList(switched).replaceInStrings("%1", project);
}

} // namespace

class TestProjects : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_fake.setUp(true);
        m_fake.hub.answer("hub.command", 0);
        setWorkspace(m_dir.filePath(QTest::currentDataTag() ? QTest::currentDataTag()
                                                            : QTest::currentTestFunction()));
        m("brisa.r.id")->set(nullptr, "robot 7");
        m("tavik.project")->importFromJson(nullptr, QJsonObject(), true, true, false);
        m("tavik.toolpage.tool")->set(nullptr, "tool3");
        m("tavik.toolpage.wobj")->set(nullptr, "wobj3");
        m_writes.take();
    }

    void names_data()
    {
        const auto row = testcolumns<QString, int>("name", "made");
        row("plain", "weld", 0);
        row("blanks around", " \t weld ", 0);
        row("for a shell", R"(a b;$(c)`d`"e"'f'%1%20)", 0);
        row("not latin", QString::fromUtf8("项目 № 1"), 0);
        row("255 bytes", QString(255, 'x'), 0);
        row("256 bytes", QString(256, 'x'), -3);
        row("empty", " ", -1);
        row("scratch", "_temp", -1);
        row("default", "dolmen_default", -1);
        row("this", ".", -1);
        row("above", " .. ", -1);
        row("path", "a/b", -1);
        row("line end", "a\nb", -1);
        row("nothing in UTF-8", QString(QChar(0xd800)) + 'a', -1);
    }

    void names()
    {
        QFETCH(QString, name);
        QFETCH(int, made);
        LogCapture log;
        auto *manager = zepletInterface();
        QCOMPARE(manager->createProject(name, "50 % \"done\"", true), made);
        const QString path = m_dir.filePath(QTest::currentDataTag()) + "/robot 7/";
        if (made == 0) {
            QCOMPARE(manager->getProjectList(), QStringList(name.trimmed()));
            QCOMPARE(manager->getCurProject(), "robot 7/" + name.trimmed());
            const QJsonObject info = readInfo(path + name.trimmed());
            QCOMPARE(info.keys(), QStringList({"create_time", "description"}));
            QCOMPARE(info["description"].toString(), QString("50 % \"done\""));
            const auto time
                = QDateTime::fromString(info["create_time"].toString(), "yyyy-MM-dd hh:mm:ss");
            QVERIFY(qAbs(time.secsTo(QDateTime::currentDateTime())) < 60);
            QCOMPARE(manager->createProject(name, QString(), true), -2);
            QCOMPARE(manager->removeProject(name), 0);
            QVERIFY(QDir(path).isEmpty());
            return;
        }
        const QString shown = QString::fromUtf8(name.toUtf8());
        const QString problem
            = made == -1 ? QString("invalid project name=") : "mkpath failed, path=" + path;
        QVERIFY(log.ofLevel("E").contains("createProject: " + problem + shown));
        QCOMPARE(m_writes.take(), QStringList());
        if (made == -1 && name != "dolmen_default") {
            QCOMPARE(manager->changeProject(name), -1);
            QCOMPARE(manager->removeProject(name), -1);
        }
        QVERIFY(manager->getProjectList().isEmpty());
    }

    void creatingAndOpening()
    {
        auto *manager = zepletInterface();
        QCOMPARE(manager->createProject("a", "first", false), 0);
        QCOMPARE(m_writes.take(), QStringList("refresh_project="));
        m("tavik.project.project_info.description")->set(nullptr, "old");
        m_writes.take();
        QCOMPARE(manager->createProject("b", "second", true), 0);
        QCOMPARE(m_writes.take(),
                 QStringList({"description=", "description=second"}) + switchedTo("robot 7/b")
                     + QStringList({"convert_signal=true", "refresh_project="}));

        QCOMPARE(manager->changeProject(" a "), 0);
        QCOMPARE(m_writes.take(), switchedTo("robot 7/a") + QStringList("convert_signal=true"));
        QCOMPARE(manager->changeProject("a"), 0);
        QCOMPARE(m_writes.take(), QStringList({"cur_project=robot 7/a", "convert_signal=true"}));

        m("tavik.toolpage.tool")->set(nullptr, "g_tool_1");
        m("tavik.toolpage.wobj")->set(nullptr, "G_wobj_1");
        m_writes.take();
        QCOMPARE(manager->changeProject("b"), 0);
        QVERIFY(!m_writes.take().contains("tool=tool0"));
        QCOMPARE(manager->getCurTool() + manager->getCurWobj(), QString("g_tool_1wobj0"));

        LogCapture log;
        QCOMPARE(manager->changeProject("c"), -2);
        QCOMPARE(manager->changeProject("dolmen_default"), -2);
        QVERIFY(QDir().mkpath(m_dir.filePath("creatingAndOpening/robot 7/dolmen_default")));
        QVERIFY(QDir().mkpath(m_dir.filePath("creatingAndOpening/robot 7/_temp")));
        m_writes.take();
        QCOMPARE(manager->changeProject("dolmen_default"), 0);
        QStringList projects = manager->getProjectList();
        projects.sort();
        QCOMPARE(projects, QStringList({"a", "b"}));
    }

    void removing_data()
    {
        const auto row = testcolumns<QString, QString, bool, QStringList>("open", "autoload",
                                                                          "answers", "writes");
        const QStringList refreshed {"refresh_project="};
        row("another", "robot 7/b", "ab/x", true, refreshed);
        row("of another robot", "robot 8/a", "", true, refreshed);
        row("open", "robot 7/a", "b/a", true, switchedTo("") + refreshed);
        row("autoload", "", "a/main", true, QStringList("autoload_prj_path=") + refreshed);
        row("both", "robot 7/a", "a", true,
            QStringList("autoload_prj_path=") + switchedTo("") + refreshed);
        row("refused", "", "a", false, refreshed);
    }

    void removing()
    {
        QFETCH(QString, open);
        QFETCH(QString, autoload);
        QFETCH(bool, answers);
        QFETCH(QStringList, writes);
        QCOMPARE(zepletInterface()->createProject("a", QString(), false), 0);
        const QString path = m_dir.filePath(QTest::currentDataTag()) + "/robot 7/a";
        m("tavik.project.cur_project")->set(nullptr, open);
        m("tavik.project.autoload_prj_path")->set(nullptr, autoload);
        m_writes.take();
        bool wasThere = false; // when the hub was asked to drop the task
        m_fake.hub.script("hub.command", [&](const rpc::Message &request) {
            wasThere = QDir(path).exists();
            return QVector<QByteArray> {
                rpc::encode(rpc::Message::refusal(request.id, rpc::refused, "no task"))};
        });
        answers ? m_fake.controller.answer(autoloadCommand, true)
                : m_fake.controller.refuse(autoloadCommand, "no");
        const int asked = m_fake.controller.received(autoloadCommand);

        LogCapture log;
        QCOMPARE(zepletInterface()->removeProject(" a "), 0);
        QVERIFY(wasThere && !QDir(path).exists());
        QCOMPARE(m_writes.take(), writes);
        const QJsonObject command = m_fake.hub.last("hub.command").params.toObject();
        QCOMPARE(command["key"].toString(), QString("project.remove_task"));
        QCOMPARE(command["value"].toObject(), QJsonObject({{"name", "a"}}));
        QVERIFY(log.ofLevel("I").contains("removeProject: removed " + path));
        const bool isAutoload = autoload.startsWith("a") && !autoload.startsWith("ab");
        QCOMPARE(m_fake.controller.received(autoloadCommand) - asked, isAutoload ? 1 : 0);
        if (isAutoload)
            QCOMPARE(m_fake.controller.last(autoloadCommand).params,
                     QJsonValue(QJsonObject {{"autoload_prj_path", ""}}));
    }

    // Nobody may make or remove these, not even root.
    void whatTheDiskRefuses()
    {
        setWorkspace("/proc");
        m("brisa.r.id")->set(nullptr, "self");
        m("tavik.project.cur_project")->set(nullptr, "self/attr");
        m("tavik.project.autoload_prj_path")->set(nullptr, "attr/x");
        m_writes.take();
        LogCapture log;
        auto *manager = zepletInterface();
        QCOMPARE(manager->createProject("new", QString(), true), -3);
        QCOMPARE(manager->createProject("attr", QString(), true), -2);
        QCOMPARE(manager->createProject("status", QString(), true), -2);
        QCOMPARE(manager->changeProject("status"), -2);
        QCOMPARE(manager->removeProject("status"), -2);
        QCOMPARE(manager->removeProject("attr"), -3);
        QCOMPARE(m_writes.take(), QStringList());
        QCOMPARE(log.ofLevel("E").filter("Project: "),
                 QStringList({"createProject: mkpath failed, path=/proc/self/new",
                              "createProject: already exists, path=/proc/self/attr",
                              "createProject: already exists, path=/proc/self/status",
                              "changeProject: project not found, path=/proc/self/status",
                              "removeProject: project not found, path=/proc/self/status",
                              "removeProject: removeRecursively failed, path=/proc/self/attr"}));

        // The root of the file system is no workspace.
        setWorkspace(QString());
        m("brisa.r.id")->set(nullptr, "proc");
        QCOMPARE(manager->changeProject("self"), -2);
        QCOMPARE(manager->removeProject("self"), -2);
        QVERIFY(manager->getProjectList().isEmpty());
    }

    // The longest path that a directory may have leaves none for a file in it.
    void anUnwritableInfoLeavesNothing()
    {
        QString workspace = m_dir.filePath("deep");
        while (workspace.size() < 3800)
            workspace += '/' + QString(200, 'd');
        setWorkspace(workspace + '/' + QString(4080 - workspace.size() - 12, 'd'));
        LogCapture log;
        QCOMPARE(zepletInterface()->createProject("a", QString(), true), -3);
        QCOMPARE(log.ofLevel("E").filter("createProject: projectinfo.json").size(), 1);
        QVERIFY(zepletInterface()->getProjectList().isEmpty());
        QCOMPARE(zepletInterface()->changeProject("a"), -2);
        QCOMPARE(m_writes.take(), QStringList());
    }

    void linksAreNeverFollowed()
    {
        auto *manager = zepletInterface();
        QVERIFY(QDir().mkpath(m_dir.filePath("outside/kept")));
        QCOMPARE(manager->createProject("a", QString(), false), 0);
        const QString robot = m_dir.filePath("linksAreNeverFollowed/robot 7/");
        const QString outside = m_dir.filePath("outside");
        for (const char *link : {"link", "a/link"})
            QVERIFY(QFile::link(outside, robot + link));
        QVERIFY(QFile::link("/nowhere/at all", robot + "dangling"));
        LogCapture log;
        QCOMPARE(manager->changeProject("link"), 0);
        QCOMPARE(manager->changeProject("dangling"), -2);
        QCOMPARE(manager->createProject("dangling", QString(), false), -2);
        for (const char *name : {"link", "a", "dangling"})
            QCOMPARE(manager->removeProject(name), 0);
        QVERIFY(QDir(robot).isEmpty(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot));
        QVERIFY(QDir(outside + "/kept").exists());
    }

    void anUnknownRobotIsLocalhost()
    {
        auto *manager = zepletInterface();
        for (const char *id : {"", ".", "..", "../x", "a\tb"}) {
            m("brisa.r.id")->set(nullptr, id);
            QCOMPARE(manager->createProject("a", QString(), true), 0);
            QCOMPARE(manager->getCurProject(), QString("LOCALHOST/a"));
            QVERIFY(QDir(m_dir.filePath("anUnknownRobotIsLocalhost/LOCALHOST/a")).exists());
            LogCapture log;
            QCOMPARE(manager->removeProject("a"), 0);
        }
    }

private:
    QTemporaryDir m_dir;
    FakeController m_fake;
    StoreWrites m_writes {{"tavik.project.project_info.description",
                           "tavik.project._blocking_toolwobj_frame_sync",
                           "tavik.project.cur_project", "tavik.toolpage.tool",
                           "tavik.toolpage.wobj", "tavik.project.convert_signal",
                           "tavik.project.autoload_prj_path", "tavik.project.refresh_project"}};
};

QTEST_MAIN(TestProjects)
#include "tst_projects.moc"
