#pragma once

#include "commandregistry.h"
#include "frames.h"
#include "motion.h"

namespace simulator
{

/** The controller's command that tells where the robot is: `project.rl_program.get_rob_pos`. */
class PositionCommands
{
public:
    /** All outlives the commands. */
    PositionCommands(CommandRegistry &registry, const Arm &arm, const Motion &motion,
                     const Frames &frames);

private:
    Reply position(const QJsonValue &arguments) const;

    const Arm &m_arm;
    const Motion &m_motion;
    const Frames &m_frames;
};

} // namespace simulator
