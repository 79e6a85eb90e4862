#include <zeplet/projectdata/pointrecords_p.h>

#include <ostrel/moduleobject.h>
#include <zeplet/projectdata/projectrecords_p.h>

namespace zeplet
{

using ostrel::ModuleObject;

namespace
{

const QString nameField = QStringLiteral("name");

// A record's name is read as a text, whatever it is stored as: a missing one is "", a number its
// digits. The store looks for texts only.
bool canBeStoredOtherwise(const QString &name)
{
    bool isNumber = false;
    name.toDouble(&isNumber);
    return isNumber || name.isEmpty()
        || name.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0
        || name.compare(QLatin1String("false"), Qt::CaseInsensitive) == 0;
}

bool isPointElement(const QString &index)
{
    return index.startsWith(QLatin1Char('['));
}

int placeByWalking(ModuleObject *list, const QString &name)
{
    const int count = list->childCount();
    for (int place = 0; place < count; ++place) {
        if (pointNameAt(list, place).compare(name, Qt::CaseInsensitive) == 0)
            return place;
    }
    return -1;
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
    int place = -1;
    if (list && canBeStoredOtherwise(name))
        place = placeByWalking(list, name);
    else if (list)
        place = list->indexOf(nameField, name, Qt::CaseInsensitive);
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
    if (list->isList())
        return list->getStr(QStringLiteral("#%1.name").arg(place), QString());
    return list->childAt(place)->getStr(nameField, QString());
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
