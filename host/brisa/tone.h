#pragma once

#include "hostexport.h"

#include <QColor>

namespace brisa
{

/** What something means to the operator; it chooses the colour. Plain and Muted are the text's. */
enum class Tone { Plain, Muted, Accent, Ok, Warning, Error };

struct ToneColours {
    QColor line; ///< text and pictograms
    QColor soft; ///< the ground behind them
};

/** The current theme's colours for a tone. GUI thread. */
HOST_EXPORT ToneColours toneColours(Tone tone);

} // namespace brisa
