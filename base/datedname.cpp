#include "datedname.h"

#include "localclock.h"

namespace logbase
{

QString today()
{
    const LocalMoment now = localNow();
    char text[sizeof "yyyyMMdd"];
    std::strftime(text, sizeof text, "%Y%m%d", &now.time);
    return QString::fromLatin1(text);
}

// Joined, not filled into a template: a base may itself contain "%1".
QString datedName(const QString &base, const QString &date, int index, const QString &ext)
{
    if (index <= 0) {
        return base + QLatin1Char('_') + date + QLatin1Char('.') + ext;
    }
    return base + QLatin1Char('_') + date + QLatin1Char('_') + QString::number(index)
        + QLatin1Char('.') + ext;
}

} // namespace logbase
