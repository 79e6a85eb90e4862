#include "kivra/navigationitem_p.h"

#include "brisa/glyph.h"
#include "brisa/plaintip.h"
#include "brisa/thememanager.h"

#include <QEvent>
#include <QPainter>

namespace qo
{
namespace kivra
{

using brisa::ThemeColours;
using brisa::ThemeManager;
namespace metrics = brisa::metrics;

NavigationItem::NavigationItem(const NavigationEntry &entry, QWidget *parent)
    : QAbstractButton(parent)
    , m_entry(entry)
{
    setText(entry.title);
    setObjectName(entry.nav);
    setCheckable(true);
    setAutoExclusive(false);
    setEnabled(!entry.nav.isEmpty());
    setFixedHeight(metrics::Touch);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    setFont(ThemeManager::font(brisa::TextSize::Body));
}

QString NavigationItem::nav() const
{
    return m_entry.nav;
}

QSize NavigationItem::sizeHint() const
{
    return {0, metrics::Touch};
}

// Measuring text is dear, and a tool tip is seldom asked for.
bool NavigationItem::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip) {
        const bool elided = fontMetrics().horizontalAdvance(text()) > textBox().width();
        setToolTip(elided ? brisa::plainTip(text()) : QString());
    }
    return QAbstractButton::event(event);
}

void NavigationItem::paintEvent(QPaintEvent *)
{
    const ThemeColours &colours = ThemeManager::instance()->colours();
    QColor ink = isChecked() ? colours.accent : colours.text;
    if (!isEnabled())
        ink = colours.disabledText;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (isChecked() || isDown()) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(isChecked() ? colours.accentSoft : colours.raised);
        painter.drawRoundedRect(rect(), metrics::Radius, metrics::Radius);
    }
    if (isChecked()) {
        painter.setBrush(colours.accent);
        painter.drawRoundedRect(QRect(0, metrics::Margin, 4, height() - 2 * metrics::Margin), 2, 2);
    }
    painter.drawPixmap(metrics::Margin, (height() - metrics::Icon) / 2, picture(ink));
    painter.setPen(ink);
    const QRect box = textBox();
    painter.drawText(box, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     fontMetrics().elidedText(text(), Qt::ElideRight, box.width()));
}

QRect NavigationItem::textBox() const
{
    const int left = metrics::Margin + metrics::Icon + 12;
    return {left, 0, width() - left - metrics::Grid, height()};
}

QPixmap NavigationItem::picture(const QColor &colour) const
{
    brisa::Glyph glyph = brisa::Glyph::Plugin;
    if (brisa::glyphFromName(m_entry.icon, &glyph))
        return brisa::glyphPixmap(glyph, colour, metrics::Icon, devicePixelRatioF());
    const QIcon icon(m_entry.icon);
    if (!m_entry.icon.isEmpty() && !icon.availableSizes().isEmpty())
        return icon.pixmap(metrics::Icon, metrics::Icon);
    const ThemeColours &colours = ThemeManager::instance()->colours();
    const QColor tile = isChecked() ? colours.accent : colours.border;
    return brisa::letterPixmap(text(), isChecked() ? colours.onAccent : colour, tile, metrics::Icon,
                               devicePixelRatioF());
}

} // namespace kivra
} // namespace qo
