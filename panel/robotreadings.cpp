#include "robotreadings.h"

#include "robotstate.h"

#include <QCoreApplication>
#include <optional>

namespace panel
{

using brisa::Glyph;

namespace
{

QString tr(const char *text)
{
    return QCoreApplication::translate("panel", text);
}

Reading unknown(const RobotState &robot, Glyph glyph)
{
    return {glyph, Tone::Muted, tr("Unknown"),
            robot.controllerConnected() ? tr("The controller does not say")
                                        : tr("No link to the controller")};
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
        return {Glyph::LinkLost, Tone::Error, tr("No link"),
                robot.hubConnected() ? tr("Service hub only") : tr("Looking for the controller")};
    if (!robot.hubConnected())
        return {Glyph::Link, Tone::Warning, tr("In part"), tr("The service hub is missing")};
    return {Glyph::Link, Tone::Ok, tr("Connected"), tr("Controller and service hub")};
}

Reading powerReading(const RobotState &robot)
{
    return either(robot, robot.powered(),
                  {Glyph::Power, Tone::Warning, tr("On"), tr("The robot can move")},
                  {Glyph::Power, Tone::Muted, tr("Off"), tr("The motors are without power")});
}

Reading modeReading(const RobotState &robot)
{
    return either(robot, robot.automatic(),
                  {Glyph::Cycle, Tone::Accent, tr("Automatic"), tr("Programs run by themselves")},
                  {Glyph::Hand, Tone::Accent, tr("Manual"), tr("Moves by hand, at low speed")});
}

Reading runReading(const RobotState &robot)
{
    return either(robot, robot.running(),
                  {Glyph::Play, Tone::Ok, tr("Running"), tr("A program is running")},
                  {Glyph::Stop, Tone::Muted, tr("Stopped"), tr("No program is running")});
}

Reading userReading(const RobotState &robot)
{
    if (!robot.userLevel() || !robot.controllerConnected())
        return unknown(robot, Glyph::User);
    return {Glyph::User, Tone::Muted, tr("Level %1").arg(*robot.userLevel()),
            tr("Says what may be changed")};
}

} // namespace panel
