#pragma once

#include "simulatorfixture.h"

#include <brisa/controllermanager.h>
#include <brisa/managerhelper.h>
#include <brisa/settingmanager.h>
#include <nexo/nexo.h>
#include <ostrel/moduleobject.h>
#include <tavik/robotdata.h>
#include <zeplet/interface/interfacemanager.h>
#include <zeplet/sync/synclimits_p.h>

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

/** A panel without a window and a simulated controller with an rsync daemon, each with a directory
 *  of its own in the current one: "panel" and "controller". */
class RobotSite
{
public:
    explicit RobotSite(const simulator::Scenario &scenario = {})
        : simulator(withFiles(scenario))
    {
        QDir().mkpath("panel");
        QDir().mkpath("tools");
        QFile::link(QStandardPaths::findExecutable("rsync"), "tools/rsync.exe");
        write("mark", "");
        zeplet::syncLimits().controllerMark = "mark";
        auto *const host = brisa::ManagerHelper::instance();
        host->setReady(true);
        host->settingManager()->set("server.ip", "127.0.0.1");
        setWorkspace("panel");
        leadRsync("socat - TCP:127.0.0.1:%1");
        start();
    }

    ~RobotSite()
    {
        brisa::ManagerHelper::instance()->controllerManager()->close();
        nexo()->close();
        data.reset();
        QDir::setCurrent("/");
    }

    static void setWorkspace(const QString &directory)
    {
        brisa::ManagerHelper::instance()->settingManager()->set("workspace", directory);
    }

    /** The panel as after a start of its program: it knows what its files say. */
    void start()
    {
        data.reset();
        for (const char *tree : {"tavik", "brisa"})
            m(tree)->remove(nullptr, false);
        data = std::make_unique<tavik::RobotData>();
        link();
    }

    static bool isControllerUp()
    {
        return brisa::ManagerHelper::instance()->controllerManager()->isConnected();
    }
    static bool isHubUp() { return nexo()->mobj()->r("connected")->getBool(false); }

    /** Fresh links: one that was lost again and again would let more and more time pass. */
    void link()
    {
        brisa::ManagerHelper::instance()->controllerManager()->open(simulator.controllerUrl());
        nexo()->open(simulator.hubUrl());
        QTRY_VERIFY(isControllerUp() && isHubUp() && robot() == "SIM-0001");
    }

    static QString robot() { return m("brisa.r.id")->getStr(QString()); }

    /** The shell command through which rsync reaches the daemon, whose port is %1. */
    void leadRsync(const QString &command)
    {
        qputenv("RSYNC_CONNECT_PROG", command.arg(simulator.rsyncPort()).toUtf8());
    }

    static void write(const QString &path, const QByteArray &bytes)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }

    static QByteArray read(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
    }

    /** Where the open project's file of that kind lies on the panel, and on the controller. */
    static QString panelFile(const QString &kind)
    {
        return QString("panel/%1/%2/%3.json").arg(robot(), project(), kind);
    }
    static QString controllerFile(const QString &kind)
    {
        return QString("controller/hmi/%1/%2.json").arg(project(), kind);
    }
    static QString project()
    {
        return m("tavik.project.cur_project")->getStr(QString()).section('/', 1);
    }

    static ostrel::ModuleObject *records(const QString &kind)
    {
        return m("tavik.project." + kind + "._list");
    }

    /** The file of that kind of records, as the data store has them. */
    static QJsonObject document(const QString &kind)
    {
        return {{"version", "0.2"},
                {kind == "point" ? "points" : "variables", records(kind)->exportToJson()}};
    }

    // In memory where that can be had: the disk's own sync would take most of the time.
    QTemporaryDir directory {(QFileInfo("/dev/shm").isWritable() ? "/dev/shm" : QDir::tempPath())
                             + QString("/robotsite-XXXXXX")};
    SimulatorFixture simulator;
    QSignalSpy banners {brisa::ManagerHelper::instance(), &brisa::ManagerHelper::logThrown};
    std::unique_ptr<tavik::RobotData> data;

private:
    simulator::Scenario withFiles(simulator::Scenario scenario)
    {
        QDir::setCurrent(directory.path());
        scenario.files = {directory.filePath("controller"), 0};
        return scenario;
    }
};
