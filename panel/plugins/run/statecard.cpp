#include "statecard.h"

#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QVariant>
#include <brisa/elidedlabel.h>
#include <brisa/thememanager.h>
#include <brisa/translated.h>

using brisa::TextSize;
using brisa::ThemeManager;
namespace metrics = brisa::metrics;

namespace
{

constexpr int Strip = metrics::Grid / 2;
constexpr int WidthWithPicture = 25 * metrics::Grid;

brisa::ElidedLabel *makeLine(TextSize size, bool bold, QWidget *parent)
{
    auto *const line = new brisa::ElidedLabel(QString(), parent);
    line->setFont(ThemeManager::font(size, bold));
    return line;
}

/** The pictogram on a disc of its meaning's colour. */
QPixmap disc(brisa::Glyph glyph, kit::Tone tone, qreal ratio)
{
    constexpr int size = metrics::Touch;
    constexpr int icon = metrics::Icon + metrics::Grid;
    const kit::ToneColours colours = kit::toneColours(tone);
    QPixmap pixmap(QSize(size, size) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colours.soft);
    painter.drawEllipse(0, 0, size, size);
    constexpr int at = (size - icon) / 2;
    painter.drawPixmap(at, at, brisa::glyphPixmap(glyph, colours.line, icon, ratio));
    return pixmap;
}

} // namespace

StateCard::StateCard(const kit::Text &caption, const QString &buttonName, QWidget *parent)
    : QFrame(parent)
    , m_picture(new QLabel(this))
    , m_caption(makeLine(TextSize::Body, false, this))
    , m_value(makeLine(TextSize::Heading, true, this))
    , m_hint(makeLine(TextSize::Body, false, this))
{
    setProperty("role", QStringLiteral("card"));
    brisa::translated(m_caption, [this, caption] { m_caption->setText(caption()); });
    auto *const grid = new QGridLayout(this);
    grid->setContentsMargins(metrics::Margin + Strip, metrics::Margin, metrics::Margin,
                             metrics::Margin);
    grid->setHorizontalSpacing(metrics::Margin);
    grid->setVerticalSpacing(metrics::Grid / 2);
    grid->setColumnStretch(1, 1);
    grid->addWidget(m_picture, 0, 0, 2, 1);
    grid->addWidget(m_caption, 0, 1);
    grid->addWidget(m_value, 1, 1);
    grid->addWidget(m_hint, 2, 0, 1, 2);
    grid->setRowMinimumHeight(2, 5 * metrics::Grid);
    grid->setRowStretch(3, 1);
    if (!buttonName.isEmpty()) {
        m_button = new QPushButton(this);
        m_button->setObjectName(buttonName);
        m_button->setStyleSheet(QStringLiteral("padding-left: 4px; padding-right: 4px;"));
        grid->addWidget(m_button, 4, 0, 1, 2);
        connect(m_button, &QPushButton::clicked, this, &StateCard::tapped);
    }
    connect(ThemeManager::instance(), &ThemeManager::themeChanged, this, &StateCard::applyTheme);
    applyTheme();
}

void StateCard::setState(brisa::Glyph glyph, kit::Tone tone, const QString &value,
                         const QString &hint)
{
    m_glyph = glyph;
    m_tone = tone;
    m_value->setText(value);
    m_hint->setText(hint);
    setAccessibleName(m_caption->text() + QStringLiteral(": ") + value);
    applyTheme();
}

void StateCard::setButton(const QString &text, bool enabled)
{
    m_button->setText(text);
    m_button->setEnabled(enabled);
}

// A strip at the left edge in the colour of what the value means.
void StateCard::paintEvent(QPaintEvent *event)
{
    QFrame::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath card;
    card.addRoundedRect(rect(), metrics::Radius, metrics::Radius);
    painter.setClipPath(card);
    const bool neutral = m_tone == kit::Tone::Muted;
    painter.fillRect(0, 0, Strip, height(),
                     neutral ? ThemeManager::instance()->colours().border
                             : kit::toneColours(m_tone).line);
}

// A narrow card needs its width for words.
void StateCard::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    const bool wide = width() >= WidthWithPicture;
    m_picture->setVisible(wide);
    static_cast<QGridLayout *>(layout())->setHorizontalSpacing(wide ? metrics::Margin : 0);
    m_value->setFont(ThemeManager::font(wide ? TextSize::Heading : TextSize::Title, true));
}

void StateCard::applyTheme()
{
    const QColor muted = ThemeManager::instance()->colours().mutedText;
    m_caption->setColour(muted);
    m_hint->setColour(muted);
    m_picture->setPixmap(disc(m_glyph, m_tone, devicePixelRatioF()));
    update();
}
