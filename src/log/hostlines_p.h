#pragma once

#include <ostrel/log.h>

/**
 * The library's own log lines, through the host's stream: to the console and to
 * "./log/zeplet_<date>.log", with the colour and the tag of their level and the local time.
 * Use: `errorLine() << "name: problem, name=" << name;`. A line blocks for one short file write.
 */
namespace zeplet
{

ostrel::QFLog errorLine();
ostrel::QFLog infoLine();
ostrel::QFLog statusLine();
ostrel::QFLog debugLine();

} // namespace zeplet
