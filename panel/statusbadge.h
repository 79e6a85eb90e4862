#pragma once

#include "robotreadings.h"

#include <QWidget>

namespace panel
{

/** A reading in the status bar: pictogram and value on a soft ground. */
class StatusBadge : public QWidget
{
    Q_OBJECT

public:
    explicit StatusBadge(QWidget *parent = nullptr);

    void setReading(const Reading &reading);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Reading m_reading;
};

} // namespace panel
