#include "pathplanner.h"

#include <QtMath>
#include <cmath>

namespace simulator
{

namespace
{
constexpr double kStepMetres = 0.005;
constexpr double kStepRadians = 0.02;
/** An axis that turns further within one step flips over. */
constexpr double kFlipDegrees = 15.0;
/** What a radian of turning on the spot counts as. */
constexpr double kMetresOfRadian = 0.25;
/** A configuration may be off by a neighbouring quadrant: an edited pose may have crossed its edge.
 */
constexpr double kNeighbour = 1.0;

double largestStep(const Joints &from, const Joints &to)
{
    double largest = 0;
    for (int axis = 0; axis < from.size(); ++axis)
        largest = qMax(largest, std::abs(to.at(axis) - from.at(axis)));
    return largest;
}

QString percent(double part)
{
    return QStringLiteral("%1 % of the way").arg(qRound(part * 100));
}
} // namespace

PathPlanner::PathPlanner(const Arm &arm)
    : m_arm(arm)
{
}

MotionError PathPlanner::limitError(int axis) const
{
    return {MotionError::JointLimit,
            QStringLiteral("an axis would leave its limits: ") + m_arm.limitText(axis)};
}

/** How long a turn takes at full speed, in seconds. */
double PathPlanner::slowestAxisTime(const Joints &from, const Joints &to) const
{
    double longest = 0;
    for (int axis = 0; axis < from.size(); ++axis)
        longest
            = qMax(longest, std::abs(to.at(axis) - from.at(axis)) / m_arm.axes().at(axis).speed);
    return longest;
}

std::variant<Joints, MotionError> PathPlanner::reach(const MotionTarget &target,
                                                     const Joints &near) const
{
    const Arm::Solution found
        = m_arm.solve(target.pose * target.tool.Inverse(), near, target.configuration);
    if (!found.joints.isEmpty())
        return found.joints;
    if (found.limitedAxis >= 0)
        return limitError(found.limitedAxis);
    return MotionError {MotionError::OutOfReach, QStringLiteral("the target is out of reach")};
}

PathPlanner::Result PathPlanner::joint(const Joints &from, const MotionTarget &target) const
{
    const auto found = reach(target, from);
    if (const auto *error = std::get_if<MotionError>(&found))
        return *error;
    return turn(from, std::get<Joints>(found));
}

Path PathPlanner::turn(const Joints &from, const Joints &to) const
{
    Path path;
    path.joints = {from, to};
    path.topSpeed = kTopSpeed;
    path.length = slowestAxisTime(from, to) * kTopSpeed;
    return path;
}

std::variant<Joints, MotionError> PathPlanner::step(const Path &path, double part) const
{
    const KDL::Frame flange = path.line->flange(part);
    const auto next = m_arm.follow(flange, path.joints.last());
    if (next && largestStep(path.joints.last(), *next) <= kFlipDegrees) {
        const int beyond = m_arm.axisBeyondLimits(*next);
        if (beyond < 0)
            return *next;
        MotionError error = limitError(beyond);
        error.text += QStringLiteral("; after ") + percent(part);
        return error;
    }
    const Arm::Solution elsewhere = m_arm.solve(flange, path.joints.last(), std::nullopt);
    if (elsewhere.joints.isEmpty() && elsewhere.limitedAxis < 0)
        return MotionError {MotionError::OutOfReach,
                            QStringLiteral("the path leaves the reach after ") + percent(part)};
    return MotionError {MotionError::Singularity,
                        QStringLiteral("the path meets a singularity after ") + percent(part)};
}

PathPlanner::Result PathPlanner::linear(const Joints &from, const MotionTarget &target) const
{
    // A target that can't be reached at all is told as such, whatever lies on the way.
    const auto end = reach(target, from);
    if (const auto *error = std::get_if<MotionError>(&end))
        return *error;

    Path path;
    path.joints = {from};
    path.line = Path::Line {m_arm.flange(from) * target.tool, target.pose, target.tool};
    path.dexterity = m_arm.dexterity(from);
    const KDL::Twist way = KDL::diff(path.line->from, path.line->to);
    path.length = qMax(way.vel.Norm(), way.rot.Norm() * kMetresOfRadian);

    const int steps
        = qMax(1, qCeil(qMax(way.vel.Norm() / kStepMetres, way.rot.Norm() / kStepRadians)));
    double slowest = 0;
    for (int number = 1; number <= steps; ++number) {
        const auto next = step(path, static_cast<double>(number) / steps);
        if (const auto *error = std::get_if<MotionError>(&next))
            return *error;
        slowest = qMax(slowest, slowestAxisTime(path.joints.last(), std::get<Joints>(next)));
        path.joints += std::get<Joints>(next);
        path.dexterity = qMin(path.dexterity, m_arm.dexterity(path.joints.last()));
    }
    // No axis may be asked for more than it can do anywhere on the way.
    path.topSpeed = slowest > 0 ? qMin(kTopSpeed, path.length / steps / slowest) : kTopSpeed;

    if (target.configuration
        && target.configuration->farthestQuadrant(m_arm.configuration(path.joints.last()),
                                                  m_arm.axisCount())
            > kNeighbour)
        return MotionError {MotionError::OtherConfiguration,
                            QStringLiteral("a straight path does not lead to the target's"
                                           " configuration; move there with the axes")};
    return path;
}

} // namespace simulator
