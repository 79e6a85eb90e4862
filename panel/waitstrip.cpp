#include "waitstrip.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QPushButton>
#include <brisa/elidedlabel.h>
#include <brisa/glyph.h>
#include <brisa/thememanager.h>
#include <brisa/translated.h>
#include <ostrel/moduleobject.h>

namespace panel
{

using brisa::ThemeManager;
namespace metrics = brisa::metrics;

namespace
{

constexpr int TextLeft = metrics::Margin + metrics::Icon + 12; // as in the log banner

ostrel::ModuleObject *waitingNode()
{
    return m(QStringLiteral("brisa.r.zeplet.waiting"));
}

QPushButton *makeButton(const QString &wish, QWidget *parent)
{
    auto *const button = new QPushButton(parent);
    button->setMinimumHeight(metrics::Touch);
    button->setFocusPolicy(Qt::NoFocus);
    QObject::connect(button, &QPushButton::clicked, button,
                     [wish] { m(QStringLiteral("brisa.r.operator"))->set(nullptr, wish); });
    return button;
}

} // namespace

WaitStrip::WaitStrip(QWidget *parent)
    : QFrame(parent)
    , m_text(new brisa::ElidedLabel(QString(), this))
    , m_stopNow(makeButton(QStringLiteral("stop"), this))
    , m_cancel(makeButton(QStringLiteral("cancel"), this))
{
    m_stopNow->setObjectName(QStringLiteral("stopNow"));
    m_stopNow->setProperty("role", QStringLiteral("danger"));
    m_cancel->setObjectName(QStringLiteral("cancelWaiting"));
    m_text->setFont(ThemeManager::font(brisa::TextSize::Title));
    auto *const row = new QHBoxLayout(this);
    row->setContentsMargins(TextLeft, metrics::Grid, metrics::Margin, metrics::Grid);
    row->setSpacing(metrics::Margin);
    row->addWidget(m_text, 1);
    row->addWidget(m_stopNow);
    row->addWidget(m_cancel);
    connect(waitingNode(), &ostrel::ModuleObject::changed, this, &WaitStrip::follow);
    connect(ThemeManager::instance(), &ThemeManager::themeChanged, this, &WaitStrip::applyTheme);
    applyTheme();
    brisa::translated(this, [this] { follow(); });
}

void WaitStrip::follow()
{
    const QString waiting = waitingNode()->getStr(QString());
    const bool stop = waiting == QLatin1String("stop");
    m_text->setText(stop ? tr("Waiting for a plugin to stop the program")
                         : tr("Waiting for a plugin to start the program"));
    m_stopNow->setText(tr("Stop now"));
    m_stopNow->setVisible(stop);
    m_cancel->setText(stop ? tr("Keep running") : tr("Cancel"));
    setVisible(!waiting.isEmpty());
}

void WaitStrip::applyTheme()
{
    setStyleSheet(ThemeManager::instance()->styleSheet());
    update();
}

void WaitStrip::paintEvent(QPaintEvent *)
{
    const brisa::ThemeColours &colours = ThemeManager::instance()->colours();
    QPainter painter(this);
    painter.fillRect(rect(), colours.accentSoft);
    painter.fillRect(0, height() - 1, width(), 1, colours.border);
    painter.drawPixmap(metrics::Margin, (height() - metrics::Icon) / 2,
                       brisa::glyphPixmap(brisa::Glyph::Cycle, colours.accent, metrics::Icon,
                                          devicePixelRatioF()));
}

} // namespace panel
