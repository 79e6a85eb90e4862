#include "keptstate.h"

#include "simulator.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>

namespace simulator
{

namespace
{
const QString kArm = QStringLiteral("arm");
const QString kJoints = QStringLiteral("joints");
const QString kHub = QStringLiteral("hub");
const QString kName = QStringLiteral("name");
const QString kType = QStringLiteral("type");
const QString kValue = QStringLiteral("value");

QJsonObject robotOf(const RobotState &robot)
{
    QJsonObject object = robot.toJson();
    object.remove(QStringLiteral("power"));
    object.remove(QStringLiteral("state"));
    object.insert(QStringLiteral("robot_template"), robot.values().robotTemplate);
    return object;
}

QJsonArray framesOf(const Frames &frames, Frames::Kind kind, Frames::List list)
{
    QJsonArray array;
    for (const Frames::Frame &frame : frames.list(kind, list)) {
        const Pose &pose = frame.pose;
        array += QJsonObject {
            {kName, frame.name},
            {QStringLiteral("pose"), QJsonArray {pose.x, pose.y, pose.z, pose.a, pose.b, pose.c}}};
    }
    return array;
}

QJsonObject listsOf(const Frames &frames, Frames::Kind kind)
{
    return {{QStringLiteral("project"), framesOf(frames, kind, Frames::Project)},
            {QStringLiteral("global"), framesOf(frames, kind, Frames::Global)}};
}

QJsonObject ioOf(const IoSignals::Values &io)
{
    QJsonArray list;
    for (const IoSignals::Signal &signal : io.list)
        list += QJsonObject {{kName, signal.name},
                             {kType, IoSignals::typeNames().at(signal.type - 1)},
                             {kValue, signal.value}};
    return {{QStringLiteral("simulated"), io.simulated}, {QStringLiteral("signals"), list}};
}

QJsonArray variablesOf(const Variables &variables)
{
    QJsonArray list;
    for (const Variables::Variable &variable : variables.own())
        list += QJsonObject {{kName, variable.name},
                             {kType, variable.type},
                             {kValue, variable.value},
                             {QStringLiteral("pers"), variable.persistent}};
    return list;
}

QJsonObject projectOf(const Projects &projects, const Variables &variables)
{
    const QJsonObject overview = projects.toJson();
    return {{QStringLiteral("autoload"), overview[QStringLiteral("autoload_prj_path")]},
            {QStringLiteral("projects"), overview[QStringLiteral("projects")]},
            {QStringLiteral("open"), projects.current()},
            {QStringLiteral("values"), variables.changedProjectValues()}};
}

/** Without what the simulator itself shows there of the robot, and what clients watch. */
QJsonObject hubOf(const HubData &data)
{
    const QString motion = QStringLiteral("motion");
    const QString move = QStringLiteral("move");
    QJsonObject hub = data.snapshot();
    hub.remove(QStringLiteral("monitor"));
    QJsonObject chosen;
    for (const QString &key : {QStringLiteral("tool"), QStringLiteral("wobj")})
        chosen.insert(key, data.value(motion + QLatin1Char('.') + key));
    hub.insert(motion, chosen);
    QJsonObject others = hub[move].toObject();
    others.remove(QStringLiteral("last_error_with_setting"));
    hub.insert(move, others);
    return hub;
}

/** Whether the member is a list that stays as it is but for its elements' values. */
bool hasValues(const QString &section, const QString &member)
{
    return section.isEmpty()
        ? member == QLatin1String("registers") || member == QLatin1String("variables")
        : section == QLatin1String("io") && member == QLatin1String("signals");
}

QHash<QString, QJsonObject> byName(const QJsonValue &list)
{
    QHash<QString, QJsonObject> elements;
    for (const QJsonValue &element : list.toArray())
        elements.insert(element[kName].toString(), element.toObject());
    return elements;
}

QJsonArray changedElements(const QJsonValue &base, const QJsonValue &now)
{
    const auto before = byName(base);
    QJsonArray changed;
    for (const QJsonValue &element : now.toArray()) {
        if (before.value(element[kName].toString()) != element.toObject())
            changed += element;
    }
    return changed;
}

/** A register has as many texts as the scenario says, and no type. */
bool fits(const QJsonObject &element, const QJsonObject &change)
{
    return element[kType] == change[kType]
        && (element.contains(kType)
            || element[kValue].toArray().size() == change[kValue].toArray().size());
}

QJsonArray restoredElements(const QJsonValue &base, const QJsonValue &changed)
{
    const auto changes = byName(changed);
    QJsonArray restored;
    for (const QJsonValue &entry : base.toArray()) {
        QJsonObject element = entry.toObject();
        const auto change = changes.constFind(element[kName].toString());
        if (change != changes.cend() && fits(element, *change))
            element.insert(kValue, change->value(kValue));
        restored += element;
    }
    return restored;
}

QJsonObject changedMembers(const QString &section, const QJsonObject &base, const QJsonObject &now)
{
    QJsonObject changed;
    for (auto member = now.begin(); member != now.end(); ++member) {
        const QString name = member.key();
        const QJsonValue before = base[name];
        if (before == *member)
            continue;
        if (hasValues(section, name))
            changed.insert(name, changedElements(before, *member));
        else if (section.isEmpty() && member->isObject())
            changed.insert(name, changedMembers(name, before.toObject(), member->toObject()));
        else
            changed.insert(name, *member);
    }
    return changed;
}

QJsonObject restoredMembers(const QString &section, const QJsonObject &base,
                            const QJsonObject &changes)
{
    QJsonObject restored = base;
    for (auto change = changes.begin(); change != changes.end(); ++change) {
        const QString name = change.key();
        const QJsonValue before = base[name];
        if (hasValues(section, name))
            restored.insert(name, restoredElements(before, *change));
        else if (section.isEmpty() && change->isObject())
            restored.insert(name, restoredMembers(name, before.toObject(), change->toObject()));
        else
            restored.insert(name, *change);
    }
    return restored;
}

/** What keptState() tells, out of one scenario into another. */
Scenario taken(const Scenario &state, Scenario scenario)
{
    const RobotState::Values before = scenario.robot;
    scenario.robot = state.robot;
    scenario.robot.power = before.power;
    scenario.robot.program = before.program;
    scenario.joints = state.joints;
    scenario.frames = state.frames;
    for (int i = 0; i < scenario.io.list.size(); ++i)
        scenario.io.list[i].value = state.io.list.at(i).value;
    scenario.io.simulated = state.io.simulated;
    scenario.registers = state.registers;
    scenario.variables = state.variables;
    scenario.project.autoloadPath = state.project.autoloadPath;
    scenario.project.names = state.project.names;
    scenario.project.open = state.project.open;
    scenario.project.values = state.project.values;
    for (auto key = state.hub.begin(); key != state.hub.end(); ++key)
        scenario.hub.insert(key.key(), *key);
    return scenario;
}
} // namespace

QJsonObject keptState(Simulator &simulator)
{
    QJsonArray joints;
    for (const double angle : simulator.motion().joints())
        joints += angle;
    return {{QStringLiteral("robot"), robotOf(simulator.robot())},
            {kArm, simulator.armName()},
            {kJoints, joints},
            {QStringLiteral("tools"), listsOf(simulator.frames(), Frames::Tool)},
            {QStringLiteral("wobjs"), listsOf(simulator.frames(), Frames::WorkObject)},
            {QStringLiteral("io"), ioOf(simulator.io().values())},
            {QStringLiteral("registers"), simulator.registers().toJson()},
            {QStringLiteral("variables"), variablesOf(simulator.variables())},
            {QStringLiteral("project"), projectOf(simulator.projects(), simulator.variables())},
            {kHub, hubOf(simulator.hub())}};
}

QJsonObject changedState(const QJsonObject &base, const QJsonObject &now)
{
    QJsonObject changed = changedMembers(QString(), base, now);
    if (changed.contains(kJoints))
        changed.insert(kArm, now[kArm]);
    return changed;
}

std::optional<Scenario> withState(const Scenario &scenario, const QByteArray &changes,
                                  QString *error)
{
    if (!Scenario::fromText(changes, error))
        return std::nullopt;
    Simulator before(scenario);
    const QJsonObject base = keptState(before);
    QJsonObject change = QJsonDocument::fromJson(changes).object();
    if (change[kArm] != base[kArm])
        change.remove(kJoints);
    change.remove(kArm);
    const QJsonObject restored = restoredMembers(QString(), base, change);
    const auto state = Scenario::fromText(QJsonDocument(restored).toJson(), error);
    return state ? std::make_optional(taken(*state, scenario)) : std::nullopt;
}

} // namespace simulator
