#pragma once

namespace simulator
{

/** How far along a path something is over time: it speeds up evenly, keeps its speed and slows down
 *  to rest. Lengths in metres, times in seconds. */
class Travel
{
public:
    static constexpr double kAcceleration = 4.0; ///< metres per second squared

    Travel() = default;
    Travel(double length, double speed);

    double end() const { return m_begin + m_duration; }
    double position(double time) const;
    double speed(double time) const;
    /** The same up to a time, from which on it slows down to rest. */
    Travel braked(double time) const;

private:
    double m_begin = 0;
    double m_from = 0;
    double m_length = 0;
    double m_peak = 0; ///< the speed in between
    double m_ramp = 0; ///< how long it takes to get there
    double m_duration = 0;
};

} // namespace simulator
