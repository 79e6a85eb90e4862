#pragma once

#include <ctime>

namespace logbase
{

/** A moment by the clock on the wall. */
struct LocalMoment {
    std::tm time;
    int millisecond; ///< 0 to 999
};

/**
 * The moment of the call, in the time zone that holds then. Callable from any thread.
 *
 * QDateTime asks for the time zone's file several times per line of a log; this asks once, which is
 * enough to follow a zone that is set while the panel runs.
 */
LocalMoment localNow();

} // namespace logbase
