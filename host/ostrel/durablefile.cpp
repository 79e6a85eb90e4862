#include "ostrel/durablefile_p.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <cerrno>
#include <ctime>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ostrel
{

namespace
{
QString systemError(const char *what, const QString &path)
{
    return QStringLiteral("%1 %2: %3").arg(QLatin1String(what), path, qt_error_string(errno));
}

// Whether there is a file to replace, and whether that may be done.
bool checkTarget(const QString &path, struct stat *old, bool *exists, QString *error)
{
    *exists = ::lstat(QFile::encodeName(path).constData(), old) == 0;
    if (!*exists && errno != ENOENT && errno != ENOTDIR) {
        *error = systemError("can't examine", path);
        return false;
    }
    if (!*exists || S_ISREG(old->st_mode))
        return true;
    *error = path + QLatin1String(" is no plain file");
    return false;
}

bool syncDirectory(const QString &path, QString *error)
{
    const int handle
        = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    // Some file systems have no sync of directories, and say that it makes no sense.
    const bool ok = handle >= 0 && (::fsync(handle) == 0 || errno == EINVAL);
    if (!ok)
        *error = systemError("can't sync directory", path);
    if (handle >= 0)
        ::close(handle);
    return ok;
}

// A new directory lasts only when the one above it is synced too.
bool makeDirectory(const QString &path, QString *error)
{
    if (QFileInfo(path).isDir())
        return true;
    const QString above = QFileInfo(path).path();
    if (above == path || !makeDirectory(above, error))
        return false;
    const bool made = ::mkdir(QFile::encodeName(path).constData(), 0777) == 0;
    if (!made && !(errno == EEXIST && QFileInfo(path).isDir())) {
        *error = systemError("can't make directory", path);
        return false;
    }
    return syncDirectory(above, error);
}

// Copying tools compare whole seconds: each version of a file gets a second of its own.
bool moveTimeOn(int handle, const struct stat &old)
{
    timespec now = {};
    ::clock_gettime(CLOCK_REALTIME, &now);
    if (now.tv_sec <= old.st_mtim.tv_sec)
        now = {old.st_mtim.tv_sec + 1, 0};
    const timespec times[2] = {{0, UTIME_NOW}, now};
    return ::futimens(handle, times) == 0;
}
} // namespace

bool writeDurably(const QString &path, const ContentWriter &write, QString *error)
{
    const QString target = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    const QString directory = QFileInfo(target).path();
    struct stat old = {};
    bool exists = false;
    if (!checkTarget(target, &old, &exists, error) || !makeDirectory(directory, error))
        return false;

    QSaveFile file(target);
    if (file.open(QIODevice::WriteOnly) && !write(&file, error))
        return false;
    if (!file.isOpen() || file.error() != QFileDevice::NoError || !file.flush()) {
        *error = QStringLiteral("can't write %1: %2").arg(target, file.errorString());
        return false;
    }
    if ((exists && !moveTimeOn(file.handle(), old)) || ::fsync(file.handle()) != 0) {
        *error = systemError("can't sync", target);
        return false;
    }
    if (!file.commit()) {
        *error = QStringLiteral("can't replace %1: %2").arg(target, file.errorString());
        return false;
    }
    return syncDirectory(directory, error);
}

bool copyDurably(const QString &from, const QString &to, QString *error)
{
    QFile source(from);
    if (!source.copy(to)) {
        *error = QStringLiteral("can't copy %1 to %2: %3").arg(from, to, source.errorString());
        return false;
    }
    const int handle = ::open(QFile::encodeName(to).constData(), O_RDONLY | O_CLOEXEC);
    const bool synced = handle >= 0 && ::fsync(handle) == 0;
    if (!synced)
        *error = systemError("can't sync", to);
    if (handle >= 0)
        ::close(handle);
    return synced && syncDirectory(QFileInfo(to).path(), error);
}

} // namespace ostrel
