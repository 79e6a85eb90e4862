#include "marks.h"

#include <QPainter>
#include <brisa/thememanager.h>

namespace kit
{

using brisa::ThemeManager;
namespace metrics = brisa::metrics;

namespace
{

constexpr int MarkHeight = 26;
constexpr int MarkPadding = 10;
constexpr int LongestName = 32; // characters, which fit into a line of a card

QFont markFont()
{
    return ThemeManager::font(brisa::TextSize::Caption, true);
}

} // namespace

QString shortened(const QString &name)
{
    if (name.size() <= LongestName)
        return name;
    return name.left(LongestName - 12) + QStringLiteral(" … ") + name.right(9);
}

// On and off differ in form too, not in colour alone: a disc with a light in it, or a ring.
void drawLamp(QPainter *painter, const QRect &box, Lamp lamp)
{
    if (lamp == Lamp::None)
        return;
    const brisa::ThemeColours &colours = ThemeManager::instance()->colours();
    QRectF disc(0, 0, LampSize - 4, LampSize - 4);
    disc.moveCenter(QRectF(box).center());
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (lamp == Lamp::On) {
        painter->setPen(Qt::NoPen);
        painter->setBrush(colours.okSoft);
        painter->drawEllipse(disc.adjusted(-4, -4, 4, 4));
        painter->setBrush(colours.ok);
        painter->drawEllipse(disc);
        painter->setBrush(QColor(255, 255, 255, 150));
        painter->drawEllipse(QRectF(disc.x() + 4, disc.y() + 4, 5, 5));
    } else {
        const bool known = lamp == Lamp::Off;
        painter->setPen(QPen(known ? colours.mutedText : colours.border, 2,
                             known ? Qt::SolidLine : Qt::DotLine));
        painter->setBrush(known ? colours.raised : QColor(Qt::transparent));
        painter->drawEllipse(disc.adjusted(1, 1, -1, -1));
    }
    painter->restore();
}

int markWidth(const Mark &mark)
{
    return QFontMetrics(markFont()).horizontalAdvance(mark.text) + 2 * MarkPadding;
}

void drawMark(QPainter *painter, const QRect &box, const Mark &mark, Outline outline)
{
    const ToneColours colours = toneColours(mark.tone);
    QRect ground(box.x(), 0, qMin(markWidth(mark), box.width()), MarkHeight);
    ground.moveTop(box.center().y() - MarkHeight / 2);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(outline == Outline::Drawn ? QPen(colours.line) : QPen(Qt::NoPen));
    painter->setBrush(colours.soft);
    painter->drawRoundedRect(QRectF(ground).adjusted(0.5, 0.5, -0.5, -0.5), MarkHeight / 2.0,
                             MarkHeight / 2.0);
    painter->setFont(markFont());
    painter->setPen(colours.line);
    const QRect text = ground.adjusted(MarkPadding, 0, -MarkPadding / 2, 0);
    painter->drawText(text, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                      painter->fontMetrics().elidedText(mark.text, Qt::ElideRight, text.width()));
    painter->restore();
}

void drawEmptyState(QPainter *painter, const QRect &room, brisa::Glyph glyph, const QString &title,
                    const QString &hint)
{
    constexpr int icon = 2 * metrics::Icon;
    constexpr int height = icon + 12 * metrics::Grid;
    const brisa::ThemeColours &colours = ThemeManager::instance()->colours();
    const QRect box = room.adjusted(metrics::Margin, 0, -metrics::Margin, 0);
    int y = qMax(0, box.center().y() - height / 2);
    painter->drawPixmap(
        box.center().x() - icon / 2, y,
        brisa::glyphPixmap(glyph, colours.mutedText, icon, painter->device()->devicePixelRatioF()));
    y += icon + metrics::Margin;
    painter->setFont(ThemeManager::font(brisa::TextSize::Title, true));
    painter->setPen(colours.text);
    painter->drawText(QRect(box.x(), y, box.width(), 3 * metrics::Grid),
                      Qt::AlignHCenter | Qt::AlignTop, title);
    y += 4 * metrics::Grid;
    painter->setFont(ThemeManager::font(brisa::TextSize::Body));
    painter->setPen(colours.mutedText);
    painter->drawText(QRect(box.x(), y, box.width(), box.bottom() - y),
                      Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, hint);
}

} // namespace kit
