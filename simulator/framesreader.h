#pragma once

#include "frames.h"
#include "jsonreader.h"

namespace simulator
{

/** Reads the members `tools` and `wobjs` of a scenario: objects of the lists `project` and `global`
 *  with objects of `name` and `pose` (x, y, z, a, b, c). */
Frames::Values readFrames(JsonReader &scenario, JsonError &error);

} // namespace simulator
