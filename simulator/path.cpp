#include "path.h"

#include <cmath>

namespace simulator
{

KDL::Frame Path::Line::flange(double part) const
{
    return KDL::addDelta(from, KDL::diff(from, to), part) * tool.Inverse();
}

Joints Path::at(double part, const Arm &arm) const
{
    const double place = qBound(0.0, part, 1.0) * (joints.size() - 1);
    const int before = qMin(static_cast<int>(std::floor(place)), joints.size() - 2);
    const double beyond = place - before;
    Joints between;
    for (int axis = 0; axis < arm.axisCount(); ++axis)
        between
            += joints.at(before).at(axis) * (1 - beyond) + joints.at(before + 1).at(axis) * beyond;
    return line ? arm.follow(line->flange(part), between).value_or(between) : between;
}

} // namespace simulator
