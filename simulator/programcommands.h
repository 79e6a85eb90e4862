#pragma once

#include "commandregistry.h"
#include "robotstate.h"

namespace simulator
{

/** The controller's commands that start and stop its program. */
class ProgramCommands
{
public:
    ProgramCommands(CommandRegistry &registry, RobotState &robot);
};

} // namespace simulator
