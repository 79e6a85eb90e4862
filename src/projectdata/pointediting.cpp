#include <zeplet/interface/interfacemanager.h>

#include <ostrel/moduleobject.h>
#include <zeplet/log/hostlines_p.h>
#include <zeplet/projectdata/newpoint_p.h>
#include <zeplet/projectdata/pointfields_p.h>
#include <zeplet/projectdata/pointrecords_p.h>
#include <zeplet/projectdata/pointsaving.h>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace zeplet
{

using ostrel::ModuleObject;

namespace
{

struct EditedElement {
    ModuleObject *point = nullptr;
    int position = -1;
    ModuleObject *element = nullptr; ///< null where there is none, which is in the log then
};

EditedElement findEdited(const QString &operation, const QString &name, const QString &index)
{
    EditedElement edited;
    edited.point = findPointByName(pointList(), name, &edited.position);
    edited.element = findPointElement(edited.point, index);
    if (!edited.point)
        errorLine() << operation << ": point not found, name=" << name;
    else if (!edited.element)
        errorLine() << operation << ": value index not found, name=" << name << " index=" << index;
    return edited;
}

// Only the values that are written count.
bool areFinite(const QString &operation, const QString &name, const QVector<double> &values,
               int used)
{
    const auto end = values.begin() + std::min(used, values.size());
    const bool finite
        = std::all_of(values.begin(), end, [](double value) { return std::isfinite(value); });
    if (!finite)
        errorLine() << operation << ": not all values are finite, name=" << name;
    return finite;
}

bool finishEdit(const EditedElement &edited, bool joint, const QString &index)
{
    edited.point->set(nullptr, QStringLiteral("property"), pointProperty(joint), true);
    return syncPointElementAfterEdit(edited.point, edited.position, index);
}

} // namespace

bool InterfaceManager::createPoint(const QString &name, bool joint, bool persistent)
{
    const QString trimmed = name.trimmed();
    if (trimmed.isEmpty())
        return false;
    if (findPointByName(pointList(), trimmed, nullptr)) {
        errorLine() << "createPoint: already exists, name=" << trimmed;
        return false;
    }
    const QString persistence = persistent ? QStringLiteral("true") : QStringLiteral("false");
    auto point = newPoint(trimmed, joint, persistence);
    for (const char *size : {"d.#0", "d.#1", "d.#2"})
        point->set(nullptr, QLatin1String(size), 0, true);
    point->r(QStringLiteral("value"))->setChild(nullptr, firstPointElement(), QVariant());
    return addPoint(std::move(point), QStringLiteral("add"));
}

bool InterfaceManager::setPointCartData(const QString &name, const QVector<double> &pose,
                                        const QString &index)
{
    const QString operation = QStringLiteral("setPointCartData");
    constexpr int poseSize = int(std::size(poseFields));
    if (pose.size() < poseSize) {
        errorLine() << operation << ": xyz_abc size < 6";
        return false;
    }
    const QString level = normalizePointValueIndex(index);
    const EditedElement edited = findEdited(operation, name, level);
    if (!edited.element || !areFinite(operation, name, pose, poseSize))
        return false;
    for (int i = 0; i < poseSize; ++i)
        edited.element->set(nullptr, QLatin1String(poseFields[i]), pose.at(i), true);
    return finishEdit(edited, false, level);
}

bool InterfaceManager::setPointJointData(const QString &name, const QVector<double> &joints,
                                         const QString &index)
{
    const QString operation = QStringLiteral("setPointJointData");
    if (joints.isEmpty()) {
        errorLine() << operation << ": joints empty";
        return false;
    }
    const QString level = normalizePointValueIndex(index);
    const EditedElement edited = findEdited(operation, name, level);
    if (!edited.element || !areFinite(operation, name, joints, robotJoints))
        return false;
    for (int joint = 0; joint < robotJoints; ++joint)
        edited.element->set(nullptr, jointField(joint), joints.value(joint), true);
    return finishEdit(edited, true, level);
}

} // namespace zeplet
