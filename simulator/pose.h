#pragma once

#include <QJsonObject>
#include <QVector>
#include <kdl/frames.hpp>

namespace simulator
{

/** A position in millimetres with an orientation in degrees: the turns `a`, `b` and `c` about the
 *  fixed axes X, Y and Z, one after the other. */
struct Pose {
    double x = 0;
    double y = 0;
    double z = 0;
    double a = 0;
    double b = 0;
    double c = 0;

    static constexpr int kNumbers = 6;
    /** Of the numbers x, y, z, a, b, c. */
    static Pose fromNumbers(const QVector<double> &numbers);
    /** `b` is between -90 and 90; there `a` is 0. */
    static Pose fromFrame(const KDL::Frame &frame);
    /** The same in metres, as the kinematics take it. */
    KDL::Frame toFrame() const;
    /** The members x, y, z, a, b, c. */
    QJsonObject toJson() const;
};

} // namespace simulator
