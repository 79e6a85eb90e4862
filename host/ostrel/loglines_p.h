#pragma once

#include "ostrel/log.h"

/**
 * The host's own log lines: to the console and to "./log/host_<date>.log", with the colour and the
 * tag of their level and the local time. Use: `ostrel::errorLine() << "text" << value;`
 */
namespace ostrel
{

QFLog errorLine();
QFLog infoLine();
QFLog statusLine();
QFLog debugLine();

} // namespace ostrel
