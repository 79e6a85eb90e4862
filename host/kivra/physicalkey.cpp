#include "kivra/physicalkey_p.h"

#include "brisa/thememanager.h"

#include <QPainter>

namespace qo
{
namespace kivra
{

namespace metrics = brisa::metrics;
using brisa::ThemeColours;
using brisa::ThemeManager;

namespace
{
constexpr int KeyWidth = 12 * metrics::Grid;
constexpr int TextMargin = 6;
constexpr int TextTop = 32; // below an icon
} // namespace

PhysicalKey::PhysicalKey(const KeyPagePtr &page, int row, int column, QWidget *parent)
    : QAbstractButton(parent)
    , m_page(page)
    , m_row(row)
    , m_column(column)
{
    setText(page->rows[row].at(column).label);
    setFont(ThemeManager::font(brisa::TextSize::Caption));
    setMinimumSize(metrics::Touch, metrics::Touch);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setFocusPolicy(Qt::NoFocus);
    setEnabled(page->enabled);
    connect(this, &QAbstractButton::pressed, this, &PhysicalKey::press);
    connect(this, &QAbstractButton::released, this, &PhysicalKey::release);
}

PhysicalKey::~PhysicalKey()
{
    release();
}

QSize PhysicalKey::sizeHint() const
{
    return {KeyWidth, metrics::Touch};
}

void PhysicalKey::press()
{
    if (m_held)
        return;
    m_held = true;
    PhysicalButtonRegistry::press(m_page, m_row, m_column, true);
}

void PhysicalKey::release()
{
    if (!m_held)
        return;
    m_held = false;
    PhysicalButtonRegistry::press(m_page, m_row, m_column, false);
}

void PhysicalKey::paintEvent(QPaintEvent *)
{
    const ThemeColours &colours = ThemeManager::instance()->colours();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(isDown() ? colours.accent : colours.border);
    painter.setBrush(isDown()          ? colours.accentSoft
                         : isEnabled() ? colours.raised
                                       : colours.surface);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), metrics::Radius,
                            metrics::Radius);
    painter.setPen(isEnabled() ? colours.text : colours.disabledText);
    paintFace(painter);
}

void PhysicalKey::paintFace(QPainter &painter) const
{
    QRect box = rect().adjusted(TextMargin, 0, -TextMargin, 0);
    const QIcon face = icon();
    if (!face.isNull()) {
        const int top = text().isEmpty() ? (height() - metrics::Icon) / 2 : TextMargin;
        const QRect picture((width() - metrics::Icon) / 2, top, metrics::Icon, metrics::Icon);
        face.paint(&painter, picture, Qt::AlignCenter,
                   isEnabled() ? QIcon::Normal : QIcon::Disabled);
        box.setTop(TextTop);
        box.setBottom(height() - TextMargin);
    }
    painter.drawText(box, Qt::AlignCenter | Qt::TextSingleLine,
                     fontMetrics().elidedText(text(), Qt::ElideRight, box.width()));
}

void PhysicalKey::resizeEvent(QResizeEvent *event)
{
    QAbstractButton::resizeEvent(event);
    const bool elided = fontMetrics().horizontalAdvance(text()) > width() - 2 * TextMargin;
    setToolTip(elided ? text().toHtmlEscaped() : QString());
}

void PhysicalKey::hideEvent(QHideEvent *event)
{
    setDown(false);
    release();
    QAbstractButton::hideEvent(event);
}

QIcon PhysicalKey::icon() const
{
    const brisa::PhysicalButton key = m_page->rows[m_row].value(m_column);
    const bool second = isDown() && !key.secondIcon.availableSizes().isEmpty();
    const QIcon &face = second ? key.secondIcon : key.firstIcon;
    return face.availableSizes().isEmpty() ? QIcon() : face;
}

} // namespace kivra
} // namespace qo
