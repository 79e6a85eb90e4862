#include <zeplet/log/pluginlogfilemanager_p.h>

#include <zeplet/log/logtree_p.h>
#include <zeplet/log/pluginlogfiles.h>

#include <datedname.h>

#include <QDir>
#include <QFileInfo>
#include <QLoggingCategory>

#include <chrono>
#include <limits>
#include <utility>

namespace zeplet
{

namespace
{

constexpr qint64 MiB = 1024LL * 1024;
constexpr qint64 TotalBudget = 200 * MiB;
constexpr qint64 RecoveryTarget = 190 * MiB;

QString nameOf(const QString &base)
{
    return base.mid(base.lastIndexOf(QLatin1Char('/')) + 1);
}

QString keyOf(const QString &name, const QString &date)
{
    return name + QLatin1Char('_') + date;
}

QString inMiB(qint64 bytes)
{
    return QString::number(static_cast<double>(bytes) / static_cast<double>(MiB), 'f', 2);
}

} // namespace

PluginLogFileManager::Private::Guard::Guard(Private &records)
    : m_records(records)
{
    m_records.m_mutex.lock();
}

PluginLogFileManager::Private::Guard::~Guard()
{
    const std::vector<Message> messages = std::exchange(m_records.m_messages, {});
    m_records.m_mutex.unlock();
    for (const Message &message : messages) {
        const QByteArray text = message.text.toUtf8();
        if (message.type == QtWarningMsg) {
            qWarning("%s", text.constData());
        } else {
            qDebug("%s", text.constData());
        }
    }
}

LogTarget PluginLogFileManager::Private::targetForStream(const QString &base, const QString &ext)
{
    const Guard guard(*this);
    return currentTarget(base, ext);
}

void PluginLogFileManager::Private::recordLine(const LogTarget &target, qint64 size, qint64 written)
{
    const Guard guard(*this);
    m_days[target.key].size = size;
    // The line's own bytes, not a difference of sizes: other threads append to the file as well.
    m_total += written;
    cleanUpAboveBudget(target.path);
}

LogTarget PluginLogFileManager::Private::currentTarget(const QString &base, const QString &ext)
{
    initializeRoot(base);
    const QString &date = today();
    LastTarget &last = m_lastTargets[base];
    if (last.date != date || last.ext != ext) {
        last = {date, ext, -1, {keyOf(nameOf(base), date), QString()}};
    }
    DayFile &day = m_days[last.target.key];
    if (day.index < 0) {
        QDir().mkpath(QFileInfo(base).absolutePath());
        day.index = lastIndexOnDisk(base, date, ext);
    }
    if (last.index != day.index) {
        last.index = day.index;
        last.target.path = logbase::datedName(base, date, day.index, ext);
    }
    return last.target;
}

LogTarget PluginLogFileManager::Private::nextTargetIfFull(const QString &base, const QString &ext)
{
    LogTarget target = currentTarget(base, ext);
    DayFile &day = m_days[target.key];
    const QFileInfo file(target.path);
    day.size = file.exists() ? file.size() : 0;
    if (day.size <= logbase::LargestAppendable || day.index == std::numeric_limits<int>::max()) {
        return target;
    }
    day.index += 1;
    day.size = 0;
    target.path = logbase::datedName(base, m_date, day.index, ext);
    cleanUp(base, TotalBudget, false);
    return target;
}

void PluginLogFileManager::Private::recordSize(const QString &filePath, qint64 size)
{
    QString name;
    QString date;
    int index = 0;
    if (!extractLogFileMeta(QFileInfo(filePath).completeBaseName(), name, date, index)) {
        return;
    }
    DayFile &day = m_days[keyOf(name, date)];
    m_total += size - day.size;
    day.size = size;
    cleanUpAboveBudget(filePath);
}

void PluginLogFileManager::Private::initializeRoot(const QString &path)
{
    if (m_initialized) {
        return;
    }
    const QString root = pluginLogRootDir(path).absolutePath();
    QDir().mkpath(root);
    rescan(root);
    cleanUpAboveBudget(path);
    m_initialized = true;
}

void PluginLogFileManager::Private::rescan(const QString &root)
{
    m_total = LogTree(root).totalSize();
}

void PluginLogFileManager::Private::cleanUp(const QString &path, qint64 targetBytes,
                                            bool forceDeleteOne)
{
    const LogTree tree(pluginLogRootDir(path).absolutePath());
    if (!tree.exists()) {
        return;
    }
    bool deleteOne = forceDeleteOne;
    for (const LogTreeFile &file : tree.oldestFirst()) {
        if (m_total <= targetBytes && !deleteOne) {
            break;
        }
        if (!tree.remove(file)) {
            continue;
        }
        deleteOne = false;
        m_total -= file.size;
        m_messages.push_back({QtDebugMsg,
                              QStringLiteral("Cleaned old log file: ")
                                  + nameOf(QFile::decodeName(file.path)) + QStringLiteral(" size: ")
                                  + QString::number(file.size)});
    }
    m_total = tree.totalSize();
}

void PluginLogFileManager::Private::recover(const QString &path)
{
    const QString root = pluginLogRootDir(path).absolutePath();
    QDir().mkpath(root);
    rescan(root);
    m_messages.push_back(
        {QtWarningMsg,
         QStringLiteral("[zeplet-log-cleanup] write failure, try to free old logs. dir=%1 "
                        "total=%2MB target=%3MB forceDeleteOne=true")
             .arg(root, inMiB(m_total), inMiB(RecoveryTarget))});
    cleanUp(path, RecoveryTarget, true);
}

// Asking for the date costs more than all else here, so it is asked for once a second.
const QString &PluginLogFileManager::Private::today()
{
    const std::time_t now = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
    if (now != m_dateTaken) {
        m_dateTaken = now;
        m_date = logbase::today();
    }
    return m_date;
}

int PluginLogFileManager::Private::lastIndexOnDisk(const QString &base, const QString &date,
                                                   const QString &ext)
{
    const QString suffix = QLatin1Char('.') + ext;
    const QString baseName = nameOf(base);
    int last = 0;
    const QStringList files = QFileInfo(base).dir().entryList(QDir::Files);
    for (const QString &file : files) {
        QString fileName;
        QString fileDate;
        int index = 0;
        if (file.endsWith(suffix)
            && extractLogFileMeta(file.chopped(suffix.size()), fileName, fileDate, index)
            && fileName == baseName && fileDate == date) {
            last = qMax(last, index);
        }
    }
    return last;
}

void PluginLogFileManager::Private::cleanUpAboveBudget(const QString &path)
{
    if (m_total > TotalBudget) {
        cleanUp(path, TotalBudget, false);
    }
}

} // namespace zeplet
