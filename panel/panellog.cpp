#include "panellog.h"

#include <lineheader.h>

namespace panel
{

namespace
{

ostrel::QFLog panelLine(logbase::Level level)
{
    const logbase::LineHeader header = logbase::lineHeader(level);
    return ostrel::QFLog(header.colour, header.prefix, QString(), QStringLiteral("./log/panel"),
                         QStringLiteral("log"));
}

} // namespace

ostrel::QFLog errorLine()
{
    return panelLine(logbase::Level::Error);
}

ostrel::QFLog infoLine()
{
    return panelLine(logbase::Level::Information);
}

} // namespace panel
