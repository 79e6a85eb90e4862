#include <zeplet/projectdata/pointteaching.h>

#include <ostrel/moduleobject.h>
#include <zeplet/interface/interfacemanager.h>
#include <zeplet/log/hostlines_p.h>
#include <zeplet/projectdata/newpoint_p.h>
#include <zeplet/projectdata/pointfields_p.h>
#include <zeplet/projectdata/pointrecords_p.h>
#include <zeplet/projectdata/pointsaving.h>
#include <zeplet/projectdata/projectrecords_p.h>
#include <zeplet/projectdata/robotposition_p.h>

namespace zeplet
{

using ostrel::ModuleObject;

namespace
{

// In the order in which watchers of an element hear of them.
constexpr const char *targetFields[] = {"pose.frame.pos.x",
                                        "pose.frame.pos.y",
                                        "pose.frame.pos.z",
                                        "pose.elb",
                                        "pose.frame.ori.euler.a",
                                        "pose.frame.ori.euler.b",
                                        "pose.frame.ori.euler.c",
                                        "pose.frame.ori.quaternion.q1",
                                        "pose.frame.ori.quaternion.q2",
                                        "pose.frame.ori.quaternion.q3",
                                        "pose.frame.ori.quaternion.q4",
                                        "conf.cf1",
                                        "conf.cf2",
                                        "conf.cf3",
                                        "conf.cf4",
                                        "conf.cf5",
                                        "conf.cf6",
                                        "conf.cf7",
                                        "conf.cfx"};

/** Copies numbers from a part of the report, which may be missing, to an element. */
struct NumberCopy {
    ModuleObject *element;
    const ModuleObject *source;

    void copy(const QString &from, const QString &to) const
    {
        const double number = source ? source->getDouble(from, 0.0) : 0.0;
        element->set(nullptr, to, number, true);
    }
    void copy(const char *field) const { copy(QLatin1String(field), QLatin1String(field)); }
    void copyExternal(const QString &to) const
    {
        for (int joint = 0; joint < externalJoints; ++joint)
            copy(QStringLiteral("extern_pos.#%1").arg(joint), to.arg(joint));
    }
};

/** A position of the robot and how it is to be kept. */
struct Taught {
    ModuleObject report; ///< a copy: the host's own holds until someone asks again
    bool joint;
    QString tool;
    QString wobj;
    QString index;
};

void fill(ModuleObject *element, Taught &taught)
{
    fillPointValueFromCurrentPose(
        element, taught.joint, taught.report.child(QStringLiteral("joint")),
        taught.report.child(QStringLiteral("cartesian")), taught.tool, taught.wobj);
}

// The controller that gives no answer teaches zeros, which nobody must overlook.
void askForPosition(Taught &taught, const QString &name)
{
    const ModuleObject *answer = requestRobotPosition(taught.tool, taught.wobj);
    if (answer)
        taught.report.copyFrom(nullptr, *answer);
    else
        errorLine() << "addCurrentPoint: no position from the controller, taught as zeros, name="
                    << name;
}

bool teachElement(ModuleObject *point, int position, Taught &taught)
{
    ModuleObject *value = pointValue(point);
    if (!value) {
        errorLine() << "addCurrentPoint: multi-dim point missing value, name="
                    << point->getStr(QStringLiteral("name"), QString());
        return false;
    }
    ModuleObject *element = value->child(taught.index);
    if (!element)
        element = value->setChild(nullptr, taught.index, QVariant());
    fill(element, taught);
    point->set(nullptr, QStringLiteral("property"), pointProperty(taught.joint), true);
    touch(point);
    return syncPointElementAfterEdit(point, position, taught.index);
}

bool teachNewPoint(const QString &name, const QString &operation, Taught &taught)
{
    auto point = newPoint(name, taught.joint);
    ModuleObject *value = point->r(QStringLiteral("value"));
    fill(value->setChild(nullptr, taught.index, QVariant()), taught);
    return addPoint(std::move(point), operation);
}

} // namespace

void fillPointValueFromCurrentPose(ModuleObject *element, bool joint, ModuleObject *jointSource,
                                   ModuleObject *cartSource, const QString &tool,
                                   const QString &wobj)
{
    const NumberCopy joints {element, jointSource};
    const NumberCopy pose {element, cartSource};
    if (joint) {
        for (int i = 0; i < robotJoints; ++i)
            joints.copy(jointField(i), jointField(i));
        joints.copyExternal(QStringLiteral("extern_pos.#%1"));
    } else {
        for (const char *field : targetFields)
            pose.copy(field);
        joints.copyExternal(QStringLiteral("external_joint.#%1"));
    }
    element->set(nullptr, QStringLiteral("coord.tool"), tool, true);
    element->set(nullptr, QStringLiteral("coord.wobj"), wobj, true);
}

bool InterfaceManager::addCurrentPoint(const QString &name, bool joint, const QString &tool,
                                       const QString &wobj, const QString &index)
{
    if (!getRobotConnected() || name.trimmed().isEmpty())
        return false;
    Taught taught {ModuleObject(), joint, tool, wobj, normalizePointValueIndex(index)};
    askForPosition(taught, name);
    QString operation = QStringLiteral("add");
    int position = -1;
    while (ModuleObject *point = findPointByName(pointList(), name, &position)) {
        if (countPointValueElements(point) > 1)
            return teachElement(point, position, taught);
        pointList()->removeAt(nullptr, position);
        operation = QStringLiteral("edit");
    }
    return teachNewPoint(name, operation, taught);
}

} // namespace zeplet
