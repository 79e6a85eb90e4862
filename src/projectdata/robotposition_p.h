#pragma once

#include <QString>

namespace ostrel
{
class ModuleObject;
}

namespace zeplet
{

/** Asks the controller where the robot is, seen with a tool and a work object. The host's node,
 *  which holds until the next such answer; null where none came. Blocks up to 1600 ms. */
ostrel::ModuleObject *requestRobotPosition(const QString &tool, const QString &wobj);

} // namespace zeplet
