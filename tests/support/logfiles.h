#pragma once

#include <QDate>
#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QString>
#include <QStringList>

/** Small helpers for tests that look at log files. */
namespace logfiles
{

inline QString today()
{
    return QDate::currentDate().toString(QStringLiteral("yyyyMMdd"));
}

inline QString read(const QString &path)
{
    QFile file(path);
    const QByteArray bytes = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    return QString::fromUtf8(bytes.constData(), bytes.size());
}

/** Makes a file of that size, which takes no room, and its directories. */
inline bool makeSparse(const QString &path, qint64 size, const QDateTime &modified = {})
{
    QFile file(path);
    if (!QDir().mkpath(QFileInfo(path).absolutePath())
        || !file.open(QIODevice::WriteOnly | QIODevice::Append) || !file.resize(size)) {
        return false;
    }
    return !modified.isValid() || file.setFileTime(modified, QFileDevice::FileModificationTime);
}

/** All files and links below a directory, by their path from there. */
inline QStringList below(const QString &root)
{
    QStringList files;
    QDirIterator entries(root, QDir::Files | QDir::Hidden | QDir::System,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        files.append(QDir(root).relativeFilePath(entries.next()));
    }
    files.sort();
    return files;
}

} // namespace logfiles
