#pragma once

#include <zeplet/export.h>

#include <QObject>
#include <QString>
#include <memory>

namespace zeplet
{

/**
 * Decides which file a file log stream appends to, follows a full file by the next, and keeps the
 * log files "*.log" below the log root within 200 MiB by deleting the oldest ones.
 *
 * A log is named by a path prefix ("./log/zeplet/myplugin") and an extension ("log"); its files
 * are "base_yyyyMMdd.ext", "base_yyyyMMdd_1.ext" and so on. Every operation may be called from any
 * thread and waits only for the others and for the disk. Missing directories are made where they
 * are needed. Nothing here reports an error; a file that cannot be deleted is left alone. Links
 * below the root are neither followed nor deleted.
 */
class ZEPLET_EXPORT PluginLogFileManager : public QObject
{
    Q_OBJECT

public:
    /** The one manager, made on first use; it lives until the process exits. */
    static PluginLogFileManager *instance();

    /**
     * The file to append to now. Today's current file of this name, or, where that has reached
     * 10 MiB, the next one, which also cleans up to 200 MiB.
     */
    QString getProperLogFileName(const QString &base, const QString &ext);

    /**
     * Records the size of a log file in bytes after a write and adjusts the total by the
     * difference to the last recorded one; a total above 200 MiB cleans up.
     */
    void updateFileSize(const QString &filePath, qint64 size);

    /** Sets the total to the size of all files "*.log" below the directory. */
    void rescanTotalLogSize(const QString &rootPath);

    /**
     * Deletes the oldest log files below the root of the path while the total exceeds
     * `targetBytes`, at least one where `forceDeleteOne` is set, then scans the total anew. Each
     * deletion is one message at debug level. The file being written is not spared.
     */
    void cleanupOldFiles(const QString &path, qint64 targetBytes, bool forceDeleteOne);

    /** On its first call makes and scans the root of the path, and cleans up to 200 MiB. */
    void initializeLogRoot(const QString &path);

    /** Makes room after a failed write: cleans up to 190 MiB and deletes at least one file. */
    void recoverFromWriteFailure(const QString &path);

    /** "base_date.ext" for index 0, "base_date_index.ext" above it. */
    QString buildFileName(const QString &base, const QString &date, int index, const QString &ext);

private:
    friend class FLog;
    class Private;

    PluginLogFileManager();
    ~PluginLogFileManager() override;

    std::unique_ptr<Private> d;
};

} // namespace zeplet
