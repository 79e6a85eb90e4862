#include <zeplet/log/pluginlogfilemanager.h>

#include <zeplet/log/pluginlogfilemanager_p.h>

#include <datedname.h>

namespace zeplet
{

PluginLogFileManager::PluginLogFileManager()
    : d(std::make_unique<Private>())
{
}

PluginLogFileManager::~PluginLogFileManager() = default;

PluginLogFileManager *PluginLogFileManager::instance()
{
    static PluginLogFileManager manager;
    return &manager;
}

QString PluginLogFileManager::getProperLogFileName(const QString &base, const QString &ext)
{
    const Private::Guard guard(*d);
    return d->nextTargetIfFull(base, ext).path;
}

void PluginLogFileManager::updateFileSize(const QString &filePath, qint64 size)
{
    const Private::Guard guard(*d);
    d->recordSize(filePath, size);
}

void PluginLogFileManager::rescanTotalLogSize(const QString &rootPath)
{
    const Private::Guard guard(*d);
    d->rescan(rootPath);
}

void PluginLogFileManager::cleanupOldFiles(const QString &path, qint64 targetBytes,
                                           bool forceDeleteOne)
{
    const Private::Guard guard(*d);
    d->cleanUp(path, targetBytes, forceDeleteOne);
}

void PluginLogFileManager::initializeLogRoot(const QString &path)
{
    const Private::Guard guard(*d);
    d->initializeRoot(path);
}

void PluginLogFileManager::recoverFromWriteFailure(const QString &path)
{
    const Private::Guard guard(*d);
    d->recover(path);
}

QString PluginLogFileManager::buildFileName(const QString &base, const QString &date, int index,
                                            const QString &ext)
{
    return logbase::datedName(base, date, index, ext);
}

} // namespace zeplet
