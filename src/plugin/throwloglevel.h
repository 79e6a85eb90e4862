#pragma once

namespace zeplet
{

/** How the host's log banner shows a message; any other number is shown as information. */
enum enThrowLogLevel : int {
    ThrowLogInfo = 0,
    ThrowLogWarning = 1,
    ThrowLogError = 2,
};

} // namespace zeplet
