#include "pose.h"

#include "numbers.h"

#include <QtMath>

namespace simulator
{

namespace
{
constexpr double kMillimetres = 1000.0; ///< in a metre

/** One way to write half a turn. */
double roundedAngle(double degrees)
{
    const double angle = rounded(degrees);
    return angle == -180.0 ? 180.0 : angle;
}
} // namespace

Pose Pose::fromNumbers(const QVector<double> &numbers)
{
    return {numbers.value(0), numbers.value(1), numbers.value(2),
            numbers.value(3), numbers.value(4), numbers.value(5)};
}

Pose Pose::fromFrame(const KDL::Frame &frame)
{
    Pose pose {frame.p.x() * kMillimetres, frame.p.y() * kMillimetres, frame.p.z() * kMillimetres};
    frame.M.GetRPY(pose.a, pose.b, pose.c);
    pose.a = qRadiansToDegrees(pose.a);
    pose.b = qRadiansToDegrees(pose.b);
    pose.c = qRadiansToDegrees(pose.c);
    return pose;
}

KDL::Frame Pose::toFrame() const
{
    return {KDL::Rotation::RPY(qDegreesToRadians(a), qDegreesToRadians(b), qDegreesToRadians(c)),
            KDL::Vector(x / kMillimetres, y / kMillimetres, z / kMillimetres)};
}

QJsonObject Pose::toJson() const
{
    return {{QStringLiteral("x"), rounded(x)},      {QStringLiteral("y"), rounded(y)},
            {QStringLiteral("z"), rounded(z)},      {QStringLiteral("a"), roundedAngle(a)},
            {QStringLiteral("b"), roundedAngle(b)}, {QStringLiteral("c"), roundedAngle(c)}};
}

} // namespace simulator
