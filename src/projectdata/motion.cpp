#include <zeplet/interface/interfacemanager_p.h>

#include <nexo/nexo.h>
#include <ostrel/moduleobject.h>
#include <zeplet/interface/controllerversions_p.h>
#include <zeplet/interface/finite_p.h>
#include <zeplet/interface/nodejson_p.h>
#include <zeplet/log/hostlines_p.h>
#include <zeplet/log/jsontext_p.h>
#include <zeplet/projectdata/pointrecords_p.h>

namespace zeplet
{

using ostrel::ModuleObject;

namespace
{

enum Move { Sent = 0, NoTarget = -1, NoConfiguration = -2 };
enum Path { Forbidden = -2, Allowed = 0, SamePoint = 1 };

constexpr double millimetresPerMetre = 1000;
constexpr double radiansPerDegree = 0.017453292519943295;
constexpr int harmlessPathError = -50003;

const QString motionErrors = QStringLiteral("move.last_error_with_setting");

/** What a motion command needs of a point's element, in the units of the command; a list is empty
 *  where the element has nothing of that kind. */
struct Target {
    QVariantList position; ///< metres
    QVariantList rotation; ///< radians
    QVariantList configuration;
};

QVariantList numbers(ModuleObject *element, const QString &path,
                     std::initializer_list<const char *> fields)
{
    if (!element->contains(path) || element->r(path)->childCount() == 0)
        return {};
    QVariantList values;
    for (const char *field : fields)
        values.append(element->getDouble(path + QLatin1Char('.') + QLatin1String(field), 0.0));
    return values;
}

Target targetOf(ModuleObject *element)
{
    Target target {numbers(element, QStringLiteral("pose.frame.pos"), {"x", "y", "z"}),
                   numbers(element, QStringLiteral("pose.frame.ori.euler"), {"a", "b", "c"}),
                   numbers(element, QStringLiteral("conf"),
                           {"cf1", "cf2", "cf3", "cf4", "cf5", "cf6", "cf7", "cfx"})};
    for (QVariant &millimetres : target.position)
        millimetres = millimetres.toDouble() / millimetresPerMetre;
    for (QVariant &degrees : target.rotation)
        degrees = degrees.toDouble() * radiansPerDegree;
    return target;
}

bool areFinite(const Target &target)
{
    return isFinite(QVariant(target.position + target.rotation + target.configuration));
}

/** False, with an error line, where the robot has no such place to go to. */
bool findTarget(const QString &name, Target *target)
{
    ModuleObject *list = pointList();
    // Nobody means a record without a name by asking for "".
    const int place = name.isEmpty() ? -1 : list->indexOf(QStringLiteral("name"), name);
    ModuleObject *record = list->childAt(place);
    if (!record) {
        errorLine() << "moveToStart: point not found, name=" << name;
        return false;
    }
    ModuleObject *element = findPointElement(record, firstPointElement());
    if (!element) {
        errorLine() << "moveToStart: value.[0][0][0] missing, name=" << name;
        return false;
    }
    *target = targetOf(element);
    if (areFinite(*target))
        return true;
    errorLine() << "moveToStart: value.[0][0][0] is not finite, name=" << name;
    return false;
}

void addList(ModuleObject *point, const QString &name, const QVariantList &values)
{
    if (!values.isEmpty())
        point->setChild(nullptr, name, values);
}

QString moveCommand(bool joint)
{
    if (isController23To32())
        return joint ? QStringLiteral("move.move_to.jc") : QStringLiteral("move.move_to.l");
    return joint ? QStringLiteral("move.j") : QStringLiteral("move.l");
}

} // namespace

void InterfaceManager::InterfaceManagerPrivate::watchMotionErrors(bool on)
{
    motionErrorsWatched = on;
    nexo()->watch(q, motionErrors, on);
}

void InterfaceManager::moveToStart(int &result, const QString &name, int speed, bool useConf,
                                   bool joint)
{
    Target target;
    if (!findTarget(name, &target)) {
        result = NoTarget;
        return;
    }
    nexo()->execCommand(this, QStringLiteral("move.reset"));
    d->watchMotionErrors(true);

    const bool needsConfiguration = useConf || joint;
    if (needsConfiguration && target.configuration.isEmpty()) {
        errorLine() << "moveToStart: conf missing for MoveJ/jc, name=" << name;
        result = NoConfiguration;
        return;
    }
    ModuleObject request(QStringLiteral("tmp"));
    ModuleObject *point = request.setChild(this, QStringLiteral("point"), QVariantMap());
    addList(point, QStringLiteral("trans"), target.position);
    addList(point, QStringLiteral("rot"), target.rotation);
    if (needsConfiguration)
        addList(point, QStringLiteral("conf"), target.configuration);
    request.set(this, QStringLiteral("traj.speed"), speed / 1000.0, false);

    infoLine() << " moveToStart : " << jsonText(nodeToJson(&request));
    nexo()->command(this, moveCommand(joint), &request);
    nexo()->command(this, QStringLiteral("move.opr.enough"));
    result = Sent;
}

void InterfaceManager::moveToStart(int &result, const QString &name, int speed, bool joint)
{
    moveToStart(result, name, speed, true, joint);
}

void InterfaceManager::moveToStop()
{
    d->watchMotionErrors(false);
    if (!isController23To32()) {
        nexo()->command(this, QStringLiteral("move.stop"));
        return;
    }
    ModuleObject request(QStringLiteral("tmp"));
    request.set(this, QStringLiteral("task_space"), 1, false);
    nexo()->command(this, QStringLiteral("move.stop"), &request);
}

int InterfaceManager::checkPointMoveTo(const QString &from, const QString &to)
{
    if (from == to)
        return SamePoint;
    ModuleObject names(QStringLiteral("names"));
    names.set(this, QStringLiteral("#0"), from, false);
    names.set(this, QStringLiteral("#1"), to, false);
    const ModuleObject *answer
        = nexo()->execCommand(this, QStringLiteral("move.path.check"), &names);
    if (!answer) { // nobody has allowed anything
        errorLine() << "checkPointMoveTo: no answer, from=" << from << " to=" << to;
        return Forbidden;
    }
    if (!answer->contains(QStringLiteral("error")))
        return Allowed;
    const int error = answer->getInt(QStringLiteral("error"), 0);
    return error == harmlessPathError ? Allowed : Forbidden;
}

} // namespace zeplet
