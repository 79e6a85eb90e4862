#include "noticeline.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QToolButton>
#include <brisa/glyph.h>
#include <brisa/thememanager.h>
#include <brisa/translated.h>

namespace kit
{

using brisa::Glyph;
using brisa::ThemeManager;
namespace metrics = brisa::metrics;

namespace
{

constexpr int Strip = metrics::Grid / 2;

Glyph toneGlyph(Tone tone)
{
    switch (tone) {
    case Tone::Ok:
        return Glyph::Ok;
    case Tone::Warning:
        return Glyph::Warning;
    case Tone::Error:
        return Glyph::Error;
    default:
        return Glyph::Info;
    }
}

} // namespace

NoticeLine::NoticeLine(Kind kind, QWidget *parent)
    : QFrame(parent)
    , m_picture(new QLabel(this))
    , m_text(new QLabel(this))
    , m_close(new QToolButton(this))
{
    m_text->setObjectName(QStringLiteral("notice"));
    m_text->setTextFormat(Qt::PlainText); // names come from people and files
    m_text->setWordWrap(true);
    QSizePolicy policy = m_text->sizePolicy();
    policy.setHorizontalPolicy(QSizePolicy::Ignored); // no sentence widens a page
    m_text->setSizePolicy(policy);
    m_close->setAutoRaise(true);
    m_close->setFixedSize(metrics::Touch, metrics::Touch);
    m_close->setVisible(kind == Closable);
    brisa::translated(m_close, [this] { m_close->setAccessibleName(tr("Close")); });
    setMinimumHeight(metrics::Touch);
    auto *const row = new QHBoxLayout(this);
    row->setContentsMargins(metrics::Margin, 0, 0, 0);
    row->setSpacing(metrics::Margin);
    row->addWidget(m_picture);
    row->addWidget(m_text, 1);
    row->addWidget(m_close);
    connect(m_close, &QToolButton::clicked, this, &QWidget::hide);
    connect(ThemeManager::instance(), &ThemeManager::themeChanged, this, &NoticeLine::applyTheme);
    hide();
}

void NoticeLine::say(Tone tone, const QString &sentence)
{
    m_tone = tone;
    m_text->setText(sentence);
    applyTheme();
    setVisible(!sentence.isEmpty());
}

void NoticeLine::paintEvent(QPaintEvent *)
{
    const ToneColours colours = toneColours(m_tone);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colours.soft);
    painter.drawRoundedRect(rect(), metrics::Radius, metrics::Radius);
    painter.setBrush(colours.line);
    painter.drawRoundedRect(QRect(0, 0, Strip, height()), Strip / 2.0, Strip / 2.0);
}

void NoticeLine::applyTheme()
{
    const ToneColours colours = toneColours(m_tone);
    const qreal ratio = devicePixelRatioF();
    m_picture->setPixmap(brisa::glyphPixmap(toneGlyph(m_tone), colours.line, metrics::Icon, ratio));
    m_close->setIcon(brisa::glyphIcon(Glyph::Close, colours.line, colours.line));
    m_close->setStyleSheet(
        QStringLiteral("QToolButton { background: transparent; border: none; }"));
    update();
}

} // namespace kit
