#include "programcommands.h"

namespace simulator
{

ProgramCommands::ProgramCommands(CommandRegistry &registry, RobotState &robot)
{
    registry.add(QStringLiteral("rl_program.start"), [&robot](const QJsonValue &, Session &) {
        return Reply::of(robot.startProgram());
    });
    registry.add(QStringLiteral("rl_program.stop"), [&robot](const QJsonValue &, Session &) {
        robot.stopProgram();
        return Reply {};
    });
}

} // namespace simulator
