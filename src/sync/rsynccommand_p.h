#pragma once

#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

namespace zeplet
{

/** A program and its arguments. */
struct RsyncCommand {
    QString program;
    QStringList arguments;
};

RsyncCommand pushDirectoryCommand(const QString &localDir, const QString &remotePath);
RsyncCommand pullDirectoryCommand(const QString &remotePath, const QString &localDir);
RsyncCommand pushFileCommand(const QString &localFile, const QString &remotePath);

/** This process's environment with the password of the controller's rsync daemon. */
QProcessEnvironment rsyncEnvironment();

/** The same path, but neither an option nor a remote host for a program that gets it: a relative
 *  one that could be taken for such starts with "./". */
QString asLocalPath(const QString &path);

} // namespace zeplet
