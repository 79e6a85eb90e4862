#include "motioncommands.h"

#include "numbers.h"
#include "profile.h"

namespace simulator
{

namespace
{
MotionError bad(const QString &text)
{
    return {MotionError::BadRequest, text};
}
} // namespace

MotionCommands::MotionCommands(CommandRegistry &registry, const Context &context)
    : m_context(context)
{
    registry.add(QStringLiteral("move.reset"), [this](const QJsonValue &, Session &) {
        m_context.motion.withdraw();
        m_context.keys.clearError();
        return Reply {};
    });
    registry.add(QStringLiteral("move.opr.enough"), [this](const QJsonValue &, Session &) {
        m_context.motion.enable();
        return Reply {};
    });
    registry.add(QStringLiteral("move.stop"), [this](const QJsonValue &, Session &) {
        m_context.motion.stop();
        return Reply {};
    });
    addMove(registry, "move.move_to.jc", Motion::Kind::Joint, true);
    addMove(registry, "move.move_to.l", Motion::Kind::Linear, true);
    addMove(registry, "move.j", Motion::Kind::Joint, false);
    addMove(registry, "move.l", Motion::Kind::Linear, false);
}

void MotionCommands::addMove(CommandRegistry &registry, const char *name, Motion::Kind kind,
                             bool isMoveTo)
{
    registry.add(
        QLatin1String(name),
        [this, kind](const QJsonValue &request, Session &) { return move(kind, request); },
        [this, isMoveTo] {
            return Profile(m_context.robot.values().version).hasMoveTo() == isMoveTo;
        });
}

Reply MotionCommands::move(Motion::Kind kind, const QJsonValue &request)
{
    // The enable that follows a refused move must not start an older one.
    m_context.motion.withdraw();
    const auto problem = prepare(kind, request);
    if (!problem)
        return {};
    m_context.keys.showError(*problem);
    return Reply::refused(problem->text);
}

/** Nothing, with the problem, where the tool or work object that clients chose is none. */
std::optional<KDL::Frame> MotionCommands::chosenFrame(Frames::Kind kind, const char *key,
                                                      MotionProblem &problem) const
{
    const QString name = m_context.hub.value(QLatin1String(key)).toString();
    if (const Frames::Frame *frame = m_context.frames.find(kind, name))
        return frame->pose.toFrame();
    problem = MotionError {MotionError::UnknownFrame,
                           QStringLiteral("%1: there is no '%2'").arg(QLatin1String(key), name)};
    return std::nullopt;
}

MotionProblem MotionCommands::prepare(Motion::Kind kind, const QJsonValue &request)
{
    const QJsonValue point = request[QStringLiteral("point")];
    const auto trans = numbersOf(point[QStringLiteral("trans")], 3);
    const auto rot = numbersOf(point[QStringLiteral("rot")], 3);
    if (!trans || !rot)
        return bad(QStringLiteral("'point.trans' and 'point.rot' have to be three numbers each"));
    const QJsonValue conf = point[QStringLiteral("conf")];
    const auto configuration = numbersOf(conf, Configuration::kNumbers);
    if (!conf.isUndefined() && !configuration)
        return bad(QStringLiteral("'point.conf' has to be eight numbers"));
    const double speed = request[QStringLiteral("traj")][QStringLiteral("speed")].toDouble();
    if (!(speed > 0))
        return bad(QStringLiteral("'traj.speed' has to be more than 0"));

    MotionProblem problem;
    const auto tool = chosenFrame(Frames::Tool, "motion.tool", problem);
    const auto wobj = chosenFrame(Frames::WorkObject, "motion.wobj", problem);
    if (problem)
        return problem;
    const KDL::Frame pose(KDL::Rotation::RPY(rot->at(0), rot->at(1), rot->at(2)),
                          KDL::Vector(trans->at(0), trans->at(1), trans->at(2)));
    MotionTarget target {*wobj * pose, *tool, std::nullopt};
    if (configuration)
        target.configuration = Configuration::fromNumbers(*configuration);
    return m_context.motion.prepare(kind, target, speed);
}

} // namespace simulator
