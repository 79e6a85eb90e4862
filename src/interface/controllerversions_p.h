#pragma once

#include <zeplet/interface/interfacemanager.h>

namespace zeplet
{

/** Whether the controller is one of those that monitor variables and plan a motion by its target;
 *  "3.10" is one of them, since it begins with "3.1". */
inline bool isController23To32()
{
    for (const char *version : {"2.3", "3.0", "3.1", "3.2"}) {
        if (checkBrisaVersion(QLatin1String(version)))
            return true;
    }
    return false;
}

} // namespace zeplet
