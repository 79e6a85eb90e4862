#pragma once

#include <ostrel/log.h>

namespace panel
{

/** One line to the console and to "./log/panel", of the kind of an error or an information. */
ostrel::QFLog errorLine();
ostrel::QFLog infoLine();

} // namespace panel
