#include "statusbadge.h"

#include <QFontMetrics>
#include <QPainter>
#include <brisa/plaintip.h>
#include <brisa/thememanager.h>

namespace panel
{

using brisa::ThemeManager;
namespace metrics = brisa::metrics;

namespace
{

constexpr int Height = 5 * metrics::Grid;
constexpr int Padding = metrics::Grid + metrics::Grid / 2;

} // namespace

StatusBadge::StatusBadge(QWidget *parent)
    : QWidget(parent)
{
    setFont(ThemeManager::font(brisa::TextSize::Body));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(ThemeManager::instance(), &ThemeManager::themeChanged, this,
            qOverload<>(&QWidget::update));
}

void StatusBadge::setReading(const Reading &reading)
{
    m_reading = reading;
    setToolTip(brisa::plainTip(reading.hint));
    setAccessibleName(reading.value);
    updateGeometry();
    update();
}

QSize StatusBadge::sizeHint() const
{
    const int text = QFontMetrics(font()).horizontalAdvance(m_reading.value);
    return {Padding + metrics::Icon + metrics::Grid + text + Padding, Height};
}

QSize StatusBadge::minimumSizeHint() const
{
    return sizeHint();
}

void StatusBadge::paintEvent(QPaintEvent *)
{
    const brisa::ToneColours colours = toneColours(m_reading.tone);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colours.soft);
    painter.drawRoundedRect(rect(), Height / 2.0, Height / 2.0);
    painter.drawPixmap(
        Padding, (height() - metrics::Icon) / 2,
        brisa::glyphPixmap(m_reading.glyph, colours.line, metrics::Icon, devicePixelRatioF()));
    painter.setPen(colours.line);
    const int left = Padding + metrics::Icon + metrics::Grid;
    painter.drawText(QRect(left, 0, width() - left, height()), Qt::AlignVCenter | Qt::AlignLeft,
                     m_reading.value);
}

} // namespace panel
