#pragma once

#include <QDir>
#include <QString>

namespace panel
{

/**
 * What a panel on a desktop needs beside it so that files reach the controller as they do from a
 * panel on a robot. Each tool is old or new, never half, and one that can't be made gives an error
 * line that says what to do; what a person put in its place stays. Blocks for the disk.
 */
class DesktopTools
{
public:
    /** runtimeDirectory is the panel's working directory. */
    explicit DesktopTools(const QString &runtimeDirectory);

    /** Makes all of it. */
    void provide() const;

private:
    /** Files are given to a robot panel's user with sudo before they are copied. Here that user
     *  does not exist, and nobody may be asked for a password: this process, and what it starts,
     *  finds a sudo that does nothing. */
    void provideSudo() const;
    /** Directories are pushed with "tools/rsync.exe". */
    void provideRsync() const;

    QDir m_directory;
};

} // namespace panel
