#include "tavik/projectlist_p.h"

#include "brisa/managerhelper.h"
#include "brisa/settingmanager.h"
#include "ostrel/moduleobject.h"
#include "tavik/paths_p.h"
#include "tavik/storeedit_p.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonObject>

namespace tavik
{

namespace
{

/** Only texts count; a project without a readable file has none. */
QJsonObject entryOf(const QString &name)
{
    QJsonObject info;
    QString problem;
    readSmallObject(projectDirectory(name) + QLatin1String("/projectinfo.json"), &info, &problem);
    return {{"name", name},
            {"description", info.value(QLatin1String("description")).toString()},
            {"create_time", info.value(QLatin1String("create_time")).toString()}};
}

} // namespace

ProjectList::ProjectList(QObject *parent)
    : QObject(parent)
{
    for (const char *key : {"tavik.project.refresh_project", "brisa.r.id"})
        connect(m(QLatin1String(key)), &ostrel::ModuleObject::changed, this, &ProjectList::read);
    connect(brisa::ManagerHelper::instance()->settingManager(), &brisa::SettingManager::changed,
            this, [this](const QString &key) {
                if (key == QLatin1String("workspace"))
                    read();
            });
    read();
}

void ProjectList::read()
{
    const QString robot = robotDirectory();
    QJsonArray projects;
    const QStringList names = robot.isEmpty()
        ? QStringList()
        : QDir(robot).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase);
    for (const QString &name : names) {
        if (!isReservedProject(name) && !projectDirectory(name).isEmpty())
            projects.append(entryOf(name));
    }
    setWhereDifferent(QStringLiteral("tavik.project.project_list"), projects, this);
}

} // namespace tavik
