#pragma once

#include "motionerror.h"
#include "path.h"

#include <variant>

namespace simulator
{

/** Finds paths on which an arm stays within reach and limits all the way. */
class PathPlanner
{
public:
    using Result = std::variant<Path, MotionError>;
    static constexpr double kTopSpeed = 2.0; ///< metres per second

    /** The arm outlives the planner. */
    explicit PathPlanner(const Arm &arm);

    /** All axes turn evenly, from start to end at once. */
    Result joint(const Joints &from, const MotionTarget &target) const;
    /** The same to joints that are within their limits. */
    Path turn(const Joints &from, const Joints &to) const;
    /** The tool centre point goes straight. */
    Result linear(const Joints &from, const MotionTarget &target) const;

    /** The joints of a target on its own; an error where there are none. */
    std::variant<Joints, MotionError> reach(const MotionTarget &target, const Joints &near) const;

private:
    std::variant<Joints, MotionError> step(const Path &path, double part) const;
    MotionError limitError(int axis) const;
    double slowestAxisTime(const Joints &from, const Joints &to) const;

    const Arm &m_arm;
};

} // namespace simulator
