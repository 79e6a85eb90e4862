#include "factscard.h"

#include <QGridLayout>
#include <QVariant>
#include <brisa/elidedlabel.h>
#include <brisa/thememanager.h>
#include <brisa/translated.h>

namespace panel
{

using brisa::TextSize;
using brisa::ThemeManager;
namespace metrics = brisa::metrics;

namespace
{
constexpr int SmallestColumn = 20 * metrics::Grid;
}

FactsCard::FactsCard(const std::function<QStringList()> &captions, QWidget *parent)
    : QFrame(parent)
{
    setProperty("role", QStringLiteral("card"));
    auto *const grid = new QGridLayout(this);
    grid->setContentsMargins(metrics::Margin, metrics::Margin, metrics::Margin, metrics::Margin);
    grid->setHorizontalSpacing(metrics::Margin);
    grid->setVerticalSpacing(metrics::Grid / 2);
    m_grid = grid;
    const int columns = captions().size();
    for (int column = 0; column < columns; ++column) {
        m_captions += new brisa::ElidedLabel(QString(), this);
        m_values += new brisa::ElidedLabel(QString(), this);
        m_captions.last()->setFont(ThemeManager::font(TextSize::Caption));
        m_values.last()->setFont(ThemeManager::font(TextSize::Body, true));
    }
    place(columns);
    brisa::translated(this, [this, captions] {
        const QStringList texts = captions();
        for (int i = 0; i < texts.size(); ++i)
            m_captions.at(i)->setText(texts.at(i));
    });
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

void FactsCard::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    const int all = m_values.size();
    place(width() / all < SmallestColumn ? (all + 1) / 2 : all);
}

void FactsCard::place(int columns)
{
    if (columns == m_columns)
        return;
    m_columns = columns;
    for (int i = 0; i < m_values.size(); ++i) {
        m_grid->addWidget(m_captions.at(i), i / columns * 2, i % columns);
        m_grid->addWidget(m_values.at(i), i / columns * 2 + 1, i % columns);
        m_grid->setColumnStretch(i, i < columns ? 1 : 0);
    }
}

void FactsCard::applyTheme()
{
    for (brisa::ElidedLabel *const caption : qAsConst(m_captions))
        caption->setColour(ThemeManager::instance()->colours().mutedText);
}

} // namespace panel
