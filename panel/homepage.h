#pragma once

#include <QWidget>

namespace brisa
{
class ElidedLabel;
}

namespace panel
{

class FactsCard;
class RobotState;
class StatusCard;

/** The first page: the links, the robot's states, what robot it is, and how the plugins fare. */
class HomePage : public QWidget
{
    Q_OBJECT

public:
    explicit HomePage(const RobotState &robot, QWidget *parent = nullptr);

    /** Key of the page in the centre area. */
    static QString key();

private:
    void buildLayout();
    void applyTheme();
    void refreshRobot();
    void refreshPlugins();

    const RobotState &m_robot;
    brisa::ElidedLabel *m_title;
    brisa::ElidedLabel *m_subtitle;
    StatusCard *m_connection;
    StatusCard *m_power;
    StatusCard *m_mode;
    StatusCard *m_run;
    StatusCard *m_user;
    StatusCard *m_plugins;
    FactsCard *m_facts;
};

} // namespace panel
