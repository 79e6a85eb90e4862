#include "brisa/tone.h"

#include "brisa/thememanager.h"

namespace brisa
{

ToneColours toneColours(Tone tone)
{
    const ThemeColours &colours = ThemeManager::instance()->colours();
    switch (tone) {
    case Tone::Muted:
        return {colours.mutedText, colours.raised};
    case Tone::Accent:
        return {colours.accent, colours.accentSoft};
    case Tone::Ok:
        return {colours.ok, colours.okSoft};
    case Tone::Warning:
        return {colours.warning, colours.warningSoft};
    case Tone::Error:
        return {colours.error, colours.errorSoft};
    case Tone::Plain:
        break;
    }
    return {colours.text, colours.raised};
}

} // namespace brisa
