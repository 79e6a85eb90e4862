#include "robotreadings.h"

#include "robotstate.h"

#include <QCoreApplication>
#include <optional>

namespace panel
{

using brisa::Glyph;

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(panel)
};

Reading unknown(const RobotState &robot, Glyph glyph)
{
    return {glyph, Tone::Muted, Texts::tr("Unknown"),
            robot.controllerConnected() ? Texts::tr("The controller does not say")
                                        : Texts::tr("No link to the controller")};
}

/** The reading of a state with two values, or that it is unknown. */
Reading either(const RobotState &robot, std::optional<bool> state, const Reading &yes,
               const Reading &no)
{
    if (!state || !robot.controllerConnected())
        return unknown(robot, no.glyph);
    return *state ? yes : no;
}

} // namespace

Reading connectionReading(const RobotState &robot)
{
    if (!robot.controllerConnected())
        return {Glyph::LinkLost, Tone::Error, Texts::tr("No link"),
                robot.hubConnected() ? Texts::tr("Service hub only")
                                     : Texts::tr("Looking for the controller")};
    if (!robot.hubConnected())
        return {Glyph::Link, Tone::Warning, Texts::tr("In part"),
                Texts::tr("The service hub is missing")};
    return {Glyph::Link, Tone::Ok, Texts::tr("Connected"), Texts::tr("Controller and service hub")};
}

Reading powerReading(const RobotState &robot)
{
    return either(
        robot, robot.powered(),
        {Glyph::Power, Tone::Warning, Texts::tr("On"), Texts::tr("The robot can move")},
        {Glyph::Power, Tone::Muted, Texts::tr("Off"), Texts::tr("The motors are without power")});
}

Reading modeReading(const RobotState &robot)
{
    return either(
        robot, robot.automatic(),
        {Glyph::Cycle, Tone::Accent, Texts::tr("Automatic"),
         Texts::tr("Programs run by themselves")},
        {Glyph::Hand, Tone::Accent, Texts::tr("Manual"), Texts::tr("Moves by hand, at low speed")});
}

Reading runReading(const RobotState &robot)
{
    return either(
        robot, robot.running(),
        {Glyph::Play, Tone::Ok, Texts::tr("Running"), Texts::tr("A program is running")},
        {Glyph::Stop, Tone::Muted, Texts::tr("Stopped"), Texts::tr("No program is running")});
}

Reading userReading(const RobotState &robot)
{
    if (!robot.userLevel() || !robot.controllerConnected())
        return unknown(robot, Glyph::User);
    return {Glyph::User, Tone::Muted, Texts::tr("Level %1").arg(*robot.userLevel()),
            Texts::tr("Says what may be changed")};
}

} // namespace panel
