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

} // namespace logbase
