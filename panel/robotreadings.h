#pragma once

#include <QString>
#include <brisa/glyph.h>
#include <brisa/tone.h>

namespace panel
{

using brisa::Tone;

class RobotState;

/** One state of the robot as it is shown: pictogram, meaning, words. */
struct Reading {
    brisa::Glyph glyph = brisa::Glyph::Info;
    Tone tone = Tone::Muted;
    QString value; ///< a word or two: "On"
    QString hint; ///< one line that explains it
};

/** What is shown of each state. While the controller is not connected, no old value passes for a
 *  present one. */
Reading connectionReading(const RobotState &robot);
Reading powerReading(const RobotState &robot);
Reading modeReading(const RobotState &robot);
Reading runReading(const RobotState &robot);
Reading userReading(const RobotState &robot);

} // namespace panel
