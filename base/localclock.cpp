#include "localclock.h"

namespace logbase
{

LocalMoment localNow()
{
    std::timespec now = {};
    std::timespec_get(&now, TIME_UTC);
    LocalMoment moment = {};
    ::tzset();
    ::localtime_r(&now.tv_sec, &moment.time);
    moment.millisecond = static_cast<int>(now.tv_nsec / 1000000);
    return moment;
}

} // namespace logbase
