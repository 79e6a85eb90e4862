#pragma once

#include "controlwords.h"

namespace simulator
{

/** The control lines about the arm and its frames, from their second word on. */
ControlLine parseFrame(Words &words);
ControlLine parseJoints(Words &words);
ControlLine parseMove(Words &words);

} // namespace simulator
