#pragma once

#include <QVector>
#include <kdl/frames.hpp>

namespace simulator
{

/** How an arm is built. At zero all axis frames stand like the base: X ahead, Z up. */
struct ArmModel {
    struct Axis {
        KDL::Vector direction;
        KDL::Vector offset; ///< from the axis before it, or from the base; metres
        double min; ///< degrees
        double max;
        double speed; ///< degrees per second at most
    };

    QVector<Axis> axes;
    KDL::Frame flange; ///< in the last axis' frame
    int elbow = 0; ///< index of the axis that bends the arm
    double stretched = 0; ///< its angle where the arm is straight
    int wrist = 0; ///< index of the axis that bends the wrist, which is straight at 0

    /** A common six-axis arm; zero is the upper arm upright, the forearm level, the tool ahead. */
    static ArmModel six();
    /** A seven-axis arm with a shoulder, an elbow and a wrist; zero is straight up. */
    static ArmModel seven();
};

} // namespace simulator
