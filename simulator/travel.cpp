#include "travel.h"

#include <algorithm>
#include <cmath>

namespace simulator
{

Travel::Travel(double length, double speed)
    : m_length(length)
    , m_peak(std::min(speed, std::sqrt(kAcceleration * length)))
    , m_ramp(m_peak / kAcceleration)
    , m_duration(m_peak > 0 ? length / m_peak + m_ramp : 0)
{
}

double Travel::position(double time) const
{
    const double t = std::clamp(time - m_begin, 0.0, m_duration);
    if (t < m_ramp)
        return m_from + kAcceleration * t * t / 2;
    if (t < m_duration - m_ramp)
        return m_from + m_peak * (t - m_ramp / 2);
    const double left = m_duration - t;
    return m_from + m_length - kAcceleration * left * left / 2;
}

double Travel::speed(double time) const
{
    const double t = std::clamp(time - m_begin, 0.0, m_duration);
    return std::min({m_peak, kAcceleration * t, kAcceleration * (m_duration - t)});
}

Travel Travel::braked(double time) const
{
    // The second half of a travel that reaches this speed just now.
    const double now = speed(time);
    Travel braking(now * now / kAcceleration, now);
    braking.m_from = position(time) - braking.m_length / 2;
    braking.m_begin = time - braking.m_ramp;
    return braking;
}

} // namespace simulator
