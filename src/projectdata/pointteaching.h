#pragma once

#include <zeplet/export.h>

#include <QString>

namespace ostrel
{
class ModuleObject;
}

namespace zeplet
{

/**
 * Copies a position, as the controller reports it, into an element: the joint values, or, without
 * joint, the pose with its arm configuration and the external joints; and the tool and the work
 * object that it was taught with. What a source lacks becomes 0; a source may be null. GUI thread.
 */
ZEPLET_EXPORT void fillPointValueFromCurrentPose(ostrel::ModuleObject *element, bool joint,
                                                 ostrel::ModuleObject *jointSource,
                                                 ostrel::ModuleObject *cartSource,
                                                 const QString &tool, const QString &wobj);

} // namespace zeplet
