#pragma once

#include <QString>

namespace zeplet
{

/// A random UUID (RFC 4122, version 4) as 36 lower-case characters without braces. Its bits come
/// from the kernel's generator, drawn in batches for each thread. Callable from any thread.
QString randomUuid();

} // namespace zeplet
