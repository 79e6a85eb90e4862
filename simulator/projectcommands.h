#pragma once

#include "commandregistry.h"
#include "frames.h"
#include "projects.h"
#include "robotstate.h"
#include "systemvariables.h"

namespace simulator
{

/** The controller's commands `project.overview.*` and `project.frames.get`, and the hub's command
 *  `project.remove_task`. Another project can't be opened, and the open one not removed, while a
 *  program runs. */
class ProjectCommands
{
public:
    struct Parts {
        Projects &projects;
        const Frames &frames;
        const SystemVariables &systemVariables;
        const RobotState &robot;
    };

    ProjectCommands(CommandRegistry &controller, CommandRegistry &hubKeys, const Parts &parts);

    Refusal open(const QString &name);
    Refusal removeTask(const QString &name);
    /** What travels as `project.frames`. */
    QJsonObject framesToJson() const;

private:
    bool runs() const { return m_parts.robot.values().program; }

    Parts m_parts;
};

} // namespace simulator
