#include <zeplet/log/hostlines_p.h>

#include <lineheader.h>

namespace zeplet
{

namespace
{

ostrel::QFLog libraryLine(logbase::Level level)
{
    const logbase::LineHeader header = logbase::lineHeader(level);
    return ostrel::QFLog(header.colour, header.prefix, QString(), QStringLiteral("./log/zeplet"),
                         QStringLiteral("log"));
}

} // namespace

ostrel::QFLog errorLine()
{
    return libraryLine(logbase::Level::Error);
}

ostrel::QFLog infoLine()
{
    return libraryLine(logbase::Level::Information);
}

ostrel::QFLog statusLine()
{
    return libraryLine(logbase::Level::Status);
}

ostrel::QFLog debugLine()
{
    return libraryLine(logbase::Level::Debug);
}

} // namespace zeplet
