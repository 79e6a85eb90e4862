#include "tavik/workspace_p.h"

#include "brisa/managerhelper.h"
#include "brisa/settingmanager.h"
#include "ostrel/modulemanager.h"
#include "tavik/paths_p.h"
#include "tavik/storeedit_p.h"

#include <QJsonObject>

namespace tavik
{

namespace
{

const QLatin1String memoryFile("last-workspace.json");

QString settingName()
{
    return QStringLiteral("workspace");
}

brisa::SettingManager *settings()
{
    return brisa::ManagerHelper::instance()->settingManager();
}

QString readMemory()
{
    QJsonObject memory;
    QString problem;
    if (!readSmallObject(memoryFile, &memory, &problem) && !problem.isEmpty())
        qCWarning(tavikLog).noquote() << memoryFile + QStringLiteral(" can't be read: ") + problem;
    return memory.value(settingName()).toString().trimmed();
}

} // namespace

Workspace::Workspace(QObject *parent)
    : QObject(parent)
    , m_last(readMemory())
{
    connect(settings(), &brisa::SettingManager::changed, this, [this](const QString &key) {
        if (key == settingName())
            check();
    });
    check();
}

void Workspace::check()
{
    const QString path = settings()->getStr(settingName(), QString());
    if (path.trimmed().isEmpty())
        restore();
    else if (path != m_last)
        remember(path);
}

void Workspace::restore()
{
    const bool first = m_last.isEmpty() && !settings()->contains(settingName());
    const QString path = m_last.isEmpty() ? settingName() : m_last;
    if (!first)
        tell(QStringLiteral("warning"),
             tr("The setting \"workspace\" is empty: the panel keeps %1. Enter a directory for the "
                "projects to change it.")
                 .arg(path));
    settings()->set(settingName(), path);
}

void Workspace::remember(const QString &path)
{
    m_last = path;
    ostrel::ModuleManager::writeToJson(memoryFile, QJsonObject {{settingName(), path}}, true);
}

} // namespace tavik
