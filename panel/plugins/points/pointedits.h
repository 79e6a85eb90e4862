#pragma once

#include "pointlist.h"

/** What became of an edit, in a sentence for the operator. */
struct Outcome {
    enum Kind {
        Done,
        Refused, ///< nothing is changed
        Unsaved ///< changed on the panel, but not all the way to the controller
    };
    Kind kind = Done;
    QString sentence;
};

/** How a position is taught. */
struct Teaching {
    bool joint = false;
    QString tool;
    QString wobj;
};

/** Edits of points that tell what became of them. Each blocks for the controller, the disk and
 * rsync (up to 30 s). */
namespace pointedits
{

Outcome teachNew(const QString &name, bool persistent, const Teaching &teaching);
/** Keeps all else that the point has; its kind changes only where this is its only element. */
Outcome teach(const Point &point, const QString &index, const Teaching &teaching);
/** Six values of a pose, or seven of joints, as the point's kind says. */
Outcome setValues(const Point &point, const QString &index, const QVector<double> &values);
Outcome addElement(const Point &point, const QString &index);
Outcome removeElement(const Point &point, const QString &index);
Outcome remove(const Point &point);
/** Writes all points once more, and sends them to the controller. */
Outcome save();

/** What is wrong with the name of a new point that someone is typing; empty where nothing is. */
QString nameRefusal(const QString &name, const QVector<Point> &points);

} // namespace pointedits
