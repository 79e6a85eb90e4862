#include "ostrel/loglines_p.h"

#include <lineheader.h>

namespace ostrel
{

namespace
{

QFLog hostLine(logbase::Level level)
{
    const logbase::LineHeader header = logbase::lineHeader(level);
    return QFLog(header.colour, header.prefix, QString(), QStringLiteral("./log/host"),
                 QStringLiteral("log"));
}

} // namespace

QFLog errorLine()
{
    return hostLine(logbase::Level::Error);
}

QFLog infoLine()
{
    return hostLine(logbase::Level::Information);
}

QFLog statusLine()
{
    return hostLine(logbase::Level::Status);
}

QFLog debugLine()
{
    return hostLine(logbase::Level::Debug);
}

} // namespace ostrel
