#include "factscard.h"

#include <QGridLayout>
#include <QVariant>
#include <brisa/elidedlabel.h>
#include <brisa/thememanager.h>

namespace panel
{

using brisa::TextSize;
using brisa::ThemeManager;
namespace metrics = brisa::metrics;

FactsCard::FactsCard(const QStringList &captions, QWidget *parent)
    : QFrame(parent)
{
    setProperty("role", QStringLiteral("card"));
    auto *const grid = new QGridLayout(this);
    grid->setContentsMargins(metrics::Margin, metrics::Margin, metrics::Margin, metrics::Margin);
    grid->setHorizontalSpacing(metrics::Margin);
    grid->setVerticalSpacing(metrics::Grid / 2);
    for (int column = 0; column < captions.size(); ++column) {
        m_captions += new brisa::ElidedLabel(captions.at(column), this);
        m_values += new brisa::ElidedLabel(QString(), this);
        m_captions.last()->setFont(ThemeManager::font(TextSize::Caption));
        m_values.last()->setFont(ThemeManager::font(TextSize::Body, true));
        grid->addWidget(m_captions.last(), 0, column);
        grid->addWidget(m_values.last(), 1, column);
        grid->setColumnStretch(column, 1);
    }
    connect(ThemeManager::instance(), &ThemeManager::themeChanged, this, &FactsCard::applyTheme);
    applyTheme();
}

void FactsCard::setValues(const QStringList &values)
{
    for (int i = 0; i < m_values.size(); ++i) {
        const QString value = values.value(i);
        m_values.at(i)->setText(value.isEmpty() ? QStringLiteral("\u2013") : value);
    }
}

void FactsCard::applyTheme()
{
    for (brisa::ElidedLabel *const caption : qAsConst(m_captions))
        caption->setColour(ThemeManager::instance()->colours().mutedText);
}

} // namespace panel
