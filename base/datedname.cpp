#include "datedname.h"

#include "localclock.h"

#include <QStringList>

namespace logbase
{

namespace
{

bool isLogDate(const QString &text)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    return text.size() == 8 && isNumber && number >= 20000101 && number <= 29991231;
}

} // namespace

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

bool parseDatedName(const QString &baseName, QString &name, QString &date, int &index)
{
    QStringList parts = baseName.split(QLatin1Char('_'), Qt::KeepEmptyParts);
    if (parts.size() < 2) {
        return false;
    }
    index = 0;
    bool isNumber = false;
    const int last = parts.constLast().toInt(&isNumber);
    if (parts.size() > 2 && isNumber && last >= 0 && isLogDate(parts.at(parts.size() - 2))) {
        index = last;
        parts.removeLast();
    }
    const QString datePart = parts.takeLast();
    const QString namePart = parts.join(QLatin1Char('_'));
    if (!isLogDate(datePart) || namePart.isEmpty()) {
        return false;
    }
    name = namePart;
    date = datePart;
    return true;
}

} // namespace logbase
