#include "brisa/elidedlabel.h"

#include "brisa/plaintip.h"

#include <QEvent>
#include <QPainter>

namespace brisa
{

namespace
{
constexpr int SmallestWidth = 40;
}

ElidedLabel::ElidedLabel(const QString &text, QWidget *parent)
    : QFrame(parent)
    , m_text(text)
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
}

QString ElidedLabel::text() const
{
    return m_text;
}

void ElidedLabel::setText(const QString &text)
{
    if (text == m_text)
        return;
    m_text = text;
    updateGeometry();
    update();
}

void ElidedLabel::setColour(const QColor &colour)
{
    m_colour = colour;
    update();
}

bool ElidedLabel::isElided() const
{
    return fontMetrics().horizontalAdvance(m_text) > contentsRect().width();
}

QSize ElidedLabel::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(m_text) + 1, fontMetrics().height()};
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {qMin(SmallestWidth, sizeHint().width()), fontMetrics().height()};
}

// Measuring text is dear, and a tool tip is seldom asked for.
bool ElidedLabel::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip)
        setToolTip(isElided() ? plainTip(m_text) : QString());
    return QFrame::event(event);
}

void ElidedLabel::paintEvent(QPaintEvent *event)
{
    QFrame::paintEvent(event);
    QPainter painter(this);
    painter.setPen(m_colour.isValid() ? m_colour : palette().color(QPalette::WindowText));
    const QRect box = contentsRect();
    painter.drawText(box, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     fontMetrics().elidedText(m_text, Qt::ElideRight, box.width()));
}

void ElidedLabel::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        updateGeometry();
}

} // namespace brisa
