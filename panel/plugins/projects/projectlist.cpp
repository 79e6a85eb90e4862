#include "projectlist.h"

#include <QCollator>
#include <QHash>
#include <QJsonArray>
#include <QJsonObject>
#include <algorithm>
#include <brisa/languagemanager.h>
#include <zeplet/interface/interfacemanager.h>

namespace
{

/** What the host has read of the projects: name, description, time. */
QHash<QString, QJsonObject> projectRecords()
{
    QHash<QString, QJsonObject> records;
    const QJsonArray list = zeplet::zepletInterface()
                                ->getNodeData(QStringLiteral("tavik.project.project_list"))
                                .toArray();
    for (const QJsonValue &record : list)
        records.insert(record[QLatin1String("name")].toString(), record.toObject());
    return records;
}

QString autoloadProject()
{
    return zeplet::zepletInterface()
        ->getNodeData(QStringLiteral("tavik.project.autoload_prj_path"))
        .toString()
        .section(QLatin1Char('/'), 0, 0);
}

} // namespace

QString robotDirectory()
{
    const QString id = zeplet::zepletInterface()->getRobotID();
    return id.isEmpty() ? QStringLiteral("LOCALHOST") : id;
}

QVector<Project> readProjects()
{
    zeplet::InterfaceManager *const robot = zeplet::zepletInterface();
    const QHash<QString, QJsonObject> records = projectRecords();
    const QString open = robot->getCurProject();
    const QString autoload = autoloadProject();
    QVector<Project> projects;
    const QStringList names = robot->getProjectList();
    for (const QString &name : names) {
        const QJsonObject record = records.value(name);
        projects.append({name, record.value(QLatin1String("description")).toString(),
                         record.value(QLatin1String("create_time")).toString(),
                         open == QString(robotDirectory() + '/' + name), autoload == name});
    }
    QCollator order(brisa::LanguageManager::instance()->locale());
    order.setNumericMode(true);
    std::sort(projects.begin(), projects.end(), [&](const Project &a, const Project &b) {
        return order.compare(a.name, b.name) < 0;
    });
    return projects;
}
