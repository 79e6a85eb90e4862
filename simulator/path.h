#pragma once

#include "arm.h"

namespace simulator
{

/** Where a move goes. */
struct MotionTarget {
    KDL::Frame pose; ///< of the tool centre point in the base, metres
    KDL::Frame tool; ///< the tool centre point in the flange
    std::optional<Configuration> configuration;
};

/** A way of the arm that can be travelled from its start to its end. */
class Path
{
public:
    /** A straight line of the tool centre point; its orientation turns evenly about one axis. */
    struct Line {
        KDL::Frame from;
        KDL::Frame to;
        KDL::Frame tool;

        /** The flange at a part (0 to 1) of the way. */
        KDL::Frame flange(double part) const;
    };

    QVector<Joints> joints; ///< evenly spread over the way, at least the two ends
    std::optional<Line> line; ///< none where the axes turn evenly
    double length = 0; ///< metres; where axes turn, what the top speed takes as long for
    double topSpeed = 0; ///< metres per second
    double dexterity = 0; ///< the least of a line

    /** The joints at a part (0 to 1) of the way. */
    Joints at(double part, const Arm &arm) const;
};

} // namespace simulator
