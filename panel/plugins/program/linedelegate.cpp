#include "linedelegate.h"

#include "instructions.h"
#include "kit/marks.h"
#include "programtext.h"
#include "programview.h"

#include <QPainter>
#include <brisa/thememanager.h>

using brisa::ThemeManager;
using programtext::Kind;

namespace
{

constexpr int LineHeight = 44;
constexpr int GutterWidth = 56;
constexpr int Gap = 10;
constexpr int Strip = 4;
constexpr int LeastDescription = 90;
constexpr int TextShare = 55; // percent that the text has before a description may be shown

void drawText(QPainter *painter, const QRect &box, const QString &text, const QFont &font,
              const QColor &colour, Qt::Alignment alignment)
{
    painter->setFont(font);
    painter->setPen(colour);
    painter->drawText(box, static_cast<int>(alignment | Qt::AlignVCenter) | Qt::TextSingleLine,
                      QFontMetrics(font).elidedText(text, Qt::ElideRight, box.width()));
}

void drawGround(QPainter *painter, const QStyleOptionViewItem &option)
{
    const brisa::ThemeColours &colours = ThemeManager::instance()->colours();
    const QRect gutter(option.rect.topLeft(), QSize(GutterWidth, option.rect.height()));
    painter->fillRect(gutter, colours.raised);
    if (!(option.state & QStyle::State_Selected))
        return;
    painter->fillRect(option.rect, colours.accentSoft);
    painter->fillRect(QRect(option.rect.topLeft(), QSize(Strip, option.rect.height())),
                      colours.accent);
}

/** Returns the room that is left of it. */
QRect drawKind(QPainter *painter, QRect box, const kit::Mark &mark, kit::Outline outline)
{
    const int width = qMin(kit::markWidth(mark), box.width() / 3);
    const QRect place(box.right() - width + 1, box.y(), width, box.height());
    kit::drawMark(painter, place, mark, outline);
    return box.adjusted(0, 0, -width - Gap, 0);
}

/** Returns the room that is left of it; it gives way to the text. */
QRect drawDescription(QPainter *painter, QRect box, int textWidth, const QString &description)
{
    const int width = box.width() - qMax(textWidth + 3 * Gap, box.width() * TextShare / 100);
    if (description.isEmpty() || width < LeastDescription)
        return box;
    const QRect place(box.right() - width + 1, box.y(), width, box.height());
    drawText(painter, place, description, ThemeManager::font(brisa::TextSize::Caption),
             ThemeManager::instance()->colours().mutedText, Qt::AlignRight);
    return box.adjusted(0, 0, -width - Gap, 0);
}

QString visible(QString line)
{
    line.replace(QLatin1Char('\t'), QStringLiteral("    "));
    for (QChar &c : line) {
        if (c.category() == QChar::Other_Control)
            c = QChar(QChar::ReplacementCharacter);
    }
    return line;
}

} // namespace

void LineDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                         const QModelIndex &index) const
{
    const brisa::ThemeColours &colours = ThemeManager::instance()->colours();
    const auto *const model = static_cast<const ProgramModel *>(index.model());
    const QString line = model->line(index.row());
    const QString type = index.data(Qt::UserRole).toString();
    const Kind kind = programtext::kindOf(line);
    QFont font = programFont();
    painter->save();
    drawGround(painter, option);
    const bool chosen = option.state & QStyle::State_Selected;
    drawText(painter, option.rect.adjusted(0, 0, GutterWidth - Gap - option.rect.width(), 0),
             QString::number(index.row() + 1), ThemeManager::font(brisa::TextSize::Caption, chosen),
             chosen ? colours.accent : colours.mutedText, Qt::AlignRight);
    QRect box = option.rect.adjusted(GutterWidth + Gap, 0, -Gap, 0);
    const QString text = visible(programtext::shown(line).left(programtext::LongestLine));
    if (kind == Kind::Code) {
        const bool known = !type.isEmpty();
        const kit::Mark mark {known ? type : tr("Unknown"),
                              known ? kit::Tone::Accent : kit::Tone::Warning};
        box = drawKind(painter, box, mark, chosen ? kit::Outline::Drawn : kit::Outline::None);
        box = drawDescription(painter, box, QFontMetrics(font).horizontalAdvance(text),
                              known ? model->instructions()->description(type) : QString());
    }
    font.setItalic(kind == Kind::Comment);
    const QColor colour = kind == Kind::Comment ? colours.mutedText : colours.text;
    drawText(painter, box, text, font, colour, Qt::AlignLeft);
    painter->restore();
}

QSize LineDelegate::sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const
{
    return {GutterWidth, LineHeight};
}

QFont programFont()
{
    QFont font = ThemeManager::font(brisa::TextSize::Body);
    font.setFamilies({QStringLiteral("DejaVu Sans Mono"), QStringLiteral("monospace")});
    font.setStyleHint(QFont::Monospace);
    return font;
}
