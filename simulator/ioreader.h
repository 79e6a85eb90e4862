#pragma once

#include "iosignals.h"
#include "jsonreader.h"
#include "registers.h"

namespace simulator
{

/** Reads the member `io` of a scenario. */
IoSignals::Values readIo(JsonReader &scenario, JsonError &error);
/** Reads the member `registers` of a scenario. */
Registers::Values readRegisters(JsonReader &scenario, JsonError &error);

} // namespace simulator
