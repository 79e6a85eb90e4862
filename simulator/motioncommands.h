#pragma once

#include "commandregistry.h"
#include "motionkeys.h"
#include "robotstate.h"

namespace simulator
{

/** The hub's commands that move the arm: `move.reset`, `move.opr.enough`, `move.stop` and, by the
 *  profile, `move.move_to.jc` and `.l` or `move.j` and `move.l`. */
class MotionCommands
{
public:
    /** What the commands work on; all of it outlives them. */
    struct Context {
        const RobotState &robot;
        const Frames &frames;
        const HubData &hub;
        Motion &motion;
        MotionKeys &keys;
    };

    MotionCommands(CommandRegistry &registry, const Context &context);

private:
    void addMove(CommandRegistry &registry, const char *name, Motion::Kind kind, bool isMoveTo);
    Reply move(Motion::Kind kind, const QJsonValue &request);
    MotionProblem prepare(Motion::Kind kind, const QJsonValue &request);
    std::optional<KDL::Frame> chosenFrame(Frames::Kind kind, const char *key,
                                          MotionProblem &problem) const;

    Context m_context;
};

} // namespace simulator
