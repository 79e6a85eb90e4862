#include <zeplet/interface/interfacemanager.h>

#include <nexo/nexo.h>
#include <ostrel/modulemanager.h>
#include <ostrel/moduleobject.h>
#include <zeplet/interface/hostmanagers_p.h>
#include <zeplet/interface/projectpaths_p.h>
#include <zeplet/log/hostlines_p.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <filesystem>

namespace zeplet
{

namespace
{

enum Result { Done = 0, InvalidName = -1, WrongState = -2, DiskFailure = -3 };

constexpr int answerTimeoutMs = 1600;
const QString scratchProject = QStringLiteral("_temp");
const QString defaultProject = QStringLiteral("dolmen_default");
const QString curProjectKey = QStringLiteral("tavik.project.cur_project");
const QString autoloadKey = QStringLiteral("tavik.project.autoload_prj_path");

QString storedText(const QString &key)
{
    return m(key, nullptr)->getStr(QString());
}

// The name where it is one that may be opened or removed; empty otherwise.
QString projectName(const QString &name)
{
    const QString trimmed = name.trimmed();
    return isPlainName(trimmed) && trimmed != scratchProject ? trimmed : QString();
}

// Without a workspace the paths would lie at the root of the file system: nothing there is ours.
bool hasWorkspace()
{
    return !workspaceDirectory().isEmpty();
}

bool isProject(const QString &path)
{
    return hasWorkspace() && QFileInfo(path).isDir();
}

// A link whose target is gone, too: it can be removed, and nothing can take its place.
bool isLink(const QString &path)
{
    return hasWorkspace() && QFileInfo(path).isSymLink();
}

bool makeDirectory(const QString &path)
{
    return hasWorkspace() && QDir().mkpath(path);
}

// Takes away a link and leaves its target, both for the path itself and for what lies below.
bool removeTree(const QString &path)
{
    std::error_code error;
    std::filesystem::remove_all(QFile::encodeName(path).constData(), error);
    return !error;
}

QJsonObject describe(const QString &description)
{
    const QString now
        = QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd hh:mm:ss"));
    return {{QStringLiteral("description"), description}, {QStringLiteral("create_time"), now}};
}

// Nothing half made stays: the next try may use the name again.
bool writeInfo(const QString &path, const QJsonObject &info)
{
    const QString file = path + QStringLiteral("/projectinfo.json");
    if (ostrel::ModuleManager::writeToJson(file, info, true))
        return true;
    QFile::remove(file);
    QDir().rmdir(path);
    return false;
}

// What belongs to all projects stays selected; what belongs to the one before can't.
void resetSelection(QObject *origin, const QString &key, const QString &globalPrefix,
                    const QString &fallback)
{
    if (!storedText(key).startsWith(globalPrefix))
        m(key, nullptr)->set(origin, fallback);
}

// The flag keeps the host from sending the two resets to the controller as a person's choice.
void switchProject(QObject *origin, const QString &project)
{
    ostrel::ModuleObject *const blocking
        = m(QStringLiteral("tavik.project._blocking_toolwobj_frame_sync"), nullptr);
    blocking->set(origin, true);
    m(curProjectKey, nullptr)->set(origin, project);
    resetSelection(origin, QStringLiteral("tavik.toolpage.tool"), QStringLiteral("g_tool_"),
                   QStringLiteral("tool0"));
    resetSelection(origin, QStringLiteral("tavik.toolpage.wobj"), QStringLiteral("g_wobj_"),
                   QStringLiteral("wobj0"));
    blocking->set(origin, false);
}

void mirrorInfo(QObject *origin, const QJsonObject &info)
{
    const QString child = QStringLiteral("project_info");
    ostrel::ModuleObject *const project = m(QStringLiteral("tavik.project"), nullptr);
    if (!project->contains(child))
        return;
    project->r(child)->clear(origin);
    project->r(child)->importFromJson(origin, info, true, true, true);
}

void tellSwitch(QObject *origin)
{
    m(QStringLiteral("tavik.project.convert_signal"), nullptr)->set(origin, true);
}

void refreshProjects(QObject *origin)
{
    m(QStringLiteral("tavik.project.refresh_project"), nullptr)->set(origin, QVariant());
}

// The answer counts for nothing: a task that the hub does not know need not be dropped.
void removeTask(const QString &name)
{
    ostrel::ModuleObject node(QStringLiteral("tmp"));
    node.set(nullptr, QStringLiteral("name"), name, false);
    nexo()->execCommand(nullptr, QStringLiteral("project.remove_task"), &node);
}

void clearAutoload(QObject *origin, const QString &name)
{
    if (storedText(autoloadKey).section(QLatin1Char('/'), 0, 0) != name)
        return;
    const QString command = QStringLiteral("project.overview.set_autoload");
    controllerManager()
        ->cmdItemMobj(QStringLiteral("request"), command)
        ->set(origin, QStringLiteral("autoload_prj_path"), QString(), true);
    if (controllerManager()->execRequest(command, nullptr, true, answerTimeoutMs))
        m(autoloadKey, nullptr)->set(origin, QString());
}

QString storedName(const QString &project)
{
    return robotDirectoryName() + QLatin1Char('/') + project;
}

int fail(Result result, const QString &problem, const QString &detail)
{
    errorLine() << problem << detail;
    return result;
}

} // namespace

QString InterfaceManager::getCurProject()
{
    return storedText(curProjectKey);
}

QStringList InterfaceManager::getProjectList()
{
    if (!isProject(robotDirectory()))
        return {};
    QStringList names
        = QDir(robotDirectory()).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Unsorted);
    names.removeOne(scratchProject);
    names.removeOne(defaultProject);
    return names;
}

int InterfaceManager::createProject(const QString &name, const QString &description, bool open)
{
    const QString project = projectName(name);
    if (project.isEmpty() || project == defaultProject)
        return fail(InvalidName, QStringLiteral("createProject: invalid project name="), name);
    const QString path = projectDirectory(project);
    if (QFileInfo::exists(path) || isLink(path))
        return fail(WrongState, QStringLiteral("createProject: already exists, path="), path);
    if (!makeDirectory(path))
        return fail(DiskFailure, QStringLiteral("createProject: mkpath failed, path="), path);
    const QJsonObject info = describe(description);
    if (!writeInfo(path, info))
        return fail(DiskFailure,
                    QStringLiteral("createProject: projectinfo.json not written, path="), path);
    if (open) {
        mirrorInfo(this, info);
        switchProject(this, storedName(project));
        tellSwitch(this);
    }
    refreshProjects(this);
    return Done;
}

int InterfaceManager::changeProject(const QString &name)
{
    const QString project = projectName(name);
    if (project.isEmpty())
        return fail(InvalidName, QStringLiteral("changeProject: invalid project name="), name);
    const QString path = projectDirectory(project);
    if (!isProject(path))
        return fail(WrongState, QStringLiteral("changeProject: project not found, path="), path);
    if (getCurProject() == storedName(project))
        m(curProjectKey, nullptr)->set(this, storedName(project));
    else
        switchProject(this, storedName(project));
    tellSwitch(this);
    return Done;
}

int InterfaceManager::removeProject(const QString &name)
{
    const QString project = projectName(name);
    if (project.isEmpty())
        return fail(InvalidName, QStringLiteral("removeProject: invalid project name="), name);
    const QString path = projectDirectory(project);
    if (!isProject(path) && !isLink(path))
        return fail(WrongState, QStringLiteral("removeProject: project not found, path="), path);
    removeTask(project);
    if (!removeTree(path))
        return fail(DiskFailure, QStringLiteral("removeProject: removeRecursively failed, path="),
                    path);
    infoLine() << QStringLiteral("removeProject: removed ") << path;
    clearAutoload(this, project);
    if (getCurProject() == storedName(project))
        switchProject(this, QString());
    refreshProjects(this);
    return Done;
}

} // namespace zeplet
