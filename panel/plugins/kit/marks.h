#pragma once

#include <QString>
#include <brisa/glyph.h>
#include <brisa/tone.h>

class QPainter;
class QRect;

/** What all pages draw alike. */
namespace kit
{

using brisa::Tone;
using brisa::toneColours;
using brisa::ToneColours;

/** A name for a sentence or a title: the middle of one that is too long is left out. */
QString shortened(const QString &name);

/** Unknown: nobody knows at present, as without a link. */
enum class Lamp { None, Off, On, Unknown };

constexpr int LampSize = 22;

void drawLamp(QPainter *painter, const QRect &box, Lamp lamp);

/** A word on a soft ground: "Open". */
struct Mark {
    QString text;
    Tone tone = Tone::Muted;

    bool operator==(const Mark &other) const { return text == other.text && tone == other.tone; }
};

int markWidth(const Mark &mark);
/** Drawn: for a ground that may have the mark's own colour, as what is chosen has. */
enum class Outline { None, Drawn };
/** Draws the mark at the left of the box, in the middle of its height. */
void drawMark(QPainter *painter, const QRect &box, const Mark &mark,
              Outline outline = Outline::None);

/** For a list without rows: pictogram, title and hint in the middle; the hint may wrap. */
void drawEmptyState(QPainter *painter, const QRect &room, brisa::Glyph glyph, const QString &title,
                    const QString &hint);

} // namespace kit
