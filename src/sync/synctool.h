#pragma once

#include <zeplet/export.h>

#include <QObject>
#include <QString>

namespace zeplet
{

/**
 * Copies files between the panel and the robot controller, with rsync and the controller's rsync
 * daemon at the host setting "server.ip". GUI thread. Every operation blocks until rsync has ended,
 * for 30 s at most, and says whether all was copied. It fails at once while the host is not ready
 * yet, and while another operation runs. What rsync complains about is logged; with reportError a
 * failure is shown to the operator, too.
 *
 * A remote path starts with the daemon's module, as in "hmi/NAME". An rsync that still runs after
 * 30 s counts as failed and is left to itself.
 */
class ZEPLET_EXPORT SyncTool : public QObject
{
    Q_OBJECT

public:
    /** The one tool of the process, made on the first call. It lives to the end of the process. */
    static SyncTool *instance();

    /** Copies a local directory to the controller, behind a modal progress dialog. What the
     *  controller has there and the panel has not is deleted there. Makes a missing localDir. */
    bool pushFile(const QString &localDir, const QString &remotePath, bool reportError);
    /** Copies a directory of the controller to the panel, with showProgress behind the dialog. What
     *  the panel has there and the controller has not is deleted, but for files "*_pers_", which
     *  are neither copied nor deleted. Files become readable and writable for all. */
    bool pullFile(const QString &remotePath, const QString &localDir, bool showProgress,
                  bool reportError);
    /** Copies one file to the controller, without a dialog. The directory must exist there. */
    bool pushOneFile(const QString &localFile, const QString &remotePath, bool reportError);

private:
    class Private;

    SyncTool();
    Private *d;
};

} // namespace zeplet
