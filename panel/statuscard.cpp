#include "statuscard.h"

#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QVariant>
#include <brisa/elidedlabel.h>

namespace panel
{

using brisa::TextSize;
using brisa::ThemeManager;

namespace
{

/** The pictogram on a disc of its meaning's colour. */
QPixmap disc(const Reading &reading, qreal ratio)
{
    constexpr int size = brisa::metrics::Touch;
    constexpr int at = (size - brisa::metrics::Icon) / 2;
    const ToneColours colours = toneColours(reading.tone);
    QPixmap pixmap(QSize(size, size) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colours.soft);
    painter.drawEllipse(0, 0, size, size);
    painter.drawPixmap(
        at, at, brisa::glyphPixmap(reading.glyph, colours.line, brisa::metrics::Icon, ratio));
    return pixmap;
}

} // namespace

StatusCard::StatusCard(const QString &caption, QWidget *parent)
    : QFrame(parent)
    , m_picture(new QLabel(this))
    , m_caption(new brisa::ElidedLabel(caption, this))
    , m_value(new brisa::ElidedLabel(QString(), this))
    , m_hint(new brisa::ElidedLabel(QString(), this))
{
    setProperty("role", QStringLiteral("card"));
    m_picture->setFixedSize(brisa::metrics::Touch, brisa::metrics::Touch);
    m_caption->setFont(ThemeManager::font(TextSize::Caption));
    m_value->setFont(ThemeManager::font(TextSize::Heading, true));
    m_hint->setFont(ThemeManager::font(TextSize::Caption));

    auto *const grid = new QGridLayout(this);
    grid->setContentsMargins(brisa::metrics::Margin, brisa::metrics::Margin, brisa::metrics::Margin,
                             brisa::metrics::Margin);
    grid->setHorizontalSpacing(brisa::metrics::Margin);
    grid->setVerticalSpacing(brisa::metrics::Grid / 2);
    grid->addWidget(m_picture, 1, 0, 3, 1, Qt::AlignVCenter);
    grid->addWidget(m_caption, 1, 1);
    grid->addWidget(m_value, 2, 1);
    grid->addWidget(m_hint, 3, 1);
    grid->setRowStretch(0, 1);
    grid->setRowStretch(4, 1);
    grid->setColumnStretch(1, 1);
    connect(ThemeManager::instance(), &ThemeManager::themeChanged, this, &StatusCard::applyTheme);
    applyTheme();
}

void StatusCard::setReading(const Reading &reading)
{
    m_reading = reading;
    m_value->setText(reading.value);
    m_hint->setText(reading.hint);
    setAccessibleName(m_caption->text() + QStringLiteral(": ") + reading.value);
    applyTheme();
}

void StatusCard::applyTheme()
{
    const QColor muted = ThemeManager::instance()->colours().mutedText;
    m_caption->setColour(muted);
    m_hint->setColour(muted);
    m_picture->setPixmap(disc(m_reading, devicePixelRatioF()));
}

} // namespace panel
