#include "statuscard.h"

#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QVBoxLayout>
#include <QVariant>
#include <brisa/thememanager.h>
#include <brisa/translated.h>

namespace panel
{

using brisa::TextSize;
using brisa::ThemeManager;

namespace
{

constexpr int WidthWithPicture
    = 25 * brisa::metrics::Grid; // a narrower card needs its height for text
constexpr int StripWidth = brisa::metrics::Grid / 2;

/** The pictogram on a disc of its meaning's colour. */
QPixmap disc(const Reading &reading, qreal ratio)
{
    constexpr int size = brisa::metrics::Touch;
    constexpr int icon = brisa::metrics::Icon + brisa::metrics::Grid;
    constexpr int at = (size - icon) / 2;
    const brisa::ToneColours colours = toneColours(reading.tone);
    QPixmap pixmap(QSize(size, size) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colours.soft);
    painter.drawEllipse(0, 0, size, size);
    painter.drawPixmap(at, at, brisa::glyphPixmap(reading.glyph, colours.line, icon, ratio));
    return pixmap;
}

QLabel *makeText(TextSize size, QWidget *parent)
{
    auto *const label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText); // some of it comes from the controller
    label->setWordWrap(true);
    // Cards side by side are equally wide, whatever their words.
    QSizePolicy policy = label->sizePolicy();
    policy.setHorizontalPolicy(QSizePolicy::Ignored);
    label->setSizePolicy(policy);
    label->setFont(ThemeManager::font(size));
    return label;
}

/** The largest bold type in which the text is no wider than the space. */
QFont fittingFont(const QString &text, int space)
{
    for (const TextSize size : {TextSize::Display, TextSize::Heading, TextSize::Title}) {
        const QFont font = ThemeManager::font(size, true);
        if (QFontMetrics(font).horizontalAdvance(text) <= space)
            return font;
    }
    return ThemeManager::font(TextSize::Body, true);
}

} // namespace

StatusCard::StatusCard(const std::function<QString()> &caption, QWidget *parent)
    : QFrame(parent)
    , m_picture(new QLabel(this))
    , m_caption(makeText(TextSize::Body, this))
    , m_value(makeText(TextSize::Display, this))
    , m_hint(makeText(TextSize::Body, this))
{
    using namespace brisa::metrics;
    setProperty("role", QStringLiteral("card"));
    m_picture->setFixedSize(Touch, Touch);
    brisa::translated(this, [this, caption] {
        m_caption->setText(caption());
        nameIt();
    });
    for (QLabel *const label : {m_caption, m_hint})
        label->setProperty("role", QStringLiteral("muted"));
    auto *const column = new QVBoxLayout(this);
    column->setContentsMargins(Margin + Grid, Margin, Margin, Margin);
    column->setSpacing(Grid / 2);
    column->addWidget(m_picture);
    column->addSpacing(Grid);
    column->addWidget(m_caption);
    column->addWidget(m_value);
    column->addWidget(m_hint);
    column->addStretch(1);
    connect(ThemeManager::instance(), &ThemeManager::themeChanged, this, &StatusCard::applyTheme);
    applyTheme();
}

void StatusCard::setReading(const Reading &reading)
{
    m_reading = reading;
    m_value->setText(reading.value);
    m_hint->setText(reading.hint);
    nameIt();
    fitValue();
    applyTheme();
}

void StatusCard::nameIt()
{
    setAccessibleName(m_caption->text() + QStringLiteral(": ") + m_reading.value);
}

// A strip at the left edge in the colour of what the value means.
void StatusCard::paintEvent(QPaintEvent *event)
{
    QFrame::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath card;
    card.addRoundedRect(rect(), brisa::metrics::Radius, brisa::metrics::Radius);
    painter.setClipPath(card);
    const brisa::ToneColours colours = toneColours(m_reading.tone);
    const bool neutral = m_reading.tone == Tone::Muted;
    painter.fillRect(0, 0, StripWidth, height(),
                     neutral ? ThemeManager::instance()->colours().border : colours.line);
}

void StatusCard::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    m_picture->setVisible(width() >= WidthWithPicture);
    fitValue();
}

void StatusCard::fitValue()
{
    m_value->setFont(fittingFont(m_reading.value,
                                 contentsRect().width() - layout()->contentsMargins().left()
                                     - layout()->contentsMargins().right()));
}

void StatusCard::applyTheme()
{
    m_picture->setPixmap(disc(m_reading, devicePixelRatioF()));
    update();
}

} // namespace panel
