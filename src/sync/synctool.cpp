#include <zeplet/sync/synctool.h>

#include <zeplet/log/hostlines_p.h>
#include <zeplet/sync/ownershipfix_p.h>
#include <zeplet/sync/rsynccommand_p.h>
#include <zeplet/sync/syncdialog_p.h>
#include <zeplet/sync/synclimits_p.h>

#include <QDeadlineTimer>
#include <QDir>
#include <QEventLoop>
#include <QPointer>
#include <QProcess>
#include <QScopedValueRollback>
#include <brisa/managerhelper.h>
#include <kest/centerwidget.h>
#include <lineheader.h>
#include <ostrel/log.h>

namespace zeplet
{

class SyncTool::Private
{
public:
    enum class Dialog { Hidden, Shown };

    explicit Private(SyncTool *tool);

    bool mayStart(bool reportError) const;
    bool makeDirectory(const QString &path);
    QProcess *makeProcess();
    SyncDialog *dialog();

    void push(const QString &localDir, const QString &remotePath);
    void pull(const QString &remotePath, const QString &localDir, Dialog shown);
    void pushOne(const QString &localFile, const QString &remotePath);
    void runDirectory(const RsyncCommand &command, Dialog shown);
    void run(QProcess *rsync, const RsyncCommand &command, Dialog shown);
    void letGo(QProcess *rsync);
    void logOutcome(const QProcess &rsync) const;
    void readErrors(QProcess *rsync);
    void finish(int exitCode);
    void closeDialog();
    bool report(bool reportError) const;
    void throwError(const QString &message) const;

    SyncTool *const q;
    QProcess *process; ///< of the directory operations
    QPointer<SyncDialog> progress; ///< goes with the centre area
    QEventLoop *loop; ///< no operation needs it: the dialog has its own
    bool success = false;
    bool isBusy = false;
};

namespace
{

int remainingMs(const QDeadlineTimer &deadline)
{
    return static_cast<int>(deadline.remainingTime());
}

bool isPath(const QString &path)
{
    return !path.isEmpty() && !path.contains(QChar::Null);
}

/** rsync would take an empty path for the working directory, or for a list of modules, and one with
 *  a null for another path. */
bool arePaths(const QString &localPath, const QString &remotePath)
{
    if (isPath(localPath) && isPath(remotePath))
        return true;
    errorLine()
        << QStringLiteral("sync: not both are paths: \"%1\" and \"%2\"").arg(localPath, remotePath);
    return false;
}

QString lineOf(const RsyncCommand &command)
{
    return QStringLiteral("rsync ") + command.arguments.join(QLatin1Char(' '));
}

} // namespace

SyncTool::Private::Private(SyncTool *tool)
    : q(tool)
    , process(makeProcess())
    , loop(new QEventLoop(tool))
{
    dialog();
}

/** One rsync at a time: while the dialog is up, a timer or a click may ask for the next. */
bool SyncTool::Private::mayStart(bool reportError) const
{
    if (!brisa::ManagerHelper::instance()->isReady())
        return false;
    if (!isBusy)
        return true;
    errorLine() << QStringLiteral("sync: another one is still running");
    if (reportError)
        throwError(SyncTool::tr("Synchronization failed"));
    return false;
}

bool SyncTool::Private::makeDirectory(const QString &path)
{
    if (isPath(path) && (QDir(path).exists() || QDir(QDir::currentPath()).mkpath(path)))
        return true;
    throwError(SyncTool::tr("Cannot create path: %1").arg(path));
    return false;
}

QProcess *SyncTool::Private::makeProcess()
{
    auto *const made = new QProcess(q);
    connect(made, &QProcess::readyReadStandardError, q, [=] { readErrors(made); });
    connect(made, &QProcess::errorOccurred, q, [=](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) // finished() never comes
            closeDialog();
    });
    connect(made, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), q,
            [=](int exitCode) { finish(exitCode); });
    return made;
}

SyncDialog *SyncTool::Private::dialog()
{
    if (!progress)
        progress = new SyncDialog(SyncTool::tr("Synchronizing..."), instantiatedCenterWidget());
    return progress;
}

void SyncTool::Private::push(const QString &localDir, const QString &remotePath)
{
    const RsyncCommand command = pushDirectoryCommand(localDir, remotePath);
    infoLine() << QStringLiteral("push: ") << lineOf(command);
    runDirectory(command, Dialog::Shown);
}

void SyncTool::Private::pull(const QString &remotePath, const QString &localDir, Dialog shown)
{
    const RsyncCommand command = pullDirectoryCommand(remotePath, localDir);
    const logbase::LineHeader header = logbase::lineHeader(logbase::Level::Debug);
    ostrel::QLog(header.colour, header.prefix, QString())
        << QStringLiteral("pull: ") << lineOf(command);
    fixOwnership(localDir);
    runDirectory(command, shown);
}

void SyncTool::Private::pushOne(const QString &localFile, const QString &remotePath)
{
    const RsyncCommand command = pushFileCommand(localFile, remotePath);
    infoLine() << QStringLiteral("push: ") << lineOf(command);
    QProcess *const rsync = makeProcess();
    fixOwnership(localFile);
    run(rsync, command, Dialog::Hidden);
    if (rsync->state() != QProcess::NotRunning)
        letGo(rsync);
    else
        delete rsync;
}

void SyncTool::Private::runDirectory(const RsyncCommand &command, Dialog shown)
{
    run(process, command, shown);
    if (process->state() == QProcess::NotRunning)
        return;
    letGo(process);
    process = makeProcess();
}

void SyncTool::Private::run(QProcess *rsync, const RsyncCommand &command, Dialog shown)
{
    const QDeadlineTimer deadline(syncLimits().waitMs);
    rsync->setProcessEnvironment(rsyncEnvironment());
    rsync->start(command.program, command.arguments, QIODevice::ReadWrite);
    if (shown == Dialog::Shown && rsync->state() != QProcess::NotRunning)
        dialog()->execFor(remainingMs(deadline));
    rsync->waitForFinished(remainingMs(deadline));
    logOutcome(*rsync);
}

/** The tool is never destroyed, nor are its children: the process may go on. */
void SyncTool::Private::letGo(QProcess *rsync)
{
    rsync->disconnect(q);
    connect(rsync, &QProcess::readyRead, rsync, &QProcess::readAll);
    connect(rsync, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), rsync,
            &QObject::deleteLater);
}

void SyncTool::Private::logOutcome(const QProcess &rsync) const
{
    if (success)
        return;
    if (rsync.state() != QProcess::NotRunning)
        errorLine() << QStringLiteral("sync: rsync still runs after %1 ms and is left to itself")
                           .arg(syncLimits().waitMs);
    else if (rsync.error() == QProcess::FailedToStart)
        errorLine() << QStringLiteral("sync: %1 could not be started: %2")
                           .arg(rsync.program(), rsync.errorString());
    else
        errorLine() << QStringLiteral("sync: rsync failed with code %1").arg(rsync.exitCode());
}

void SyncTool::Private::readErrors(QProcess *rsync)
{
    const QByteArray bytes = rsync->readAllStandardError();
    if (!bytes.isNull())
        errorLine() << QString::fromUtf8(bytes);
}

void SyncTool::Private::finish(int exitCode)
{
    success = exitCode == 0;
    closeDialog();
}

void SyncTool::Private::closeDialog()
{
    if (progress)
        progress->finish();
}

bool SyncTool::Private::report(bool reportError) const
{
    if (reportError && !success)
        throwError(SyncTool::tr("Synchronization failed"));
    return success;
}

void SyncTool::Private::throwError(const QString &message) const
{
    brisa::ManagerHelper::throwLog(q, QStringLiteral("error"), message);
}

SyncTool::SyncTool()
    : d(new Private(this))
{
}

SyncTool *SyncTool::instance()
{
    static auto *const tool = new SyncTool;
    return tool;
}

bool SyncTool::pushFile(const QString &localDir, const QString &remotePath, bool reportError)
{
    if (!d->mayStart(reportError))
        return false;
    const QScopedValueRollback<bool> turn(d->isBusy, true);
    if (!d->makeDirectory(localDir))
        return false;
    d->success = false;
    if (arePaths(localDir, remotePath))
        d->push(localDir, remotePath);
    return d->report(reportError);
}

bool SyncTool::pullFile(const QString &remotePath, const QString &localDir, bool showProgress,
                        bool reportError)
{
    if (!d->mayStart(reportError))
        return false;
    const QScopedValueRollback<bool> turn(d->isBusy, true);
    if (!d->makeDirectory(localDir))
        return false;
    d->success = false;
    if (arePaths(localDir, remotePath))
        d->pull(remotePath, localDir,
                showProgress ? Private::Dialog::Shown : Private::Dialog::Hidden);
    return d->report(reportError);
}

bool SyncTool::pushOneFile(const QString &localFile, const QString &remotePath, bool reportError)
{
    if (!d->mayStart(reportError))
        return false;
    const QScopedValueRollback<bool> turn(d->isBusy, true);
    d->success = false;
    if (arePaths(localFile, remotePath))
        d->pushOne(localFile, remotePath);
    return d->report(reportError);
}

SyncLimits &syncLimits()
{
    static SyncLimits limits;
    return limits;
}

} // namespace zeplet
