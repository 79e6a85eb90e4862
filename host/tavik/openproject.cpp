#include "tavik/openproject_p.h"

#include "brisa/controllermanager.h"
#include "brisa/managerhelper.h"
#include "brisa/settingmanager.h"
#include "link/client.h"
#include "ostrel/keptfiles_p.h"
#include "ostrel/moduleobject.h"
#include "ostrel/moduleobject_p.h"
#include "tavik/paths_p.h"
#include "tavik/recordfile_p.h"
#include "tavik/storeedit_p.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>
#include <utility>

namespace tavik
{

namespace
{

constexpr int requestTimeout = 4800; // ms

ostrel::ModuleObject *currentNode()
{
    return m(QStringLiteral("tavik.project.cur_project"));
}

ostrel::ModuleObject *convertNode()
{
    return m(QStringLiteral("tavik.project.convert_signal"));
}

/** The project that is open; empty without one. */
QString projectName()
{
    return currentNode()->getStr(QString()).section(QLatin1Char('/'), -1);
}

/** Where saves go without an open project. */
QString scratchDirectory()
{
    return projectDirectory(QStringLiteral("_temp"));
}

bool holdsRecords(const RecordFile &file)
{
    return m(QLatin1String(file.key))->childCount() > 0;
}

void tellDamage(const QString &path, const QString &problem)
{
    const QFileInfo info(path);
    const bool plain = info.isFile() && !info.isSymLink();
    const QString advice = plain
        ? OpenProject::tr(
            "The file stays as it is, and the next save keeps a copy of it beside it: "
            "mend the file, then open the project again.")
        : OpenProject::tr(
            "Nothing can be saved there: put a plain file in its place, then open the "
            "project again.");
    tell(QStringLiteral("error"),
         OpenProject::tr("%1 can't be used: %2. The project is open without what it holds. %3")
             .arg(path, rpc::inOneLine(problem), advice));
}

} // namespace

OpenProject::OpenProject(brisa::ControllerManager *controller, QObject *parent)
    : QObject(parent)
    , m_controller(controller)
{
    using ostrel::ModuleObject;
    connect(convertNode(), &ModuleObject::changed, this, [this](const QVariant &signal) {
        if (signal.toBool())
            convert();
    });
    connect(currentNode(), &ModuleObject::changed, this,
            [this](const QVariant &project) { follow(project.toString()); });
    connect(m(QStringLiteral("brisa.r.id")), &ModuleObject::changed, this, [this] {
        m_autoloadDone = false;
        followPlace();
    });
    connect(brisa::ManagerHelper::instance()->settingManager(), &brisa::SettingManager::changed,
            this, [this](const QString &key) {
                if (key == QLatin1String("workspace"))
                    followPlace();
            });
    connect(controller, &brisa::ControllerManager::rcConnected, this, &OpenProject::tellController);
    empty();
}

void OpenProject::openAutoload()
{
    if (m_autoloadDone)
        return;
    m_autoloadDone = true;
    const QString path = m(QStringLiteral("tavik.project.autoload_prj_path"))->getStr(QString());
    const QString name = path.section(QLatin1Char('/'), 0, 0);
    const QString directory = projectDirectory(name);
    if (!projectName().isEmpty() || directory.isEmpty() || isReservedProject(name)
        || !QFileInfo(directory).isDir())
        return;
    const QString project = robotName() + QLatin1Char('/') + name;
    rpc::deliver(currentNode()->name(), [&] { currentNode()->set(this, project); });
    convertNode()->set(this, true);
}

/** A switch has been read already with the name; the same project again has not. */
void OpenProject::convert()
{
    if (!std::exchange(m_readAhead, false))
        open();
    rpc::deliver(convertNode()->name(), [this] { convertNode()->set(this, false); });
}

/** At once with the name: an edit on the way would be saved as the other project's. */
void OpenProject::follow(const QString &project)
{
    m_readAhead = !project.isEmpty() && project != m_project;
    if (project.isEmpty())
        empty();
    else if (m_readAhead)
        open();
}

void OpenProject::open()
{
    const QString name = projectName();
    const QString directory = projectDirectory(name);
    if (!name.isEmpty() && directory.isEmpty())
        tell(QStringLiteral("error"),
             tr("The project \"%1\" can't be opened: its name is no plain name.")
                 .arg(rpc::inOneLine(name)));
    if (directory.isEmpty()) {
        empty();
        return;
    }
    m_project = currentNode()->getStr(QString());
    m_directory = directory;
    loadInfo(directory);
    load(pointFile(), directory);
    load(variableFile(), directory);
    tellController();
}

/** What belongs to one robot and one workspace must not be saved in another. */
void OpenProject::followPlace()
{
    const QString project = currentNode()->getStr(QString());
    const QString directory
        = project.isEmpty() ? scratchDirectory() : projectDirectory(projectName());
    if (directory == m_directory)
        return;
    if (!project.isEmpty() || holdsRecords(pointFile()) || holdsRecords(variableFile()))
        tell(QStringLiteral("warning"),
             tr("%1 was closed: the panel now works in %2. What was saved stays in %3.")
                 .arg(project.isEmpty() ? tr("What is in no project")
                                        : tr("The project %1").arg(project),
                      robotDirectory(), m_directory));
    if (project.isEmpty())
        empty();
    else
        rpc::deliver(currentNode()->name(), [this] { currentNode()->set(this, QString()); });
}

void OpenProject::load(const RecordFile &file, const QString &directory)
{
    const QString path = directory + QLatin1Char('/') + QLatin1String(file.fileName);
    ostrel::Node records;
    records.reset(ostrel::Node::Kind::List);
    QString problem;
    const bool damaged = readRecords(file, path, &records, &problem) == ReadResult::Damaged;
    ostrel::keepBeforeWriting(path, damaged ? QStringLiteral("damaged") : QString());
    if (damaged)
        tellDamage(path, problem);
    rpc::deliver(QLatin1String(file.key), [&] {
        ostrel::ModuleObjectPrivate::replaceContent(*m(QLatin1String(file.key)), records, this,
                                                    true);
    });
}

void OpenProject::loadInfo(const QString &directory)
{
    const QString path = directory + QLatin1String("/projectinfo.json");
    QJsonObject info;
    QString problem;
    if (!readSmallObject(path, &info, &problem) && !problem.isEmpty())
        qCWarning(tavikLog).noquote() << path + QStringLiteral(" can't be read: ") + problem;
    setWhereDifferent(QStringLiteral("tavik.project.project_info"), info, this);
}

/** Saves replace the scratch project's files then, and keep what they held. */
void OpenProject::empty()
{
    setWhereDifferent(QStringLiteral("tavik.project.project_info"), QJsonObject(), this);
    for (const RecordFile &file : {pointFile(), variableFile()})
        setWhereDifferent(QLatin1String(file.key), QJsonArray(), this);
    m_project.clear();
    m_directory = scratchDirectory();
    for (const RecordFile &file : {pointFile(), variableFile()})
        ostrel::keepBeforeWriting(m_directory + QLatin1Char('/') + QLatin1String(file.fileName),
                                  QStringLiteral("kept"));
}

void OpenProject::tellController()
{
    const QString name = projectName();
    if (!projectDirectory(name).isEmpty() && m_controller->isConnected())
        m_controller->request(QStringLiteral("project"), QStringLiteral("overview.open"),
                              QJsonObject {{"name", name}}, requestTimeout);
}

} // namespace tavik
