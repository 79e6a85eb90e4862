#include "robotstate.h"

namespace simulator
{

RobotState::RobotState(const Values &values, QObject *parent)
    : QObject(parent)
    , m_values(values)
{
}

template <typename T>
void RobotState::assign(T &member, const T &value)
{
    if (member == value)
        return;
    member = value;
    emit changed();
}

void RobotState::setPower(bool on)
{
    if (!on)
        stopProgram();
    assign(m_values.power, on);
}

Refusal RobotState::setAutomatic(bool automatic)
{
    if (m_values.program)
        return QStringLiteral("the operating mode cannot change while a program runs");
    assign(m_values.automatic, automatic);
    return std::nullopt;
}

Refusal RobotState::startProgram()
{
    if (!m_values.power)
        return QStringLiteral("a program cannot start while the motors are off");
    if (m_values.program)
        return QStringLiteral("a program runs already");
    if (m_moving)
        return QStringLiteral("a program cannot start while the robot moves");
    assign(m_values.program, true);
    return std::nullopt;
}

void RobotState::stopProgram()
{
    assign(m_values.program, false);
}

void RobotState::setLevel(int level)
{
    assign(m_values.level, level);
}

void RobotState::setId(const QString &id)
{
    assign(m_values.id, id);
}

void RobotState::setVersion(const QString &version)
{
    assign(m_values.version, version);
}

void RobotState::setRobot(const QString &robot)
{
    assign(m_values.robot, robot);
}

void RobotState::setRobotTemplate(int number)
{
    m_values.robotTemplate = number;
    emit parametersChanged();
}

QJsonObject RobotState::toJson() const
{
    return {
        {QStringLiteral("power"), m_values.power ? QStringLiteral("on") : QStringLiteral("off")},
        {QStringLiteral("mode"),
         m_values.automatic ? QStringLiteral("auto") : QStringLiteral("manual")},
        {QStringLiteral("state"),
         m_values.program ? QStringLiteral("program") : QStringLiteral("idle")},
        {QStringLiteral("level"), m_values.level},
        {QStringLiteral("id"), m_values.id},
        {QStringLiteral("version"), m_values.version},
        {QStringLiteral("robot"), m_values.robot}};
}

QJsonObject RobotState::parameters() const
{
    return {{QStringLiteral("robot_template"), m_values.robotTemplate},
            {QStringLiteral("robot"), m_values.robot}};
}

} // namespace simulator
