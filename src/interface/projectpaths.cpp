#include <zeplet/interface/projectpaths_p.h>

#include <brisa/managerhelper.h>
#include <brisa/settingmanager.h>
#include <ostrel/moduleobject.h>

namespace zeplet
{

QString workspaceDirectory()
{
    return brisa::ManagerHelper::instance()->settingManager()->getStr(QStringLiteral("workspace"),
                                                                      QString());
}

QString robotDirectoryName()
{
    const QString id = m(QStringLiteral("brisa.r.id"), nullptr)->getStr(QString());
    return isPlainName(id) ? id : QStringLiteral("LOCALHOST");
}

QString robotDirectory()
{
    return workspaceDirectory() + QLatin1Char('/') + robotDirectoryName();
}

QString projectDirectory(const QString &name)
{
    return robotDirectory() + QLatin1Char('/') + name;
}

} // namespace zeplet
