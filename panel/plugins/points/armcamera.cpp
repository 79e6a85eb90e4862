#include "armcamera.h"

#include <QMatrix4x4>
#include <QtMath>

void Box::include(const QVector3D &place)
{
    for (int i = 0; i < 3; ++i) {
        least[i] = qMin(least[i], place[i]);
        most[i] = qMax(most[i], place[i]);
    }
}

QVector<QVector3D> Box::corners() const
{
    QVector<QVector3D> corners;
    for (int i = 0; i < 8; ++i)
        corners.append({i & 1 ? most.x() : least.x(), i & 2 ? most.y() : least.y(),
                        i & 4 ? most.z() : least.z()});
    return corners;
}

void ArmCamera::turnTo(double yaw, double pitch)
{
    m_yaw = yaw;
    m_pitch = pitch;
    const double cy = qCos(qDegreesToRadians(yaw));
    const double sy = qSin(qDegreesToRadians(yaw));
    const double cp = qCos(qDegreesToRadians(pitch));
    const double sp = qSin(qDegreesToRadians(pitch));
    m_towards = QVector3D(float(cp * cy), float(cp * sy), float(sp));
    m_right = QVector3D(float(-sy), float(cy), 0);
    m_up = QVector3D(float(-sp * cy), float(-sp * sy), float(cp));
}

void ArmCamera::fit(const Box &box, const QRectF &area)
{
    m_scale = 1;
    m_origin = QPointF();
    QRectF seen(onScreen(box.least), QSizeF());
    for (const QVector3D &corner : box.corners()) {
        const QPointF at = onScreen(corner);
        seen.setCoords(qMin(seen.left(), at.x()), qMin(seen.top(), at.y()),
                       qMax(seen.right(), at.x()), qMax(seen.bottom(), at.y()));
    }
    m_scale
        = qMin(area.width() / qMax(1.0, seen.width()), area.height() / qMax(1.0, seen.height()));
    m_origin = area.center() - seen.center() * m_scale;
}

QPointF ArmCamera::project(const QVector3D &place) const
{
    return m_origin + onScreen(place) * m_scale;
}

double ArmCamera::depth(const QVector3D &place) const
{
    return QVector3D::dotProduct(place, m_towards);
}

QPointF ArmCamera::onScreen(const QVector3D &place) const
{
    return {QVector3D::dotProduct(place, m_right), -QVector3D::dotProduct(place, m_up)};
}

QVector<QVector3D> frameAxes(double a, double b, double c)
{
    QMatrix4x4 turn;
    turn.rotate(float(c), 0, 0, 1);
    turn.rotate(float(b), 0, 1, 0);
    turn.rotate(float(a), 1, 0, 0);
    return {turn.mapVector({1, 0, 0}), turn.mapVector({0, 1, 0}), turn.mapVector({0, 0, 1})};
}

double roundLength(double most)
{
    if (!(most >= 1))
        return 1;
    const double decade = std::pow(10.0, std::floor(std::log10(most)));
    for (const double step : {5.0, 2.0})
        if (step * decade <= most)
            return step * decade;
    return decade;
}
