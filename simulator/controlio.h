#pragma once

#include "controlwords.h"

namespace simulator
{

/** The control lines of signals, input simulation and registers, taken apart. */
ControlLine parseSignal(Words &words);
ControlLine parseSimulation(Words &words);
ControlLine parseRegister(Words &words);

} // namespace simulator
