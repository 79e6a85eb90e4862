#include "ostrel/keptfiles_p.h"

#include "ostrel/durablefile_p.h"
#include "ostrel/loglines_p.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QSet>

namespace ostrel
{

namespace
{

QSet<QString> &files()
{
    static QSet<QString> paths;
    return paths;
}

QString spelling(const QString &path)
{
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

QString freeName(const QString &path)
{
    const QString time = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-hhmmss"));
    const QString name = path + QLatin1String(".damaged-") + time;
    QString free = name;
    for (int i = 2; QFileInfo(free).isSymLink() || QFileInfo::exists(free); ++i)
        free = name + QLatin1Char('-') + QString::number(i);
    return free;
}

} // namespace

void keepBeforeWriting(const QString &path, bool keep)
{
    if (keep)
        files().insert(spelling(path));
    else
        files().remove(spelling(path));
}

bool keepCopy(const QString &path, QString *error)
{
    const QString file = spelling(path);
    if (!files().contains(file))
        return true;
    // What is no plain file is not replaced either.
    const QFileInfo info(file);
    if (info.isSymLink() || !info.isFile())
        return true;
    const QString copy = freeName(file);
    if (!copyDurably(file, copy, error))
        return false;
    files().remove(file);
    infoLine() << "writeToJson: the damaged " << file << " is kept as " << copy;
    return true;
}

} // namespace ostrel
