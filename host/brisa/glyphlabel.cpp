#include "brisa/glyphlabel.h"

#include "brisa/thememanager.h"

#include <QEvent>
#include <QPainter>

namespace brisa
{

GlyphLabel::GlyphLabel(Glyph glyph, const QString &text, Tone tone, QWidget *parent)
    : QWidget(parent)
    , m_glyph(glyph)
    , m_text(text)
    , m_tone(tone)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    connect(ThemeManager::instance(), &ThemeManager::themeChanged, this,
            qOverload<>(&QWidget::update));
}

QString GlyphLabel::text() const
{
    return m_text;
}

void GlyphLabel::setText(const QString &text)
{
    if (text == m_text)
        return;
    m_text = text;
    updateGeometry();
    update();
}

void GlyphLabel::setGlyph(Glyph glyph)
{
    m_glyph = glyph;
    update();
}

void GlyphLabel::setTone(Tone tone)
{
    m_tone = tone;
    update();
}

QSize GlyphLabel::sizeHint() const
{
    const int text
        = m_text.isEmpty() ? 0 : metrics::Grid + fontMetrics().horizontalAdvance(m_text) + 1;
    return {metrics::Icon + text, qMax(metrics::Icon, fontMetrics().height())};
}

QSize GlyphLabel::minimumSizeHint() const
{
    return sizeHint();
}

void GlyphLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.drawPixmap(
        0, (height() - metrics::Icon) / 2,
        glyphPixmap(m_glyph, toneColours(m_tone).line, metrics::Icon, devicePixelRatioF()));
    painter.setPen(toneColours(m_tone == Tone::Muted ? Tone::Muted : Tone::Plain).line);
    painter.drawText(rect().adjusted(metrics::Icon + metrics::Grid, 0, 0, 0),
                     Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, m_text);
}

void GlyphLabel::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        updateGeometry();
}

} // namespace brisa
