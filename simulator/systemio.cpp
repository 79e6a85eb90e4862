#include "systemio.h"

#include <functional>
#include <map>

namespace simulator
{

namespace
{
using Input = std::function<void(RobotState &)>;
using Output = std::function<bool(const RobotState::Values &)>;

const std::map<QString, Input> &inputs()
{
    static const std::map<QString, Input> table {
        {QStringLiteral("motor_on"), [](RobotState &robot) { robot.setPower(true); }},
        {QStringLiteral("motor_off"), [](RobotState &robot) { robot.setPower(false); }},
        {QStringLiteral("program_start"), [](RobotState &robot) { robot.startProgram(); }},
        {QStringLiteral("program_stop"), [](RobotState &robot) { robot.stopProgram(); }},
    };
    return table;
}

const std::map<QString, Output> &outputs()
{
    using Values = RobotState::Values;
    static const std::map<QString, Output> table {
        {QStringLiteral("motor_on"), [](const Values &robot) { return robot.power; }},
        {QStringLiteral("auto_mode"), [](const Values &robot) { return robot.automatic; }},
        {QStringLiteral("program_running"), [](const Values &robot) { return robot.program; }},
    };
    return table;
}

template <typename Table>
QStringList keys(const Table &table)
{
    QStringList names;
    for (const auto &entry : table)
        names += entry.first;
    return names;
}
} // namespace

SystemIo::SystemIo(IoSignals &io, RobotState &robot, QObject *parent)
    : QObject(parent)
    , m_io(io)
    , m_robot(robot)
{
    connect(&robot, &RobotState::changed, this, &SystemIo::show);
    connect(&io, &IoSignals::valueChanged, this, &SystemIo::ask);
    show();
}

QStringList SystemIo::inputFunctions()
{
    return keys(inputs());
}

QStringList SystemIo::outputFunctions()
{
    return keys(outputs());
}

void SystemIo::show()
{
    for (const IoSignals::SystemIo &entry : m_io.values().systemOutputs)
        m_io.set(entry.signal, outputs().at(entry.function)(m_robot.values()));
}

void SystemIo::ask(const QString &signal, const QJsonValue &value)
{
    for (const IoSignals::SystemIo &entry : m_io.values().systemInputs) {
        if (entry.signal == signal && value.toBool())
            inputs().at(entry.function)(m_robot);
    }
}

} // namespace simulator
