#include <zeplet/sync/rsynccommand_p.h>

#include <brisa/managerhelper.h>
#include <brisa/settingmanager.h>

#include <QRegularExpression>

namespace zeplet
{

namespace
{

// The daemon takes a path with wildcards for a pattern, in which a backslash quotes, and a path
// below the module that starts like an option for one: either could lead into another project.
QString asRemotePath(const QString &path)
{
    static const QRegularExpression wildcard(QStringLiteral("[*?\\[]"));
    static const QRegularExpression special(QStringLiteral("([*?\\[\\]\\\\])"));
    static const QRegularExpression option(QStringLiteral("\\A([^/]*/)-"));
    QString remote = path;
    if (path.contains(wildcard))
        remote.replace(special, QStringLiteral("\\\\1"));
    return remote.replace(option, QStringLiteral("\\1./-"));
}

QString daemonAddress(const QString &remotePath)
{
    const QString ip = brisa::ManagerHelper::instance()->settingManager()->getStr(
        QStringLiteral("server.ip"), QString());
    return QStringLiteral("brisa@%1::%2").arg(ip, asRemotePath(remotePath));
}

} // namespace

RsyncCommand pushDirectoryCommand(const QString &localDir, const QString &remotePath)
{
    return {QStringLiteral("tools/rsync.exe"),
            {QStringLiteral("-rtvz"), QStringLiteral("--timeout=10"),
             QStringLiteral("--contimeout=10"), QStringLiteral("--delete"),
             QStringLiteral("--progress"), asLocalPath(localDir),
             daemonAddress(remotePath) + QLatin1Char('/')}};
}

RsyncCommand pullDirectoryCommand(const QString &remotePath, const QString &localDir)
{
    return {QStringLiteral("rsync"),
            {QStringLiteral("-rtvz"), QStringLiteral("--perms"),
             QStringLiteral("--chmod=a=rw,Da+x"), QStringLiteral("--timeout=10"),
             QStringLiteral("--contimeout=10"), QStringLiteral("--exclude=*\\_pers_"),
             QStringLiteral("--delete"), daemonAddress(remotePath) + QLatin1Char('/'),
             asLocalPath(localDir)}};
}

RsyncCommand pushFileCommand(const QString &localFile, const QString &remotePath)
{
    return {QStringLiteral("rsync"),
            {QStringLiteral("-tvz"), QStringLiteral("--timeout=10"),
             QStringLiteral("--contimeout=10"), QStringLiteral("--progress"),
             asLocalPath(localFile), daemonAddress(remotePath)}};
}

QProcessEnvironment rsyncEnvironment()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("RSYNC_PASSWORD"), QStringLiteral("729413"));
    return environment;
}

QString asLocalPath(const QString &path)
{
    const int colon = path.indexOf(QLatin1Char(':'));
    const bool isRemote = colon >= 0 && !path.leftRef(colon).contains(QLatin1Char('/'));
    const bool isOption = path.startsWith(QLatin1Char('-'));
    return isRemote || isOption ? QStringLiteral("./") + path : path;
}

} // namespace zeplet
