#include <zeplet/interface/interfacemanager.h>

#include <ostrel/moduleobject.h>
#include <zeplet/log/hostlines_p.h>
#include <zeplet/projectdata/jsonlimits_p.h>
#include <zeplet/projectdata/pointhotupdate.h>
#include <zeplet/projectdata/pointrecords_p.h>
#include <zeplet/projectdata/pointsaving.h>
#include <zeplet/projectdata/projectrecords_p.h>

namespace zeplet
{

using ostrel::ModuleObject;

namespace
{

const QString valueField = QStringLiteral("value");

ModuleObject *ensureValue(ModuleObject *point)
{
    ModuleObject *value = pointValue(point);
    return value ? value : point->setChild(nullptr, valueField, QVariant());
}

// A new element starts as the first one: its pose is a place that the robot can reach.
void addElement(ModuleObject *point, ModuleObject *value, const QString &index)
{
    const QString first = collectPointValueIndexes(point).value(0);
    ModuleObject *element = value->setChild(nullptr, index, QVariant());
    if (!first.isEmpty())
        element->copyFrom(nullptr, *value->child(first));
}

} // namespace

bool InterfaceManager::setPointElementJson(const QString &name, const QString &index,
                                           const QJsonObject &element)
{
    int position = -1;
    ModuleObject *point = findPointByName(pointList(), name, &position);
    if (element.isEmpty() || !point)
        return false;
    if (!canBeStored(element)) {
        errorLine() << "setPointElementJson: numbers that are not finite, or too many levels, name="
                    << name;
        return false;
    }
    const QString level = normalizePointValueIndex(index);
    ModuleObject *value = ensureValue(point);
    ModuleObject *stored = value->child(level);
    if (!stored)
        stored = value->setChild(nullptr, level, QVariant());
    stored->clear(nullptr);
    stored->importFromJson(nullptr, element, true, true, true);
    touch(point);
    return syncPointElementAfterEdit(point, position, level);
}

bool InterfaceManager::ensurePointElement(const QString &name, const QString &index)
{
    int position = -1;
    ModuleObject *point = findPointByName(pointList(), name, &position);
    if (!point) {
        errorLine() << "ensurePointElement: point not found, name=" << name;
        return false;
    }
    const QString level = normalizePointValueIndex(index);
    ModuleObject *value = ensureValue(point);
    if (value->child(level))
        return true;
    addElement(point, value, level);
    touch(point);
    return syncPointElementAfterEdit(point, position, level);
}

bool InterfaceManager::removePointElement(const QString &name, const QString &index)
{
    int position = -1;
    ModuleObject *point = findPointByName(pointList(), name, &position);
    if (!point) {
        errorLine() << "removePointElement: point not found, name=" << name;
        return false;
    }
    const QString level = normalizePointValueIndex(index);
    ModuleObject *element = findPointElement(point, level);
    if (!element) {
        errorLine() << "removePointElement: index not found, name=" << name << " index=" << level;
        return false;
    }
    if (countPointValueElements(point) < 2)
        return removePoint(name);
    element->remove(nullptr);
    touch(point);
    triggerPointHotUpdate(QStringLiteral("edit"), position);
    return saveAndPushPoint();
}

} // namespace zeplet
