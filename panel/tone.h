#pragma once

#include <QColor>
#include <brisa/thememanager.h>

namespace panel
{

/** What a state means to the operator; it chooses the colour. */
enum class Tone { Neutral, Active, Ok, Warning, Error };

struct ToneColours {
    QColor line; ///< text and pictogram
    QColor soft; ///< the background behind them
};

inline ToneColours toneColours(Tone tone)
{
    const brisa::ThemeColours &colours = brisa::ThemeManager::instance()->colours();
    switch (tone) {
    case Tone::Active:
        return {colours.accent, colours.accentSoft};
    case Tone::Ok:
        return {colours.ok, colours.okSoft};
    case Tone::Warning:
        return {colours.warning, colours.warningSoft};
    case Tone::Error:
        return {colours.error, colours.errorSoft};
    case Tone::Neutral:
        break;
    }
    return {colours.mutedText, colours.raised};
}

} // namespace panel
