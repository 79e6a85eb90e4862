#pragma once

#include <QWidget>

class QPushButton;

namespace panel
{

class RobotState;

/** The operator's keys to start and stop the program. They are always there and always take a
 * press: why something can't be done is said in the banner. */
class RunKeys : public QWidget
{
    Q_OBJECT

public:
    explicit RunKeys(const RobotState &robot, QWidget *parent = nullptr);

private:
    void refresh();

    const RobotState &m_robot;
    QPushButton *m_start;
    QPushButton *m_stop;
};

} // namespace panel
