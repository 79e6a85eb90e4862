#include <zeplet/interface/interfacemanager.h>

#include <ostrel/moduleobject.h>
#include <zeplet/interface/nodejson_p.h>
#include <zeplet/log/hostlines_p.h>
#include <zeplet/projectdata/pointfields_p.h>
#include <zeplet/projectdata/pointrecords_p.h>
#include <zeplet/projectdata/projectrecords_p.h>
#include <zeplet/projectdata/robotposition_p.h>

namespace zeplet
{

using ostrel::ModuleObject;

namespace
{

void writeElementError(const QString &problem, const QString &name, const QString &index)
{
    errorLine() << problem << ", name=" << name << " index=" << index;
}

QString selectedOr(const QString &given, const QString &key, const QString &standard)
{
    return given.isEmpty() ? m(key)->getStr(standard) : given;
}

} // namespace

QStringList InterfaceManager::getPointNameList()
{
    ModuleObject *list = pointList();
    QStringList names;
    const int count = list->childCount();
    names.reserve(count);
    for (int place = 0; place < count; ++place)
        names.append(pointNameAt(list, place));
    return names;
}

QStringList InterfaceManager::getPointValueIndexList(const QString &name)
{
    return collectPointValueIndexes(findPointByName(pointList(), name, nullptr));
}

QVector<int> InterfaceManager::getPointDimensions(const QString &name)
{
    ModuleObject *record = findPointByName(pointList(), name, nullptr);
    if (!record)
        return {};
    if (!record->contains(QStringLiteral("d")))
        return {countPointValueElements(record), 0, 0};
    return {record->getInt(QStringLiteral("d.#0"), 0), record->getInt(QStringLiteral("d.#1"), 0),
            record->getInt(QStringLiteral("d.#2"), 0)};
}

QVector<double> InterfaceManager::getPointDataByName(const QString &name, const QString &index)
{
    const QString level = normalizePointValueIndex(index);
    const ModuleObject *element
        = findPointElement(findPointByName(pointList(), name, nullptr), level);
    if (!element) {
        writeElementError(QStringLiteral("getPointDataByName: value index not found"), name, level);
        return {};
    }
    if (!element->contains(QStringLiteral("pose"))) {
        writeElementError(QStringLiteral("getPointDataByName: no cart pose at index"), name, level);
        return {};
    }
    QVector<double> pose;
    for (const char *field : poseFields)
        pose.append(element->getDouble(QLatin1String(field), 0.0));
    return pose;
}

QVector<double> InterfaceManager::getPointJointDataByName(const QString &name, const QString &index)
{
    const QString level = normalizePointValueIndex(index);
    const ModuleObject *element
        = findPointElement(findPointByName(pointList(), name, nullptr), level);
    if (!element) {
        writeElementError(QStringLiteral("getPointJointDataByName: not found"), name, level);
        return {};
    }
    if (!element->contains(QStringLiteral("inner_pos"))) {
        writeElementError(QStringLiteral("getPointJointDataByName: no inner_pos"), name, level);
        return {};
    }
    QVector<double> joints;
    for (int joint = 0; joint < robotJoints; ++joint)
        joints.append(element->getDouble(jointField(joint), 0.0));
    return joints;
}

QJsonObject InterfaceManager::getPointObjDataByName(const QString &name)
{
    ModuleObject *list = pointList();
    const int place = placeOfExactName(list, name);
    return place < 0 ? QJsonObject() : nodeToJson(list->childAt(place)).toObject();
}

QJsonValue InterfaceManager::getCurrentPointData(const QString &tool, const QString &wobj)
{
    const QString usedTool
        = selectedOr(tool, QStringLiteral("tavik.toolpage.tool"), QStringLiteral("tool0"));
    const QString usedWobj
        = selectedOr(wobj, QStringLiteral("tavik.toolpage.wobj"), QStringLiteral("wobj0"));
    return nodeToJson(requestRobotPosition(usedTool, usedWobj));
}

bool InterfaceManager::checkPointSame(const QString &a, const QString &b)
{
    return a == b;
}

} // namespace zeplet
