#pragma once

#include "armview.h"

#include <QColor>

class QPainter;

/** Draws a robot's cell as a camera sees it, from the floor up, in the colours of the theme. */
class ArmPainter
{
public:
    ArmPainter(QPainter *painter, const ArmCamera &camera, const QRect &area);

    void drawGround();
    void drawShadow(const QVector<QVector3D> &skeleton);
    /** From each mark straight down to the floor: where it is in space. */
    void drawDropLines(const QVector<PlaceMark> &marks);
    /** Links, joints and marks; what is near hides what is far. */
    void drawArm(const QVector<QVector3D> &skeleton, const QVector<PlaceMark> &marks);
    void drawTool(const QVector<QVector3D> &skeleton, const QVector<QVector3D> &axes);
    /** The names of the marks, as long as there is room; that of the chosen one always. */
    void drawLabels(const QVector<PlaceMark> &marks);
    void drawScale();
    void drawRemark(const QString &remark);
    void drawMoving(const QString &text);
    void drawEmpty(const QString &title, const QString &hint);

private:
    struct Palette {
        QColor floor, line, strong, body, edge, light, joint, jointLight, mark, chosen;
        QColor x, y, z;
    };
    static Palette currentPalette();

    double width(int link, int links) const;
    void drawLine(const QVector3D &from, const QVector3D &to, const QColor &colour, double width);
    void drawLink(const QVector3D &from, const QVector3D &to, double fromWidth, double toWidth);
    void drawJoint(const QVector3D &place, double radius);
    void drawMark(const PlaceMark &mark);
    void drawPedestal();
    bool drawLabel(const QPointF &at, const QString &text, bool chosen, QVector<QRectF> *taken);

    QPainter *m_painter;
    const ArmCamera &m_camera;
    QRect m_area;
    Palette m_colours;
};
