// Calls a function that no library defines.
#include "fixture.h"

namespace gripper
{
void closeFingers(int force);
} // namespace gripper

static const Registration registration("unresolved", [](QObject *parent) {
    gripper::closeFingers(3);
    return new zeplet::PluginBase(parent);
});
