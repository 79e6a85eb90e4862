#pragma once

#include "armcamera.h"
#include "armfeed.h"
#include "pointlist.h"

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

class QTabBar;

/** A place that is drawn in the cell. */
struct PlaceMark {
    QString label;
    QVector3D place;
    bool chosen = false;
};

/** What the view draws at one moment. */
struct ArmScene {
    QVector<QVector3D> skeleton; ///< the base, each axis, the flange; mm
    QVector<QVector3D> tool; ///< the directions of the flange's axes
    Box box;
};

/**
 * The robot's cell: the arm as it stands, with the flange's axes, and the places of the project's
 * points, in space, from the side or from above. In space a finger turns it. It glides between the
 * poses that the controller tells. GUI thread.
 */
class ArmView : public QWidget
{
    Q_OBJECT

public:
    explicit ArmView(QWidget *parent = nullptr);

    void setState(const ArmState &state);
    void setMarks(const QVector<PlaceMark> &marks, const QString &remark);

protected:
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    void turn();
    void aim();
    void step();
    void applyTheme();
    QRectF stage() const;

    QTabBar *m_views;
    ArmState m_state;
    QVector<PlaceMark> m_marks;
    QString m_remark;
    ArmScene m_shown;
    ArmScene m_aim;
    double m_yaw;
    double m_pitch;
    QPoint m_grip;
    QTimer m_frames;
    QElapsedTimer m_clock;
};
