#include "lineheader.h"

#include <QDateTime>

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

} // namespace

LineHeader lineHeader(Level level)
{
    const Style style = styleOf(level);
    const QString time
        = QDateTime::currentDateTime().toString(QStringLiteral("MM/dd hh:mm:ss.zzz"));
    return {style.colour, style.prefix.arg(time)};
}

} // namespace logbase
