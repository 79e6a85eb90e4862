#pragma once

#include <QDateTime>

#include <ctime>

namespace zeplet
{

/// The system's time in milliseconds since 1970, as QDateTime::currentMSecsSinceEpoch() gives it.
/// Inline down to the system's call, which every invocation of a handler makes.
inline qint64 utcMilliseconds()
{
    timespec now;
    ::clock_gettime(CLOCK_REALTIME, &now);
    return qint64(now.tv_sec) * 1000 + now.tv_nsec / 1000000;
}

/// 1970 in UTC, to be copied and set: making a new QDateTime in UTC costs several times as much.
const QDateTime &startOfTime();

/// QDateTime::currentDateTimeUtc() at less cost.
inline QDateTime utcNow()
{
    QDateTime now = startOfTime();
    now.setMSecsSinceEpoch(utcMilliseconds());
    return now;
}

/// The time of the calls of one dispatch. The clock is read for every call; the QDateTime, which
/// costs as much again, is made once for each millisecond.
class InvocationClock
{
public:
    const QDateTime &now()
    {
        const qint64 milliseconds = utcMilliseconds();
        if (milliseconds != m_milliseconds) {
            m_milliseconds = milliseconds;
            m_time.setMSecsSinceEpoch(milliseconds);
        }
        return m_time;
    }

private:
    qint64 m_milliseconds = -1;
    QDateTime m_time = startOfTime();
};

} // namespace zeplet
