#pragma once

#include <QString>

namespace brisa
{

struct ThemeColours;

/** The host's global style sheet in these colours. */
QString globalStyleSheet(const ThemeColours &colours);

} // namespace brisa
