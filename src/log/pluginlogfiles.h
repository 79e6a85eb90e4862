#pragma once

#include <zeplet/export.h>

#include <QDir>
#include <QString>

namespace zeplet
{

/**
 * The log root that a log path belongs to: the innermost directory named "zeplet" that the path's
 * directory lies in (or is), else the path's own directory. Reads no disk.
 */
ZEPLET_EXPORT QDir pluginLogRootDir(const QString &path);

/**
 * Takes "name_yyyyMMdd" or "name_yyyyMMdd_index" (a file name without its extension) apart. The
 * last part is an index only behind a valid date; without one the index is 0. A valid date is
 * eight characters that read as a number from 20000101 to 29991231. False where the text is not of
 * that form.
 */
ZEPLET_EXPORT bool extractLogFileMeta(const QString &baseName, QString &name, QString &date,
                                      int &index);

} // namespace zeplet
