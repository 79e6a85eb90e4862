#pragma once

#include <QString>

namespace logbase
{

/** A log file that is larger than this, in bytes, is followed by one with the next index. */
constexpr qint64 LargestAppendable = 10485759;

/** Today's local date as "yyyyMMdd". */
QString today();

/** "base_date.ext" for index 0, "base_date_index.ext" above it. */
QString datedName(const QString &base, const QString &date, int index, const QString &ext);

/**
 * Takes "name_date" or "name_date_index", a file name without its extension, apart. The last part
 * is an index only behind a valid date: eight characters that read as a number from 20000101 to
 * 29991231. False where the text is not of that form.
 */
bool parseDatedName(const QString &baseName, QString &name, QString &date, int &index);

} // namespace logbase
