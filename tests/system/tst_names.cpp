#include "logcapture.h"
#include "offscreen.h"
#include "robotsite.h"

#include <zeplet/sync/synctool.h>

#include <QDirIterator>

using zeplet::InterfaceManager;

namespace
{

const QStringList names {"with two  blanks",
                         "it's \"quoted\"",
                         "a;touch marker",
                         "$(touch marker)",
                         "`touch marker`",
                         "100%1%s%n%%",
                         "点云 工作站",
                         "a.b[0]#1",
                         "--delete",
                         "aXb",
                         "aXX*b",
                         "a*b",
                         "a?b",
                         "a[X]b",
                         "[",
                         "a\\*b",
                         "a\\\\*b\\",
                         "&|<>~\\n",
                         "host:x",
                         QString(255, 'x')};

simulator::Scenario withSignals()
{
    simulator::Scenario scenario;
    for (const QString &name : names)
        scenario.io.list.append({name, simulator::IoSignals::DigitalOut, name, false});
    return scenario;
}

QStringList entries(const QString &path)
{
    return QDir(path).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden, QDir::Name);
}

} // namespace

/** Projects, points, variables and signals of any name, from the panel to the controller and back
 *  into another panel. */
class TestNames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        ignoreOffscreenNoise();
        LogCapture log;
        m_site = std::make_unique<RobotSite>(withSignals());
        // A panel that has to give files to its user, with nobody to ask for that.
        QVERIFY(QFile::remove("mark") && QDir().mkpath("bin"));
        RobotSite::write("bin/sudo", "#!/bin/sh\ncat >/dev/null\n");
        QFile::setPermissions("bin/sudo", QFile::ReadOwner | QFile::ExeOwner);
        qputenv("PATH", "bin:" + qgetenv("PATH"));
    }

    void fromOnePanelToAnother()
    {
        LogCapture log;
        for (const QString &name : names)
            create(name);
        QDir().mkpath("fresh/SIM-0001");
        for (const QString &name : names)
            QVERIFY2(zeplet::SyncTool::instance()->pullFile("hmi/" + name, "fresh/SIM-0001/" + name,
                                                            false, false),
                     qPrintable(log.take().join('\n')));
        RobotSite::setWorkspace("fresh");
        m_site->start();
        for (const QString &name : names) {
            QCOMPARE(api().changeProject(name), 0);
            QCOMPARE(api().getPointNameList(), QStringList(name));
            QCOMPARE(api().getVarDataList(""), QStringList(name));
            for (const char *kind : {"point", "var"})
                QCOMPARE(RobotSite::document(kind), m_documents.value(kind + name));
        }
        QCOMPARE(entries(".").join('|'),
                 QString("bin|controller|fresh|last-workspace.json|log|panel|tools"));
        QStringList sorted = names;
        sorted.sort();
        QStringList onController = entries("controller/hmi");
        QVERIFY(onController.removeOne("_temp"));
        for (QStringList found : {entries("panel/SIM-0001"), onController}) {
            found.sort();
            QCOMPARE(found, sorted);
        }
        QDirIterator all(".", {"marker"}, QDir::AllEntries, QDirIterator::Subdirectories);
        QVERIFY(!all.hasNext());
    }

    void noPlainNames()
    {
        LogCapture log;
        RobotSite::setWorkspace("panel");
        const QStringList top = entries(".");
        const QStringList projects = entries("panel/SIM-0001");
        for (const QString name : {"", " ", ".", "..", "../x", "a/b", "/tmp/x", "a\nb", "a\x7f"}) {
            QCOMPARE(api().createProject(name, "", true), -1);
            QCOMPARE(api().changeProject(name), -1);
            QCOMPARE(api().removeProject(name), -1);
        }
        QCOMPARE(api().createProject(QString(256, 'x'), "", true), -3);
        for (const QString name : {".", "..", "a\nb", "a\x7f"}) {
            m("tavik.project.cur_project")->set(nullptr, QString("SIM-0001/" + name));
            QVERIFY(!api().createPoint("P", false, false));
            QVERIFY(!api().addVarData("v", 1, true));
        }
        QCOMPARE(entries("."), top);
        QCOMPARE(entries("panel"), QStringList("SIM-0001"));
        QCOMPARE(entries("panel/SIM-0001"), projects);
    }

    void cleanupTestCase() { m_site.reset(); }

private:
    static InterfaceManager &api() { return *zeplet::zepletInterface(); }

    /** The name for a project, and in it for a point and a variable; also for a signal. */
    void create(const QString &name)
    {
        QCOMPARE(api().createProject(name, name, true), 0);
        QTRY_VERIFY2(QFileInfo("controller/hmi/" + name).isDir(), qPrintable(name));
        QVERIFY(api().createPoint(name, false, false));
        QVERIFY(api().addCurrentPoint(name, false, "tool0", "wobj0", ""));
        QVERIFY(api().addVarData(name, name, true));
        QCOMPARE(api().getVarObjDataByName(name)["value"].toObject()["[0][0][0]"],
                 QJsonValue(name));
        for (const QString kind : {"point", "var"}) {
            const QByteArray file = RobotSite::read(RobotSite::panelFile(kind));
            QVERIFY2(RobotSite::read(RobotSite::controllerFile(kind)) == file, qPrintable(name));
            m_documents[kind + name] = QJsonDocument::fromJson(file).object();
        }
        const auto simulated = [&](simulator::Simulator &s) {
            return s.points().contains(name) && s.io().value(name) == QJsonValue(true);
        };
        QCOMPARE(api().setIOValue(name, simulator::IoSignals::DigitalOut, true), 0);
        QTRY_VERIFY2(m_site->simulator.call(simulated), qPrintable(name));
        QTRY_VERIFY(api().getIOValue(name) && api().getIOHash().value(name).toBool());
    }

    std::unique_ptr<RobotSite> m_site;
    QHash<QString, QJsonObject> m_documents; ///< by kind and name, as they were saved
};

QTEST_MAIN(TestNames)
#include "tst_names.moc"
