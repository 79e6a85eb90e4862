#include "marks.h"

#include <QPainter>
#include <brisa/thememanager.h>

namespace kit
{

using brisa::ThemeManager;

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

void drawMark(QPainter *painter, const QRect &box, const Mark &mark)
{
    const ToneColours colours = toneColours(mark.tone);
    QRect ground(box.x(), 0, qMin(markWidth(mark), box.width()), MarkHeight);
    ground.moveTop(box.center().y() - MarkHeight / 2);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(colours.soft);
    painter->drawRoundedRect(ground, MarkHeight / 2.0, MarkHeight / 2.0);
    painter->setFont(markFont());
    painter->setPen(colours.line);
    const QRect text = ground.adjusted(MarkPadding, 0, -MarkPadding / 2, 0);
    painter->drawText(text, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                      painter->fontMetrics().elidedText(mark.text, Qt::ElideRight, text.width()));
    painter->restore();
}

} // namespace kit
