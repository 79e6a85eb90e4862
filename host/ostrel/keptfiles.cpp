#include "ostrel/keptfiles_p.h"

#include "ostrel/durablefile_p.h"
#include "ostrel/loglines_p.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QHash>

namespace ostrel
{

namespace
{

/** The word for each path. */
QHash<QString, QString> &files()
{
    static QHash<QString, QString> words;
    return words;
}

QString spelling(const QString &path)
{
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

QString freeName(const QString &path, const QString &word)
{
    const QString time = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-hhmmss"));
    const QString name = path + QLatin1Char('.') + word + QLatin1Char('-') + time;
    QString free = name;
    for (int i = 2; QFileInfo(free).isSymLink() || QFileInfo::exists(free); ++i)
        free = name + QLatin1Char('-') + QString::number(i);
    return free;
}

} // namespace

void keepBeforeWriting(const QString &path, const QString &word)
{
    if (word.isEmpty())
        files().remove(spelling(path));
    else
        files().insert(spelling(path), word);
}

bool keepCopy(const QString &path, QString *error)
{
    const QString file = spelling(path);
    const QString word = files().value(file);
    if (word.isEmpty())
        return true;
    // What is no plain file is not replaced either.
    const QFileInfo info(file);
    if (info.isSymLink() || !info.isFile())
        return true;
    const QString copy = freeName(file, word);
    if (!copyDurably(file, copy, error))
        return false;
    files().remove(file);
    infoLine() << "writeToJson: what " << file << " held is kept as " << copy;
    return true;
}

} // namespace ostrel
