#include "scenario.h"

#include "control.h"
#include "framesreader.h"
#include "hubdata.h"
#include "ioreader.h"
#include "jsonreader.h"
#include "projectreader.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <limits>

namespace simulator
{

namespace
{
constexpr int kMaxStepMs = 24 * 3600 * 1000;
constexpr int kMinStepMs = 10;
constexpr int kProgramStepMs = 1000;

RobotState::Values readRobot(const QJsonValue &value, JsonError &error)
{
    RobotState::Values robot;
    if (value.isUndefined())
        return robot;
    JsonReader reader(value, QStringLiteral("robot"), error);
    reader.allowOnly({QStringLiteral("power"), QStringLiteral("mode"), QStringLiteral("state"),
                      QStringLiteral("level"), QStringLiteral("id"), QStringLiteral("version"),
                      QStringLiteral("robot"), QStringLiteral("robot_template")});
    const int max = std::numeric_limits<int>::max();
    const auto flag = [&reader](const char *name, const char *off, const char *on) {
        return reader.choice(QLatin1String(name), {QLatin1String(off), QLatin1String(on)}, 0) == 1;
    };
    robot.power = flag("power", "off", "on");
    robot.automatic = flag("mode", "manual", "auto");
    robot.program = flag("state", "idle", "program");
    robot.level = reader.integer(QStringLiteral("level"), robot.level, 0, max);
    robot.id = reader.text(QStringLiteral("id"), robot.id);
    robot.version = reader.text(QStringLiteral("version"), robot.version);
    robot.robot = reader.text(QStringLiteral("robot"), robot.robot);
    robot.robotTemplate
        = reader.integer(QStringLiteral("robot_template"), robot.robotTemplate, 0, max);
    if (robot.program && !robot.power)
        reader.report(QStringLiteral("state"),
                      QStringLiteral("a program cannot run while the motors are off"));
    return robot;
}

/** Checks that each name of the tree is one step of a key. */
void checkHub(const QJsonObject &tree, const QString &path, JsonError &error)
{
    for (auto member = tree.begin(); member != tree.end(); ++member) {
        const QString below = path + QLatin1Char('.') + member.key();
        if (member.key().isEmpty() || member.key().contains(QLatin1Char('.')))
            error.report(below, QStringLiteral("a key's step is a name without dots"));
        checkHub(member.value().toObject(), below, error);
    }
}

Joints readJoints(JsonReader &reader, Arm::Kind kind)
{
    const Arm arm(kind);
    const QString name = QStringLiteral("joints");
    const Joints joints = reader.numbers(name, arm.axisCount(), {});
    if (const auto refusal = joints.isEmpty() ? std::nullopt : arm.checkJoints(joints))
        reader.report(name, *refusal);
    return joints;
}

QHash<QString, QJsonValue> toHash(const QJsonObject &object)
{
    QHash<QString, QJsonValue> hash;
    for (auto member = object.begin(); member != object.end(); ++member)
        hash.insert(member.key(), member.value());
    return hash;
}

Answers readAnswers(const QJsonValue &value, JsonError &error)
{
    if (value.isUndefined())
        return {};
    JsonReader reader(value, QStringLiteral("answers"), error);
    reader.allowOnly(
        {QStringLiteral("controller"), QStringLiteral("hub"), QStringLiteral("plugin")});
    Answers answers {toHash(reader.object(QStringLiteral("controller"))),
                     toHash(reader.object(QStringLiteral("hub"))),
                     toHash(reader.object(QStringLiteral("plugin")))};
    for (auto answer = answers.plugin.cbegin(); answer != answers.plugin.cend(); ++answer) {
        if (!answer->isArray())
            error.report(QStringLiteral("answers.plugin.") + answer.key(),
                         QStringLiteral("expected an array"));
    }
    return answers;
}

Fault readFault(const QJsonValue &value, const QString &path, JsonError &error)
{
    JsonReader reader(value, path, error);
    reader.allowOnly({QStringLiteral("fault"), QStringLiteral("command"), QStringLiteral("times"),
                      QStringLiteral("ms"), QStringLiteral("answer")});
    const QString name = reader.text(QStringLiteral("fault"), QString());
    const auto kind = Faults::kindOf(name);
    if (!kind) {
        reader.report(QStringLiteral("fault"), Faults::unknownName(name));
        return {};
    }
    const auto only = [&reader](const char *member, bool fits) {
        if (reader.has(QLatin1String(member)) && !fits)
            reader.report(QLatin1String(member), QStringLiteral("does not go with this fault"));
    };
    only("command", !Faults::isCondition(*kind));
    only("times", !Faults::isCondition(*kind));
    only("ms", Faults::isCondition(*kind) || *kind == FaultKind::LateAnswer);
    only("answer", *kind == FaultKind::WrongAnswer);
    Fault fault = Faults::withDefaults(*kind);
    fault.command = reader.text(QStringLiteral("command"), QString());
    fault.times = reader.integer(QStringLiteral("times"), 0, 1, Faults::kMaxTimes);
    fault.ms = reader.integer(QStringLiteral("ms"), fault.ms, 1, Faults::kMaxMilliseconds);
    if (reader.has(QStringLiteral("answer")))
        fault.answer = reader.value(QStringLiteral("answer"));
    return fault;
}

QStringList readLines(JsonReader &reader, JsonError &error)
{
    const QString name = QStringLiteral("do");
    const QJsonValue value = reader.value(name);
    const QJsonArray given = value.isArray() ? value.toArray() : QJsonArray {value};
    if (given.isEmpty())
        reader.report(name, QStringLiteral("expected at least one control line"));
    QStringList lines;
    for (const QJsonValue &line : given) {
        const QString path = value.isArray() ? elementPath(reader.pathOf(name), lines.size())
                                             : reader.pathOf(name);
        const ControlLine parsed = ControlLine::parse(line.toString());
        if (!line.isString())
            error.report(path, QStringLiteral("expected a control line or an array of them"));
        else if (!parsed.error.isEmpty())
            error.report(path, parsed.error);
        lines += line.toString();
    }
    return lines;
}

TimelineStep readStep(const QJsonValue &value, const QString &path, JsonError &error)
{
    JsonReader reader(value, path, error);
    reader.allowOnly({QStringLiteral("after"), QStringLiteral("every"), QStringLiteral("do")});
    TimelineStep step;
    step.every = reader.integer(QStringLiteral("every"), 0, kMinStepMs, kMaxStepMs);
    step.after = reader.integer(QStringLiteral("after"), step.every, 0, kMaxStepMs);
    step.lines = readLines(reader, error);
    return step;
}

Program::Values readProgram(const QJsonValue &value, JsonError &error)
{
    if (value.isUndefined())
        return {};
    JsonReader reader(value, QStringLiteral("program"), error);
    reader.allowOnly({QStringLiteral("every"), QStringLiteral("do")});
    Program::Values program;
    program.every = reader.integer(QStringLiteral("every"), kProgramStepMs, kMinStepMs, kMaxStepMs);
    program.lines = readLines(reader, error);
    return program;
}

Scenario readScenario(const QJsonObject &document, JsonError &error)
{
    JsonReader reader(document, QString(), error);
    reader.allowOnly({QStringLiteral("robot"), QStringLiteral("arm"), QStringLiteral("joints"),
                      QStringLiteral("hub"), QStringLiteral("answers"), QStringLiteral("faults"),
                      QStringLiteral("timeline"), QStringLiteral("tools"), QStringLiteral("wobjs"),
                      QStringLiteral("io"), QStringLiteral("registers"), QStringLiteral("project"),
                      QStringLiteral("system_variables"), QStringLiteral("variables"),
                      QStringLiteral("hot_update"), QStringLiteral("program")});
    Scenario scenario;
    scenario.robot = readRobot(reader.value(QStringLiteral("robot")), error);
    scenario.arm
        = static_cast<Arm::Kind>(reader.choice(QStringLiteral("arm"), Arm::kindNames(), 0));
    scenario.joints = readJoints(reader, scenario.arm);
    scenario.frames = readFrames(reader, error);
    scenario.hub = reader.object(QStringLiteral("hub"));
    checkHub(scenario.hub, QStringLiteral("hub"), error);
    scenario.answers = readAnswers(reader.value(QStringLiteral("answers")), error);
    scenario.faults = readArray(reader.array(QStringLiteral("faults")), QStringLiteral("faults"),
                                error, readFault);
    scenario.timeline = readArray(reader.array(QStringLiteral("timeline")),
                                  QStringLiteral("timeline"), error, readStep);
    scenario.io = readIo(reader, error);
    scenario.registers = readRegisters(reader, error);
    scenario.project = readProject(reader, error);
    scenario.systemVariables = readSystemVariables(reader, error);
    scenario.variables = readVariables(reader, error);
    scenario.hotUpdate = readHotUpdate(reader, error);
    scenario.program = readProgram(reader.value(QStringLiteral("program")), error);
    return scenario;
}

/** "line 3, column 7" of an offset into a text. */
QString position(const QByteArray &text, int offset)
{
    const QByteArray before = text.left(offset);
    return QStringLiteral("line %1, column %2")
        .arg(before.count('\n') + 1)
        .arg(offset - before.lastIndexOf('\n'));
}
} // namespace

std::optional<Scenario> Scenario::fromText(const QByteArray &text, QString *error)
{
    QJsonParseError parsed;
    const QJsonDocument document = QJsonDocument::fromJson(text, &parsed);
    if (parsed.error != QJsonParseError::NoError) {
        *error = position(text, parsed.offset) + QStringLiteral(": ") + parsed.errorString();
        return std::nullopt;
    }
    if (!document.isObject()) {
        *error = QStringLiteral("expected an object, found an array");
        return std::nullopt;
    }
    JsonError found;
    const Scenario scenario = readScenario(document.object(), found);
    if (found.isEmpty())
        return scenario;
    *error = found.text;
    return std::nullopt;
}

std::optional<Scenario> Scenario::fromFile(const QString &path, QString *error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = QStringLiteral("%1: %2").arg(path, file.errorString());
        return std::nullopt;
    }
    const QByteArray text = file.read(kMaxFileSize + 1);
    if (text.size() > kMaxFileSize) {
        *error = QStringLiteral("%1: larger than %2 bytes").arg(path).arg(kMaxFileSize);
        return std::nullopt;
    }
    auto scenario = fromText(text, error);
    if (!scenario)
        *error = path + QStringLiteral(": ") + *error;
    return scenario;
}

} // namespace simulator
