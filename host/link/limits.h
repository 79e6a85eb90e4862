#pragma once

#include <QtGlobal>

/** The bounds of the wire, the same at both ends. */
namespace rpc
{

/** One text frame, either way, in bytes of UTF-8. */
constexpr qint64 maxFrameBytes = 16LL * 1024 * 1024;

/** Requests of one panel that wait for their answers at one endpoint. */
constexpr int maxPending = 1024;

/** What may wait to be sent: two frames of the greatest size and some. */
constexpr qint64 maxUnsentBytes = 3 * maxFrameBytes;

/** What may wait for the thread that owns a client. Beyond it the link is closed: the state is
 *  read again after the reconnect, so that nothing stale remains. */
constexpr qint64 maxUndeliveredBytes = 4 * maxFrameBytes;
constexpr int maxUndelivered = 65536;

/** How a client watches over its link: a ping goes out every pingInterval, and a peer that sent
 *  nothing at all for maxSilence is gone. ms. */
struct Liveness {
    int pingInterval;
    int maxSilence;
};
constexpr Liveness usualLiveness {1000, 3500};
static_assert(usualLiveness.pingInterval + usualLiveness.maxSilence < 5000,
              "a dead link is noticed within five seconds");

/** Pauses between attempts to connect: they double from the first to the last. ms. */
constexpr int firstPause = 100;
constexpr int lastPause = 2000;

} // namespace rpc
