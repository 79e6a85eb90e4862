#pragma once

/**
 * Seconds that this process has spent in fsync() and fdatasync(). This program's own functions of
 * these names stand before the C library's, for all libraries alike; they call the kernel.
 */
double secondsInSync();
