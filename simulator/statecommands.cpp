#include "statecommands.h"

namespace simulator
{

StateCommands::StateCommands(CommandRegistry &registry, RobotState &robot)
{
    registry.add(QStringLiteral("system.state.get"),
                 [&robot](const QJsonValue &, Session &) { return Reply::done(robot.toJson()); });
    registry.add(
        QStringLiteral("system.controller.get_params"),
        [&robot](const QJsonValue &, Session &) { return Reply::done(robot.parameters()); });

    const auto addPower = [&](const QString &name, bool on) {
        registry.add(name, [&robot, on](const QJsonValue &, Session &) {
            robot.setPower(on);
            return Reply {};
        });
    };
    addPower(QStringLiteral("system.state.switch_motor_on"), true);
    addPower(QStringLiteral("system.state.switch_motor_off"), false);

    const auto addMode = [&](const QString &name, bool automatic) {
        registry.add(name, [&robot, automatic](const QJsonValue &, Session &) {
            return Reply::of(robot.setAutomatic(automatic));
        });
    };
    addMode(QStringLiteral("system.state.switch_manual"), false);
    addMode(QStringLiteral("system.state.switch_auto"), true);
}

} // namespace simulator
