#include "pathcheck.h"

#include "numbers.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

namespace simulator
{

namespace
{
/** Below this dexterity a path passes near a singularity. */
constexpr double kNearSingularity = 0.02;

MotionError noPosition(const QString &name, const QString &why)
{
    return {MotionError::NoPosition, QStringLiteral("point '%1': %2").arg(name, why)};
}

QVector<double> members(const QJsonValue &object, const QStringList &names)
{
    QVector<double> numbers;
    for (const QString &name : names)
        numbers += object[name].toDouble();
    return numbers;
}

Pose poseOf(const QJsonValue &frame)
{
    return Pose::fromNumbers(
        members(frame[QStringLiteral("pos")],
                {QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("z")})
        + members(frame[QStringLiteral("ori")][QStringLiteral("euler")],
                  {QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")}));
}

Configuration configurationOf(const QJsonValue &conf)
{
    QStringList names;
    for (int quadrant = 1; quadrant <= Configuration::kQuadrants; ++quadrant)
        names += QStringLiteral("cf%1").arg(quadrant);
    return Configuration::fromNumbers(members(conf, names + QStringList {QStringLiteral("cfx")}));
}

Reply answer(const MotionProblem &problem)
{
    return Reply::done(problem ? problem->toJson() : QJsonObject());
}
} // namespace

PathCheck::PathCheck(CommandRegistry &registry, const Context &context)
    : m_context(context)
{
    registry.add(QStringLiteral("move.path.check"), [this](const QJsonValue &names, Session &) {
        // A refusal would look like a path without an error to who reads the answer alone.
        if (names.toArray().size() != 2 || !names[0].isString() || !names[1].isString())
            return answer(MotionError {MotionError::BadRequest,
                                       QStringLiteral("the names of two points are needed")});
        return answer(check(names[0].toString(), names[1].toString()));
    });
}

std::optional<QJsonArray> PathCheck::points() const
{
    const QString path = m_context.pointsFile();
    if (path.isEmpty())
        return std::nullopt;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QJsonObject document = QJsonDocument::fromJson(file.readAll()).object();
    return document.value(QStringLiteral("points")).toArray();
}

PathCheck::Found PathCheck::find(const QJsonArray &points, const QString &name) const
{
    for (const QJsonValue &point : points) {
        if (point[QStringLiteral("name")].toString() == name)
            return read(name, point[QStringLiteral("value")][QStringLiteral("[0][0][0]")]);
    }
    return noPosition(name, QStringLiteral("the controller does not have it"));
}

PathCheck::Found PathCheck::read(const QString &name, const QJsonValue &element) const
{
    const QJsonValue coord = element[QStringLiteral("coord")];
    const QString tool = coord[QStringLiteral("tool")].toString(QStringLiteral("tool0"));
    const QString wobj = coord[QStringLiteral("wobj")].toString(QStringLiteral("wobj0"));
    const Frames::Frame *inFlange = m_context.frames.find(Frames::Tool, tool);
    const Frames::Frame *inBase = m_context.frames.find(Frames::WorkObject, wobj);
    if (inFlange == nullptr || inBase == nullptr)
        return MotionError {MotionError::UnknownFrame,
                            QStringLiteral("point '%1': there is no tool '%2' or work object '%3'")
                                .arg(name, tool, wobj)};

    Position position;
    position.target.tool = inFlange->pose.toFrame();
    const QJsonValue pose = element[QStringLiteral("pose")];
    const auto inner = numbersOf(element[QStringLiteral("inner_pos")], Configuration::kQuadrants);
    if (pose.isObject()) {
        position.target.pose
            = inBase->pose.toFrame() * poseOf(pose[QStringLiteral("frame")]).toFrame();
        const QJsonValue conf = element[QStringLiteral("conf")];
        if (conf.isObject())
            position.target.configuration = configurationOf(conf);
        return position;
    }
    if (!inner)
        return noPosition(name, QStringLiteral("its first element holds no position"));
    position.joints = inner->mid(0, m_context.arm.axisCount());
    position.target.pose = m_context.arm.flange(position.joints) * position.target.tool;
    position.target.configuration = m_context.arm.configuration(position.joints);
    return position;
}

std::variant<Joints, MotionError> PathCheck::jointsOf(const Position &position) const
{
    const PathPlanner planner(m_context.arm);
    if (position.joints.isEmpty())
        return planner.reach(position.target, m_context.motion.joints());
    if (const Refusal refusal = m_context.arm.checkJoints(position.joints))
        return MotionError {MotionError::JointLimit, *refusal};
    return position.joints;
}

MotionProblem PathCheck::check(const QString &from, const QString &to) const
{
    const auto records = points();
    if (!records)
        return noPosition(from, QStringLiteral("the controller has no points of the project"));
    const Found start = find(*records, from);
    const Found end = find(*records, to);
    for (const Found *found : {&start, &end}) {
        if (const auto *error = std::get_if<MotionError>(found))
            return *error;
    }
    const auto joints = jointsOf(std::get<Position>(start));
    if (const auto *error = std::get_if<MotionError>(&joints))
        return *error;
    const auto path = PathPlanner(m_context.arm)
                          .linear(std::get<Joints>(joints), std::get<Position>(end).target);
    if (const auto *error = std::get_if<MotionError>(&path))
        return *error;
    if (std::get<Path>(path).dexterity < kNearSingularity)
        return MotionError {MotionError::NearSingularity,
                            QStringLiteral("the path passes near a singularity")};
    return std::nullopt;
}

} // namespace simulator
