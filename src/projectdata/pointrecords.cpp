#include <zeplet/projectdata/pointrecords_p.h>

#include <ostrel/moduleobject.h>
#include <zeplet/projectdata/projectrecords_p.h>

namespace zeplet
{

using ostrel::ModuleObject;

namespace
{

const QString nameField = QStringLiteral("name");

bool isPointElement(const QString &index)
{
    return index.startsWith(QLatin1Char('['));
}

} // namespace

QString normalizePointValueIndex(const QString &index)
{
    const QString trimmed = index.trimmed();
    if (trimmed.isEmpty())
        return firstPointElement();
    const int levels = trimmed.count(QLatin1Char('['));
    if (levels == 1)
        return trimmed + QStringLiteral("[0][0]");
    return levels == 2 ? trimmed + QStringLiteral("[0]") : trimmed;
}

ModuleObject *findPointByName(ModuleObject *list, const QString &name, int *index)
{
    const int place = list ? list->indexOf(nameField, name, Qt::CaseInsensitive) : -1;
    if (index)
        *index = place;
    return place < 0 ? nullptr : list->childAt(place);
}

int countPointValueElements(ModuleObject *point)
{
    return collectPointValueIndexes(point).size();
}

QStringList collectPointValueIndexes(ModuleObject *point)
{
    const ModuleObject *value = pointValue(point);
    if (!value)
        return {};
    QStringList indexes;
    const QStringList names = value->childNames();
    for (const QString &name : names) {
        if (isPointElement(name))
            indexes.append(name);
    }
    return indexes;
}

ModuleObject *pointList()
{
    return recordList(QStringLiteral("point"));
}

QString pointNameAt(ModuleObject *list, int place)
{
    return recordText(list, place, nameField);
}

ModuleObject *pointValue(ModuleObject *point)
{
    return point ? point->child(QStringLiteral("value")) : nullptr;
}

ModuleObject *findPointElement(ModuleObject *point, const QString &index)
{
    ModuleObject *value = pointValue(point);
    return value && isPointElement(index) ? value->child(index) : nullptr;
}

} // namespace zeplet
