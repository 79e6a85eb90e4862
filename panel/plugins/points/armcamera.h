#pragma once

#include <QPointF>
#include <QRectF>
#include <QVector3D>
#include <QVector>

/** The corners of what is to be seen, in mm. */
struct Box {
    QVector3D least;
    QVector3D most;

    void include(const QVector3D &place);
    QVector<QVector3D> corners() const;
};

/**
 * Looks at the robot's cell from far away, without perspective, so that lengths can be compared.
 * The cell has X ahead, Z up and millimetres; the screen has pixels and y downwards.
 */
class ArmCamera
{
public:
    /** yaw: from where it looks, in degrees about Z, 0 is from X; pitch: how far from above, 90 is
     *  straight down. */
    void turnTo(double yaw, double pitch);
    double yaw() const { return m_yaw; }
    double pitch() const { return m_pitch; }

    /** Shows the whole box as large as it fits, in the middle of area. */
    void fit(const Box &box, const QRectF &area);

    QPointF project(const QVector3D &place) const;
    /** How near: what has more hides what has less. */
    double depth(const QVector3D &place) const;
    double scale() const { return m_scale; } ///< pixels per mm

private:
    QPointF onScreen(const QVector3D &place) const;

    double m_yaw = 0;
    double m_pitch = 0;
    QVector3D m_towards {1, 0, 0}; ///< from the cell to the camera
    QVector3D m_right {0, 1, 0};
    QVector3D m_up {0, 0, 1};
    double m_scale = 1;
    QPointF m_origin; ///< where the cell's origin is seen
};

/** The axes of a frame that is turned by a, b, c about the fixed X, Y and Z, in degrees. */
QVector<QVector3D> frameAxes(double a, double b, double c);

/** The longest of 1, 2, 5, 10, ... that is not longer than most. */
double roundLength(double most);
