#pragma once

#include <QJsonObject>
#include <QString>
#include <QVector>

/** One position of a point. */
struct Element {
    QString index; ///< "[0][0][0]"
    QVector<double> pose; ///< x, y, z in mm, a, b, c in degrees; empty where it has none
    QVector<double> joints; ///< seven angles in degrees; empty where it has none
    QString tool; ///< in which it was taught; empty where nobody knows
    QString wobj;
};

/** One point of the open project. */
struct Point {
    QString name;
    QString description;
    bool joint = false;
    bool persistent = false;
    QVector<int> dimensions; ///< those that are used
    QVector<Element> elements; ///< in the order of their indexes

    /** The element of that index, or null. */
    const Element *element(const QString &index) const;
    /** Where moves to the point go: the first element; null where that has no pose. */
    const Element *target() const;
};

extern const QString firstElement; ///< "[0][0][0]"

/** The points in the order in which they were made. */
QVector<Point> readPoints();
Point pointOf(const QJsonObject &record);

/** The three numbers of an element's index. */
QVector<int> indexNumbers(const QString &index);
QString indexText(const QVector<int> &numbers);
/** An index that follows all those of the point. */
QVector<int> nextIndex(const Point &point);

/** The element that keeps where the robot is, as the controller tells it; empty where a part of
 *  the position is missing. */
QJsonObject taughtElement(const QJsonObject &position, bool joint, const QString &tool,
                          const QString &wobj);
