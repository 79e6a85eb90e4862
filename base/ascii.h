#pragma once

#include <QString>

#include <algorithm>

namespace logbase
{

/** True for nearly every path and log text: its bytes are then the same in every encoding. */
inline bool isAscii(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x80; });
}

} // namespace logbase
