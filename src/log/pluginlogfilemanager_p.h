#pragma once

#include <zeplet/log/pluginlogfilemanager.h>

#include <QHash>
#include <QMutex>
#include <QString>

#include <ctime>
#include <vector>

namespace zeplet
{

/** A log file as a stream sees it: its path, and the name and day that it is accounted under. */
struct LogTarget {
    QString key;
    QString path;
};

/**
 * The manager's records. Every operation expects its caller to hold the lock, which is a Guard;
 * the streams' own two take one themselves.
 */
class PluginLogFileManager::Private
{
public:
    /** Holds the mutex. Messages go out only after it is released: their handler may log, too. */
    class Guard
    {
    public:
        explicit Guard(Private &records);
        ~Guard();
        Guard(const Guard &) = delete;
        Guard &operator=(const Guard &) = delete;

    private:
        Private &m_records;
    };

    /** The current file as recorded. The stream itself looks at the file once it has opened it. */
    LogTarget targetForStream(const QString &base, const QString &ext);
    /** Accounts for a line: the file now ends at `size`, `written` bytes of which are new. */
    void recordLine(const LogTarget &target, qint64 size, qint64 written);

    LogTarget currentTarget(const QString &base, const QString &ext);
    LogTarget nextTargetIfFull(const QString &base, const QString &ext);
    void recordSize(const QString &filePath, qint64 size);
    void initializeRoot(const QString &path);
    void rescan(const QString &root);
    void cleanUp(const QString &path, qint64 targetBytes, bool forceDeleteOne);
    void recover(const QString &path);

private:
    /** The current file of one name on one day; -1: not looked for on the disk so far. */
    struct DayFile {
        int index = -1;
        qint64 size = 0;
    };
    /** What the last line for a base was given: putting it together takes as long as all the rest.
     */
    struct LastTarget {
        QString date;
        QString ext;
        int index = -1;
        LogTarget target;
    };
    struct Message {
        QtMsgType type;
        QString text;
    };

    const QString &today();
    static int lastIndexOnDisk(const QString &base, const QString &date, const QString &ext);
    void cleanUpAboveBudget(const QString &path);

    QMutex m_mutex;
    bool m_initialized = false;
    QHash<QString, DayFile> m_days;
    QHash<QString, LastTarget> m_lastTargets;
    qint64 m_total = 0;
    std::vector<Message> m_messages;
    std::time_t m_dateTaken = -1;
    QString m_date;
};

} // namespace zeplet
