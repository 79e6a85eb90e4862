#pragma once

#include "armfeed.h"

#include <QWidget>

/** Where the robot is in numbers: the pose of its flange, and each axis between its limits. */
class PoseCard : public QWidget
{
    Q_OBJECT

public:
    explicit PoseCard(QWidget *parent = nullptr);

    void setState(const ArmState &state);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void drawPose(QPainter *painter);
    void drawAxis(QPainter *painter, int axis, const QRect &box);

    ArmState m_state;
};
