#pragma once

#include "commandregistry.h"
#include "robotstate.h"

namespace simulator
{

/** The controller's commands `system.state.*` and `system.controller.*`. */
class StateCommands
{
public:
    StateCommands(CommandRegistry &registry, RobotState &robot);
};

} // namespace simulator
