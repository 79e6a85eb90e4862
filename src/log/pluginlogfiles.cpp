#include <zeplet/log/pluginlogfiles.h>

#include <QFileInfo>
#include <QStringList>

namespace zeplet
{

namespace
{

bool isLogDate(const QString &text)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    return text.size() == 8 && isNumber && number >= 20000101 && number <= 29991231;
}

} // namespace

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
    QStringList parts = baseName.split(QLatin1Char('_'), Qt::KeepEmptyParts);
    if (parts.size() < 2) {
        return false;
    }
    index = 0;
    bool isNumber = false;
    const int last = parts.constLast().toInt(&isNumber);
    if (parts.size() > 2 && isNumber && last >= 0 && isLogDate(parts.at(parts.size() - 2))) {
        index = last;
        parts.removeLast();
    }
    const QString datePart = parts.takeLast();
    const QString namePart = parts.join(QLatin1Char('_'));
    if (!isLogDate(datePart) || namePart.isEmpty()) {
        return false;
    }
    name = namePart;
    date = datePart;
    return true;
}

} // namespace zeplet
