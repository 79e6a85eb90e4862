#include "datedname.h"

#include <QDate>

namespace logbase
{

QString today()
{
    return QDate::currentDate().toString(QStringLiteral("yyyyMMdd"));
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
