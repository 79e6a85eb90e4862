#include "arm.h"

#include <QtMath>
#include <cmath>
#include <kdl/chain.hpp>
#include <kdl/chainfksolverpos_recursive.hpp>
#include <kdl/chainiksolverpos_lma.hpp>
#include <kdl/chainiksolvervel_wdls.hpp>
#include <random>

namespace simulator
{

namespace
{
constexpr double kTurn = 360.0;
constexpr double kQuarterTurn = 90.0;
/** Rounding may put an angle this far beyond its limit. */
constexpr double kLimitTolerance = 1e-6;
/** Rounding must not turn a straight wrist or elbow over. */
constexpr double kPostureTolerance = 1e-4;
constexpr double kPoseTolerance = 1e-10; ///< metres, and radians by kRotationWeight
constexpr double kRotationWeight = 0.1; ///< metres that a radian counts
constexpr int kIterations = 100;
constexpr int kSeeds = 40;

KDL::Chain chainOf(const ArmModel &model)
{
    KDL::Chain chain;
    chain.addSegment(
        KDL::Segment(KDL::Joint(KDL::Joint::Fixed), KDL::Frame(model.axes.first().offset)));
    for (int axis = 0; axis < model.axes.size(); ++axis) {
        const KDL::Frame next = axis + 1 < model.axes.size()
            ? KDL::Frame(model.axes.at(axis + 1).offset)
            : model.flange;
        chain.addSegment(KDL::Segment(
            KDL::Joint(KDL::Vector::Zero(), model.axes.at(axis).direction, KDL::Joint::RotAxis),
            next));
    }
    return chain;
}

KDL::JntArray toRadians(const Joints &joints)
{
    KDL::JntArray array(static_cast<unsigned>(joints.size()));
    for (int axis = 0; axis < joints.size(); ++axis)
        array(static_cast<unsigned>(axis)) = qDegreesToRadians(joints.at(axis));
    return array;
}

Joints toDegrees(const KDL::JntArray &array)
{
    Joints joints;
    for (unsigned axis = 0; axis < array.rows(); ++axis)
        joints += qRadiansToDegrees(array(axis));
    return joints;
}

double largestDifference(const Joints &one, const Joints &other)
{
    double largest = 0;
    for (int axis = 0; axis < one.size(); ++axis)
        largest = qMax(largest, std::abs(one.at(axis) - other.at(axis)));
    return largest;
}

/** The same place by those whole turns that bring each axis closest to another one. */
Joints turned(const Joints &joints, const Joints &near)
{
    Joints closest = joints;
    for (int axis = 0; axis < joints.size(); ++axis)
        closest[axis] -= kTurn * std::round((joints.at(axis) - near.at(axis)) / kTurn);
    return closest;
}

Eigen::Matrix<double, 6, 1> weights()
{
    Eigen::Matrix<double, 6, 1> weights;
    weights << 1, 1, 1, kRotationWeight, kRotationWeight, kRotationWeight;
    return weights;
}
} // namespace

class Arm::Solvers
{
public:
    explicit Solvers(const ArmModel &model)
        : chain(chainOf(model))
        , forward(chain)
        , inverse(chain, weights(), kPoseTolerance, kIterations)
        , velocity(chain)
    {
    }

    KDL::Chain chain;
    KDL::ChainFkSolverPos_recursive forward;
    KDL::ChainIkSolverPos_LMA inverse;
    KDL::ChainIkSolverVel_wdls velocity;
};

Arm::Arm(Kind kind)
    : m_model(kind == Kind::Six ? ArmModel::six() : ArmModel::seven())
    , m_kind(kind)
    , m_solvers(std::make_unique<Solvers>(m_model))
    , m_reach(m_model.flange.p.Norm())
{
    for (const ArmModel::Axis &axis : qAsConst(m_model.axes))
        m_reach += axis.offset.Norm();
}

Arm::~Arm() = default;

QStringList Arm::kindNames()
{
    return {QStringLiteral("six"), QStringLiteral("seven")};
}

Joints Arm::naturalPose() const
{
    return m_kind == Kind::Six ? Joints {0, 0, 0, 0, 90, 0} : Joints {0, 30, 0, 90, 0, 60, 0};
}

int Arm::axisBeyondLimits(const Joints &joints) const
{
    for (int axis = 0; axis < axisCount(); ++axis) {
        const ArmModel::Axis &limits = m_model.axes.at(axis);
        if (joints.at(axis) < limits.min - kLimitTolerance
            || joints.at(axis) > limits.max + kLimitTolerance)
            return axis;
    }
    return -1;
}

QString Arm::limitText(int axis) const
{
    return QStringLiteral("axis %1 goes from %2 to %3 degrees")
        .arg(axis + 1)
        .arg(m_model.axes.at(axis).min)
        .arg(m_model.axes.at(axis).max);
}

Refusal Arm::checkJoints(const Joints &joints) const
{
    if (joints.size() != axisCount())
        return QStringLiteral("the arm has %1 axes").arg(axisCount());
    const int beyond = axisBeyondLimits(joints);
    if (beyond < 0)
        return std::nullopt;
    return limitText(beyond);
}

KDL::Frame Arm::frameOf(const Joints &joints, int segments) const
{
    KDL::Frame frame;
    m_solvers->forward.JntToCart(toRadians(joints), frame, segments);
    return frame;
}

KDL::Frame Arm::flange(const Joints &joints) const
{
    return frameOf(joints, axisCount() + 1);
}

QVector<KDL::Vector> Arm::skeleton(const Joints &joints) const
{
    QVector<KDL::Vector> points {KDL::Vector::Zero()};
    for (int segments = 1; segments <= axisCount() + 1; ++segments)
        points += frameOf(joints, segments).p;
    return points;
}

int Arm::posture(const Joints &joints) const
{
    const KDL::Vector wrist = frameOf(joints, m_model.wrist + 1).p;
    const double ahead = (KDL::Rotation::RotZ(-qDegreesToRadians(joints.first())) * wrist).x();
    const bool backwards = m_kind == Kind::Six ? ahead < 0 : joints.at(1) < -kPostureTolerance;
    return (joints.at(m_model.wrist) < -kPostureTolerance ? 1 : 0)
        + (joints.at(m_model.elbow) < m_model.stretched - kPostureTolerance ? 2 : 0)
        + (backwards ? 4 : 0);
}

Configuration Arm::configuration(const Joints &joints) const
{
    Configuration configuration;
    for (int axis = 0; axis < axisCount(); ++axis)
        configuration.quadrants[axis] = Configuration::quadrantOf(joints.at(axis));
    configuration.posture = posture(joints);
    return configuration;
}

double Arm::elbowAngle(const Joints &joints) const
{
    if (m_kind == Kind::Six)
        return 0;
    const KDL::Vector shoulder = frameOf(joints, 2).p;
    const KDL::Vector elbow = frameOf(joints, m_model.elbow + 1).p - shoulder;
    KDL::Vector line = frameOf(joints, m_model.wrist + 1).p - shoulder;
    line.Normalize();
    const auto across
        = [&line](const KDL::Vector &vector) { return vector - line * KDL::dot(line, vector); };
    // Where the line itself is upright, the elbow's angle counts from behind.
    KDL::Vector up = across(KDL::Vector(0, 0, 1));
    if (up.Norm() < 1e-6)
        up = across(KDL::Vector(-1, 0, 0));
    const KDL::Vector out = across(elbow);
    if (out.Norm() < 1e-6)
        return 0;
    return qRadiansToDegrees(std::atan2(KDL::dot(line, up * out), KDL::dot(up, out)));
}

double Arm::dexterity(const Joints &joints) const
{
    KDL::JntArray ignored(static_cast<unsigned>(axisCount()));
    m_solvers->velocity.CartToJnt(toRadians(joints), KDL::Twist::Zero(), ignored);
    return m_solvers->velocity.getSigmaMin();
}

std::optional<Joints> Arm::solveFrom(const KDL::Frame &flange, const Joints &start) const
{
    KDL::JntArray found(static_cast<unsigned>(axisCount()));
    if (m_solvers->inverse.CartToJnt(toRadians(start), flange, found) < 0)
        return std::nullopt;
    return toDegrees(found);
}

std::optional<Joints> Arm::follow(const KDL::Frame &flange, const Joints &near) const
{
    // Close to its goal the solver now and then stalls; from a little aside it gets there.
    for (const double nudge : {0.0, 0.05, -0.1}) {
        Joints start = near;
        for (double &angle : start)
            angle += nudge;
        if (const auto found = solveFrom(flange, start))
            return turned(*found, near);
    }
    return std::nullopt;
}

QVector<Joints> Arm::seeds(const Joints &near,
                           const std::optional<Configuration> &configuration) const
{
    std::minstd_rand random; // the same seeds each time: the same question has the same answer
    const auto anywhere = [&random](double min, double max) {
        return std::uniform_real_distribution<>(min, max)(random);
    };
    QVector<Joints> seeds {near};
    for (int seed = 0; configuration && seed < kSeeds; ++seed) {
        Joints joints;
        for (int axis = 0; axis < axisCount(); ++axis) {
            const ArmModel::Axis &limits = m_model.axes.at(axis);
            const double start = configuration->quadrants.at(axis) * kQuarterTurn;
            joints += qBound(limits.min, start + anywhere(0, kQuarterTurn), limits.max);
        }
        seeds += joints;
    }
    for (int seed = 0; seed < kSeeds; ++seed) {
        Joints joints;
        for (const ArmModel::Axis &axis : m_model.axes)
            joints += anywhere(axis.min, axis.max);
        seeds += joints;
    }
    return seeds;
}

Joints Arm::wanted(const Joints &near, const std::optional<Configuration> &configuration) const
{
    if (!configuration)
        return near;
    Joints middles;
    for (int axis = 0; axis < axisCount(); ++axis)
        middles += (configuration->quadrants.at(axis) + 0.5) * kQuarterTurn;
    return middles;
}

Joints Arm::withinLimits(const Joints &joints) const
{
    Joints within = joints;
    for (int axis = 0; axis < axisCount(); ++axis) {
        const ArmModel::Axis &limits = m_model.axes.at(axis);
        double &angle = within[axis];
        if (angle > limits.max + kLimitTolerance)
            angle -= kTurn * std::ceil((angle - limits.max) / kTurn);
        else if (angle < limits.min - kLimitTolerance)
            angle += kTurn * std::ceil((limits.min - angle) / kTurn);
    }
    return within;
}

Arm::Solution Arm::solve(const KDL::Frame &flange, const Joints &near,
                         const std::optional<Configuration> &configuration) const
{
    Solution best;
    if (flange.p.Norm() > m_reach)
        return best;
    double bestDistance = std::numeric_limits<double>::infinity();
    for (const Joints &seed : seeds(near, configuration)) {
        const auto found = solveFrom(flange, seed);
        if (!found)
            continue;
        const Joints joints = withinLimits(turned(*found, wanted(near, configuration)));
        const int beyond = axisBeyondLimits(joints);
        if (beyond >= 0) {
            best.limitedAxis = beyond;
            continue;
        }
        const double distance = configuration
            ? configuration->distance(this->configuration(joints), axisCount())
            : largestDifference(joints, near);
        if (distance >= bestDistance)
            continue;
        best.joints = joints;
        bestDistance = distance;
        if (bestDistance == 0)
            break;
    }
    return best;
}

} // namespace simulator
