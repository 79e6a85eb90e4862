#include "celldelegate.h"

#include "tablemodel.h"

#include <QPainter>
#include <brisa/thememanager.h>

namespace kit
{

using brisa::ThemeManager;
namespace metrics = brisa::metrics;

namespace
{

constexpr int Padding = 10;

void drawLine(QPainter *painter, const QRect &box, const QString &text, const QFont &font,
              const QColor &colour, Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignVCenter)
{
    painter->setFont(font);
    painter->setPen(colour);
    painter->drawText(box, static_cast<int>(alignment) | Qt::TextSingleLine,
                      painter->fontMetrics().elidedText(text, Qt::ElideRight, box.width()));
}

void drawGround(QPainter *painter, const QStyleOptionViewItem &option)
{
    const brisa::ThemeColours &colours = ThemeManager::instance()->colours();
    if (option.state & QStyle::State_Selected)
        painter->fillRect(option.rect, colours.accentSoft);
    painter->setPen(colours.border);
    painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
}

void drawButton(QPainter *painter, const QRect &cell, const Cell &content)
{
    const brisa::ThemeColours &colours = ThemeManager::instance()->colours();
    const QRectF box = QRectF(cell).adjusted(6.5, 6.5, -6.5, -7.5);
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(colours.border);
    painter->setBrush(colours.raised);
    painter->drawRoundedRect(box, metrics::Radius, metrics::Radius);
    drawLine(painter, box.toRect(), content.text, ThemeManager::font(brisa::TextSize::Body),
             toneColours(content.tone).line, Qt::AlignCenter);
}

/** Returns the room that is left of them. */
QRect drawMarks(QPainter *painter, QRect box, const QVector<Mark> &marks)
{
    for (int i = marks.size() - 1; i >= 0; --i) {
        const int width = qMin(markWidth(marks.at(i)), box.width());
        const QRect place(box.right() - width + 1, box.y(), width, box.height());
        drawMark(painter, place, marks.at(i));
        box.setRight(place.left() - Padding / 2);
    }
    return box;
}

void drawTexts(QPainter *painter, const QRect &box, const Cell &content)
{
    const QFont body = ThemeManager::font(brisa::TextSize::Body);
    if (content.hint.isEmpty()) {
        drawLine(painter, box, content.text, body, toneColours(content.tone).line);
        return;
    }
    const QFont caption = ThemeManager::font(brisa::TextSize::Caption);
    const int upper = QFontMetrics(body).height();
    const int lower = QFontMetrics(caption).height();
    const QRect first(box.x(), box.center().y() - (upper + lower) / 2, box.width(), upper);
    drawLine(painter, first, content.text, body, toneColours(content.tone).line);
    drawLine(painter, QRect(box.x(), first.bottom() + 1, box.width(), lower), content.hint, caption,
             toneColours(Tone::Muted).line);
}

} // namespace

void CellDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                         const QModelIndex &index) const
{
    const Cell &content = static_cast<const TableModel *>(index.model())->cell(index);
    painter->save();
    drawGround(painter, option);
    if (content.button) {
        if (!content.text.isEmpty())
            drawButton(painter, option.rect, content);
        painter->restore();
        return;
    }
    QRect box = option.rect.adjusted(Padding, 0, -Padding, -1);
    if (content.lamp != Lamp::None) {
        drawLamp(painter, QRect(box.x(), box.y(), LampSize, box.height()), content.lamp);
        box.setLeft(box.left() + LampSize + Padding);
    }
    // Marks that stand alone begin where a text would.
    if (content.text.isEmpty() && content.marks.size() == 1)
        drawMark(painter, box, content.marks.first());
    else
        drawTexts(painter, drawMarks(painter, box, content.marks), content);
    painter->restore();
}

} // namespace kit
