#pragma once

#include <QString>

namespace logbase
{

enum class Level { Error, Information, Status, Debug };

/** What a log line starts with: the colour of its level and "[E|MM/dd hh:mm:ss.zzz]". */
struct LineHeader {
    QString colour;
    QString prefix;
};

/** The header of a line that is written now, in local time. Callable from any thread. */
LineHeader lineHeader(Level level);

} // namespace logbase
