#pragma once

#include <QLabel>
#include <QTimer>

namespace panel
{

/** The time of day in hours and minutes. */
class ClockLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ClockLabel(QWidget *parent = nullptr);

private:
    void refresh();

    QTimer m_timer;
};

} // namespace panel
