#include <zeplet/log/pluginlogfiles.h>

#include <datedname.h>

#include <QFileInfo>

namespace zeplet
{

QDir pluginLogRootDir(const QString &path)
{
    const QString component = QStringLiteral("/zeplet");
    const QString directory
        = QDir::fromNativeSeparators(QDir::cleanPath(QFileInfo(path).dir().path()));
    if (directory.endsWith(component)) {
        return QDir(directory);
    }
    const int inside = directory.lastIndexOf(component + QLatin1Char('/'));
    return QDir(inside < 0 ? directory : directory.left(inside + component.size()));
}

bool extractLogFileMeta(const QString &baseName, QString &name, QString &date, int &index)
{
    return logbase::parseDatedName(baseName, name, date, index);
}

} // namespace zeplet
