#include "project.h"

#include "../ostrel/points.h"
#include "desktoptools.h"

#include <brisa/managerhelper.h>
#include <brisa/settingmanager.h>
#include <ostrel/moduleobject.h>
#include <zeplet/interface/interfacemanager.h>

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <memory>

namespace
{
std::unique_ptr<Project> project;

void require(bool done, const char *what)
{
    if (!done)
        qFatal("the benchmark needs %s", what);
}
} // namespace

Project::Project()
    : m_home(QDir::currentPath())
    , m_controller({m_directory.filePath("controller"), {}})
{
    pointRecords();
    QString error;
    require(m_controller.open(&error), qPrintable(error));
    if (m_controller.port() != simulator::FileServer::kStandardPort) {
        qputenv("RSYNC_CONNECT_PROG",
                "socat - TCP:127.0.0.1:" + QByteArray::number(m_controller.port()));
    }
    require(QDir(m_controller.root()).mkpath("bench"), "a directory on the controller");
    QDir::setCurrent(m_directory.path());
    panel::DesktopTools(m_directory.path()).provide();
    require(QDir().mkpath("ends"), "a directory");
    require(QFile::link("/bin/true", "ends/rsync"), "a link");

    brisa::ManagerHelper *helper = brisa::ManagerHelper::instance();
    helper->setReady(true);
    helper->settingManager()->set("workspace", m_directory.path());
    helper->settingManager()->set("server.ip", "127.0.0.1");
    m("tavik.project.cur_project")->set(nullptr, "LOCALHOST/bench");
}

Project::~Project()
{
    QDir::setCurrent(m_home);
    m_controller.close();
}

Project &Project::instance()
{
    if (!project)
        project.reset(new Project);
    return *project;
}

void Project::close()
{
    project.reset();
}

// As the host does it: from the text of the file.
void Project::load(int points)
{
    QJsonArray records = pointRecords();
    while (records.size() > points)
        records.removeLast();
    const QByteArray text = QJsonDocument(records).toJson();
    records = {};
    m("tavik.project.point._list")->fromJsonText(nullptr, text);
    m_points = points;
}

void Project::prepare(int points)
{
    if (m_points == points)
        return;
    load(points);
    edit();
}

void Project::edit()
{
    ++m_edits;
    const double offset = m_edits / 1000.0;
    const QVector<double> pose {100.125 + offset, -200.25 - offset, 300.5, 10.5, 20.25, offset};
    const QString name = QString("p%1").arg(m_edits * 7919 % m_points);
    require(zeplet::zepletInterface()->setPointCartData(name, pose, QString()),
            "an edit to succeed");
}

QString Project::file() const
{
    return m_directory.filePath("LOCALHOST/bench/point.json");
}

QString Project::remotePath()
{
    return QStringLiteral("hmi/bench/point.json");
}

Project::WithoutRsync::WithoutRsync()
{
    // Behind the panel's tools, before the system's.
    const int end = m_path.indexOf(':');
    qputenv("PATH",
            m_path.left(end + 1) + QDir::current().filePath("ends").toUtf8() + m_path.mid(end));
}

Project::WithoutRsync::~WithoutRsync()
{
    qputenv("PATH", m_path);
}
