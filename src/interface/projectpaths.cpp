#include <zeplet/interface/projectpaths_p.h>

#include <brisa/managerhelper.h>
#include <brisa/settingmanager.h>
#include <ostrel/moduleobject.h>

#include <QFile>
#include <algorithm>

namespace zeplet
{

bool isPlainName(const QString &name)
{
    if (name.isEmpty() || name == QLatin1String(".") || name == QLatin1String(".."))
        return false;
    const bool separates = std::any_of(name.begin(), name.end(), [](QChar c) {
        return c == QLatin1Char('/') || c.category() == QChar::Other_Control;
    });
    // What the file system's encoding cannot hold would become another project's name.
    return !separates && QFile::decodeName(QFile::encodeName(name)) == name;
}

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
