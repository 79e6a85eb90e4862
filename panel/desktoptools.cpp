#include "desktoptools.h"

#include "panellog.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <cstdio>

namespace panel
{

namespace
{

const QByteArray harmlessSudo = R"(#!/bin/sh
# Stands in for sudo in a desktop panel: does nothing, asks for nothing.
[ "$1" != -S ] || exec cat >/dev/null
)";

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(panel)
};

bool isProgram(const QString &path)
{
    const QFileInfo file(path);
    return file.isFile() && file.isExecutable();
}

bool holds(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return !QFileInfo(path).isSymLink() && file.open(QIODevice::ReadOnly)
        && file.read(bytes.size() + 1) == bytes;
}

/** Puts what make(path) makes in the place of path; a link there goes, and not what it leads to. */
template <typename Make>
bool replace(const QString &path, Make make)
{
    const QTemporaryDir beside(path + QStringLiteral(".XXXXXX"));
    const QString made = beside.filePath(QStringLiteral("new"));
    return beside.isValid() && make(made)
        && std::rename(QFile::encodeName(made).constData(), QFile::encodeName(path).constData())
        == 0;
}

bool writeProgram(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush()
        && file.setPermissions(file.permissions() | QFile::ExeOwner | QFile::ExeUser);
}

/** False where the directory's name can't stand in a search path. */
bool putFirstInSearchPath(const QString &directory)
{
    if (directory.contains(QLatin1Char(':')))
        return false;
    const QByteArray first = QFile::encodeName(directory);
    const QByteArray path = qEnvironmentVariableIsEmpty("PATH") ? "/usr/bin:/bin" : qgetenv("PATH");
    return path.split(':').first() == first || qputenv("PATH", first + ':' + path);
}

} // namespace

DesktopTools::DesktopTools(const QString &runtimeDirectory)
    : m_directory(QDir(runtimeDirectory).absolutePath())
{
}

void DesktopTools::provide() const
{
    provideSudo();
    provideRsync();
}

void DesktopTools::provideSudo() const
{
    const QString directory = m_directory.filePath(QStringLiteral("standins"));
    const QString path = directory + QStringLiteral("/sudo");
    const auto make = [](const QString &made) { return writeProgram(made, harmlessSudo); };
    const bool isMade
        = m_directory.mkpath(directory) && (holds(path, harmlessSudo) || replace(path, make));
    if (isMade && isProgram(path) && putFirstInSearchPath(directory))
        return;
    errorLine()
        << Texts::tr("The stand-in %1 can't be used: copying files may ask for a password. Choose "
                     "another runtime directory, without \":\" in its name, where programs can be "
                     "written and run.")
               .arg(path);
}

void DesktopTools::provideRsync() const
{
    const QString path = m_directory.filePath(QStringLiteral("tools/rsync.exe"));
    if (isProgram(path))
        return;
    const QString rsync = QStandardPaths::findExecutable(QStringLiteral("rsync"));
    if (rsync.isEmpty()) {
        errorLine() << Texts::tr(
            "rsync is not installed: nothing can be copied to the controller. Install "
            "rsync and start the panel again.");
        return;
    }
    const QFileInfo present(path);
    const bool isFree = present.isSymLink() || !present.exists();
    const auto link = [&](const QString &made) { return QFile::link(rsync, made); };
    if (!isFree || !m_directory.mkpath(QStringLiteral("tools")) || !replace(path, link))
        errorLine() << Texts::tr("%1 can't be made a link to %2: no directory can be copied to the "
                                 "controller. Remove what is there, or check its permissions.")
                           .arg(path, rsync);
}

} // namespace panel
