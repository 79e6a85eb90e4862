#pragma once

#include <QJsonObject>
#include <QVector>

namespace simulator
{

/** Angles of an arm's axes in degrees, the one at the base first. */
using Joints = QVector<double>;

/**
 * Which of the ways to reach a pose an arm takes. The quadrant of an axis is the whole number of
 * quarter turns below its angle: 0 from 0 to 90 degrees, -1 from -90 to 0. The posture adds up
 * 1 (wrist turned over), 2 (elbow bent backwards) and 4 (shoulder reaching backwards).
 */
struct Configuration {
    static constexpr int kQuadrants = 7;
    static constexpr int kNumbers = kQuadrants + 1;

    QVector<double> quadrants = QVector<double>(kQuadrants); ///< 0 for axes that are not there
    int posture = 0;

    /** Of cf1..cf7, cfx; numbers that no axis can have count as the nearest that it can. */
    static Configuration fromNumbers(const QVector<double> &numbers);
    static double quadrantOf(double degrees);
    /** The members cf1..cf7, cfx. */
    QJsonObject toJson() const;

    /** How many quadrants away the other one's axis is that differs most; of the first `axes`. */
    double farthestQuadrant(const Configuration &other, int axes) const;
    /** 0 for the same configuration, larger the more they differ. */
    double distance(const Configuration &other, int axes) const;
};

} // namespace simulator
