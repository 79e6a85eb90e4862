#pragma once

#include <malloc.h>

/** Bytes that the main thread's heap has handed out, large blocks included. */
inline size_t heapInUse()
{
    const auto info = mallinfo2();
    return info.uordblks + info.hblkhd;
}
