#include "kivra/physicalkey_p.h"

#include "brisa/plaintip.h"
#include "brisa/thememanager.h"
#include "kivra/navigationtree_p.h"

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
constexpr int TextMargin = 4;
constexpr int TextTop = 32; // below an icon
constexpr int Lip = 3; // the edge below a key that stands up

constexpr int FaceFlags = Qt::AlignCenter | Qt::TextWordWrap;
} // namespace

PhysicalKey::PhysicalKey(const KeyPagePtr &page, int row, int column, QWidget *parent)
    : QAbstractButton(parent)
    , m_page(page)
    , m_row(row)
    , m_column(column)
{
    setText(inPanelLanguage(page->rows[row].at(column).label));
    setFont(ThemeManager::font(brisa::TextSize::Body));
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
    const QRectF key = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(isDown() ? colours.accent : colours.border);
    painter.setBrush(isDown() ? colours.accent : colours.border);
    painter.drawRoundedRect(key, metrics::Radius, metrics::Radius);
    painter.setBrush(isDown()          ? colours.accentSoft
                         : isEnabled() ? colours.surface
                                       : colours.raised);
    painter.drawRoundedRect(isDown() ? key : key.adjusted(0, 0, 0, -Lip), metrics::Radius,
                            metrics::Radius);
    if (!isDown())
        painter.translate(0, -Lip / 2);
    painter.setPen(isEnabled() ? colours.text : colours.disabledText);
    paintFace(painter);
}

void PhysicalKey::paintFace(QPainter &painter) const
{
    const QIcon face = icon();
    if (!face.isNull()) {
        const int top = text().isEmpty() ? (height() - metrics::Icon) / 2 : TextMargin;
        const QRect picture((width() - metrics::Icon) / 2, top, metrics::Icon, metrics::Icon);
        face.paint(&painter, picture, Qt::AlignCenter,
                   isEnabled() ? QIcon::Normal : QIcon::Disabled);
    }
    const QRect box = textBox();
    if (textFits())
        painter.drawText(box, FaceFlags, text());
    else
        painter.drawText(box, Qt::AlignCenter | Qt::TextSingleLine,
                         fontMetrics().elidedText(text(), Qt::ElideRight, box.width()));
}

QRect PhysicalKey::textBox() const
{
    const QRect face = rect().adjusted(TextMargin, 0, -TextMargin, 0);
    return icon().isNull() ? face : face.adjusted(0, TextTop, 0, -TextMargin);
}

/** On one line or, between words, on several. */
bool PhysicalKey::textFits() const
{
    const QRect box = textBox();
    const QSize size = fontMetrics().boundingRect(box, FaceFlags, text()).size();
    return size.width() <= box.width() && size.height() <= box.height();
}

void PhysicalKey::resizeEvent(QResizeEvent *event)
{
    QAbstractButton::resizeEvent(event);
    setToolTip(textFits() ? QString() : brisa::plainTip(text()));
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
