#pragma once

#include "controlwords.h"

namespace simulator
{

/** The control lines of projects, variables and points, taken apart. */
ControlLine parseProject(Words &words);
ControlLine parseVariable(Words &words);
ControlLine parsePoint(Words &words);

} // namespace simulator
