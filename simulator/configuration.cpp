#include "configuration.h"

#include <QtAlgorithms>
#include <cmath>

namespace simulator
{

namespace
{
constexpr double kQuarterTurn = 90.0;
constexpr double kFarthest = 8; ///< quadrants: more than two turns no axis makes
constexpr double kPostures = 7;
/** What lies this close to a quadrant's edge counts as on it: an axis at 0 stays in quadrant 0. */
constexpr double kEdgeDegrees = 1e-4;
} // namespace

Configuration Configuration::fromNumbers(const QVector<double> &numbers)
{
    Configuration configuration;
    for (int axis = 0; axis < kQuadrants; ++axis)
        configuration.quadrants[axis] = qBound(-kFarthest, numbers.value(axis), kFarthest);
    configuration.posture = static_cast<int>(qBound(0.0, numbers.value(kQuadrants), kPostures));
    return configuration;
}

double Configuration::quadrantOf(double degrees)
{
    return std::floor((degrees + kEdgeDegrees) / kQuarterTurn);
}

QJsonObject Configuration::toJson() const
{
    QJsonObject json {{QStringLiteral("cfx"), posture}};
    for (int axis = 0; axis < kQuadrants; ++axis)
        json.insert(QStringLiteral("cf%1").arg(axis + 1), quadrants.at(axis));
    return json;
}

double Configuration::farthestQuadrant(const Configuration &other, int axes) const
{
    double farthest = 0;
    for (int axis = 0; axis < axes; ++axis)
        farthest = qMax(farthest, std::abs(quadrants.at(axis) - other.quadrants.at(axis)));
    return farthest;
}

double Configuration::distance(const Configuration &other, int axes) const
{
    double sum = 2.0 * qPopulationCount(static_cast<quint32>(posture ^ other.posture));
    for (int axis = 0; axis < axes; ++axis)
        sum += std::abs(quadrants.at(axis) - other.quadrants.at(axis));
    return sum;
}

} // namespace simulator
