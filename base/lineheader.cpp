#include "lineheader.h"

#include "localclock.h"

#include <cstdio>
#include <ctime>

namespace logbase
{

namespace
{

struct Style {
    QString colour;
    QString prefix;
};

Style styleOf(Level level)
{
    switch (level) {
    case Level::Error:
        return {QStringLiteral("\x1b[31m"), QStringLiteral("[E|%1]")};
    case Level::Information:
        return {QStringLiteral("\x1b[36m"), QStringLiteral("[I|%1]")};
    case Level::Status:
        return {QStringLiteral("\x1b[35m"), QStringLiteral("[S|%1]")};
    case Level::Debug:
        break;
    }
    return {QStringLiteral("\x1b[32m"), QStringLiteral("[d|%1]")};
}

QString localTime()
{
    const LocalMoment now = localNow();
    char text[sizeof "MM/dd hh:mm:ss.zzz"];
    const size_t size = std::strftime(text, sizeof text, "%m/%d %H:%M:%S", &now.time);
    std::snprintf(text + size, sizeof text - size, ".%03d", now.millisecond);
    return QString::fromLatin1(text);
}

} // namespace

LineHeader lineHeader(Level level)
{
    const Style style = styleOf(level);
    return {style.colour, style.prefix.arg(localTime())};
}

} // namespace logbase
