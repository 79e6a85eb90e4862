#pragma once

#include "armmodel.h"
#include "configuration.h"
#include "refusal.h"

#include <QStringList>
#include <memory>
#include <optional>

namespace simulator
{

/**
 * The kinematics of one arm: from the angles of its axes to the pose of its flange in the base and
 * back. Frames are in metres. It has no state of its own; use it on one thread.
 */
class Arm
{
public:
    enum class Kind { Six, Seven };

    /** What the way back comes to. */
    struct Solution {
        Joints joints; ///< within the limits; empty where there are none
        int limitedAxis = -1; ///< the axis whose limit is in the way; -1: out of reach
    };

    explicit Arm(Kind kind);
    ~Arm();
    Q_DISABLE_COPY(Arm)

    /** "six", "seven": by the kinds' numbers. */
    static QStringList kindNames();
    Kind kind() const { return m_kind; }
    int axisCount() const { return m_model.axes.size(); }
    const QVector<ArmModel::Axis> &axes() const { return m_model.axes; }
    /** Elbow bent, tool downwards. */
    Joints naturalPose() const;
    /** Why the arm can't stand so; nothing where it can. */
    Refusal checkJoints(const Joints &joints) const;
    /** "axis 3 goes from -10 to 90 degrees" */
    QString limitText(int axis) const;
    /** The index of an axis that is beyond its limits, or -1. */
    int axisBeyondLimits(const Joints &joints) const;

    KDL::Frame flange(const Joints &joints) const;
    /** The base, each axis and the flange. */
    QVector<KDL::Vector> skeleton(const Joints &joints) const;
    Configuration configuration(const Joints &joints) const;
    /** How far the elbow of a seven-axis arm is turned about the line from shoulder to wrist: 0 is
     *  up, degrees. 0 for six axes. */
    double elbowAngle(const Joints &joints) const;
    /** The smallest singular value of the Jacobian (metres, radians): 0 where the arm can't move in
     *  some direction. */
    double dexterity(const Joints &joints) const;

    /** The joints that reach a pose: of all ways found the nearest to the configuration, and to
     *  `near` without one. Searches for some milliseconds. */
    Solution solve(const KDL::Frame &flange, const Joints &near,
                   const std::optional<Configuration> &configuration) const;
    /** The joints of a pose that is close to the one of `near`, found by following the arm's
     *  motion; nothing where it can't follow. Limits are not checked. */
    std::optional<Joints> follow(const KDL::Frame &flange, const Joints &near) const;

private:
    class Solvers;
    KDL::Frame frameOf(const Joints &joints, int segments) const;
    int posture(const Joints &joints) const;
    std::optional<Joints> solveFrom(const KDL::Frame &flange, const Joints &start) const;
    QVector<Joints> seeds(const Joints &near,
                          const std::optional<Configuration> &configuration) const;
    /** The angles that whole turns are to come close to. */
    Joints wanted(const Joints &near, const std::optional<Configuration> &configuration) const;
    /** The same place by other whole turns, each axis within its limits where it can be. */
    Joints withinLimits(const Joints &joints) const;

    ArmModel m_model;
    Kind m_kind;
    std::unique_ptr<Solvers> m_solvers;
    double m_reach; ///< metres: no pose farther from the base can be reached
};

} // namespace simulator
