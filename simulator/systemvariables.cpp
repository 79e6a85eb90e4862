#include "systemvariables.h"

namespace simulator
{

SystemVariables defaultSystemVariables()
{
    SystemVariables variables;
    for (const int speed : {5, 10, 50, 100, 200, 500, 1000, 2000})
        variables += {QStringLiteral("v%1").arg(speed), QStringLiteral("speed"), speed};
    variables += {QStringLiteral("fine"), QStringLiteral("zone"), 0};
    for (const int zone : {1, 5, 10, 50, 100})
        variables += {QStringLiteral("z%1").arg(zone), QStringLiteral("zone"), zone};
    return variables;
}

} // namespace simulator
