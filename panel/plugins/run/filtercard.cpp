#include "filtercard.h"

#include "kit/marks.h"

#include <QPainter>
#include <QVBoxLayout>
#include <QVariant>
#include <brisa/elidedlabel.h>
#include <brisa/thememanager.h>
#include <brisa/translated.h>

using brisa::ThemeManager;
namespace metrics = brisa::metrics;

FilterCard::FilterCard(const kit::Text &title, QWidget *parent)
    : QFrame(parent)
    , m_title(new brisa::ElidedLabel(QString(), this))
    , m_meaning(new brisa::ElidedLabel(QString(), this))
{
    setProperty("role", QStringLiteral("card"));
    brisa::translated(m_title, [this, title] { m_title->setText(title()); });
    m_title->setFont(ThemeManager::font(brisa::TextSize::Body, true));
    auto *const column = new QVBoxLayout(this);
    column->setContentsMargins(2 * metrics::Margin + kit::LampSize, metrics::Margin,
                               metrics::Margin, metrics::Margin);
    column->setSpacing(metrics::Grid / 2);
    column->addWidget(m_title);
    column->addWidget(m_meaning);
    connect(ThemeManager::instance(), &ThemeManager::themeChanged, this, &FilterCard::applyTheme);
    applyTheme();
}

void FilterCard::setState(bool on, const QString &meaning)
{
    m_on = on;
    m_meaning->setText(meaning);
    setAccessibleName(m_title->text() + QStringLiteral(": ") + meaning);
    update();
}

void FilterCard::paintEvent(QPaintEvent *event)
{
    QFrame::paintEvent(event);
    QPainter painter(this);
    kit::drawLamp(&painter, QRect(metrics::Margin, 0, kit::LampSize, height()),
                  m_on ? kit::Lamp::On : kit::Lamp::Off);
}

void FilterCard::applyTheme()
{
    m_meaning->setColour(ThemeManager::instance()->colours().mutedText);
    update();
}
