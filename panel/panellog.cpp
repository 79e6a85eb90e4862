#include "panellog.h"

#include <QDateTime>

namespace panel
{

namespace
{

/** A line as all of this system's logs have it: "[E|05/24 07:08:09.123]" and the text. */
ostrel::QFLog panelLine(const char *colour, char level)
{
    const QString time
        = QDateTime::currentDateTime().toString(QStringLiteral("MM/dd hh:mm:ss.zzz"));
    return ostrel::QFLog(QLatin1String(colour),
                         QStringLiteral("[%1|%2]").arg(QLatin1Char(level)).arg(time), QString(),
                         QStringLiteral("./log/panel"), QStringLiteral("log"));
}

} // namespace

ostrel::QFLog errorLine()
{
    return panelLine("\033[31m", 'E');
}

ostrel::QFLog infoLine()
{
    return panelLine("\033[36m", 'I');
}

} // namespace panel
