#include "kivra/navigationbar.h"

#include "brisa/elidedlabel.h"
#include "brisa/thememanager.h"
#include "brisa/touchscrollarea_p.h"
#include "kest/centerwidget.h"
#include "kivra/navigationitem_p.h"
#include "kivra/navigationtree_p.h"

#include <QPainter>
#include <QScrollBar>
#include <QVBoxLayout>

namespace qo
{
namespace kivra
{

namespace metrics = brisa::metrics;

namespace
{

constexpr int BarWidth = 25 * metrics::Grid;

} // namespace

NavigationBar::NavigationBar(QWidget *parent)
    : QWidget(parent)
    , m_scroll(new brisa::TouchScrollArea(brisa::TouchScrollArea::By::Flick, this))
    , m_column(new QVBoxLayout(m_scroll->widget()))
{
    m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_column->setContentsMargins(metrics::Grid, metrics::Grid, metrics::Grid, metrics::Grid);
    m_column->setSpacing(metrics::Grid / 2);
    m_column->setAlignment(Qt::AlignTop);
    auto *const frame = new QVBoxLayout(this);
    frame->setContentsMargins(0, 0, 1, 0);
    frame->addWidget(m_scroll);
    setFixedWidth(BarWidth);
    connect(&NavigationTree::instance(), &NavigationTree::changed, this, &NavigationBar::rebuild);
    connect(brisa::ThemeManager::instance(), &brisa::ThemeManager::themeChanged, this,
            &NavigationBar::followTheme);
    followTheme();
}

NavigationBar::~NavigationBar() = default;

void NavigationBar::paintEvent(QPaintEvent *)
{
    const brisa::ThemeColours &colours = brisa::ThemeManager::instance()->colours();
    QPainter painter(this);
    painter.fillRect(rect(), colours.surface);
    painter.fillRect(width() - 1, 0, 1, height(), colours.border);
}

void NavigationBar::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    followCentre();
}

void NavigationBar::followCentre()
{
    connect(instantiatedCenterWidget(), &kest::CenterWidget::currentKeyChanged, this,
            &NavigationBar::markCurrent, Qt::UniqueConnection);
    markCurrent();
}

// The entries draw themselves: a sheet for all of them would only make each dearer.
void NavigationBar::followTheme()
{
    m_scroll->verticalScrollBar()->setStyleSheet(brisa::ThemeManager::instance()->styleSheet());
    rebuild();
}

// The column is shown as a whole: each entry shown by itself would lay out all of them again.
void NavigationBar::rebuild()
{
    m_scroll->widget()->hide();
    clear();
    const auto groups = NavigationTree::instance().groups();
    for (const NavigationGroup &group : groups) {
        if (group.entries.isEmpty())
            continue;
        if (!group.title.isEmpty())
            addTitle(group.title);
        for (const NavigationEntry &entry : group.entries) {
            auto *const item = new NavigationItem(entry, m_scroll->widget());
            connect(item, &NavigationItem::clicked, this, [this, nav = entry.nav] { open(nav); });
            m_column->addWidget(item);
        }
    }
    m_scroll->widget()->show();
    markCurrent();
    update();
}

// Items may be in their own click handler.
void NavigationBar::clear()
{
    while (QLayoutItem *const item = m_column->takeAt(0)) {
        item->widget()->hide();
        item->widget()->deleteLater();
        delete item;
    }
}

void NavigationBar::addTitle(const QString &title)
{
    auto *const label = new brisa::ElidedLabel(title, m_scroll->widget());
    label->setFont(brisa::ThemeManager::font(brisa::TextSize::Caption, true));
    label->setColour(brisa::ThemeManager::instance()->colours().mutedText);
    label->setContentsMargins(metrics::Margin, 0, 0, 0);
    label->setFixedHeight(4 * metrics::Grid);
    m_column->addWidget(label);
}

void NavigationBar::open(const QString &nav)
{
    followCentre();
    instantiatedCenterWidget()->switchTo(this, nav);
    markCurrent();
}

void NavigationBar::markCurrent()
{
    const QString current = instantiatedCenterWidget()->currentKey();
    for (int i = 0; i < m_column->count(); ++i) {
        if (auto *const item = qobject_cast<NavigationItem *>(m_column->itemAt(i)->widget()))
            item->setChecked(!current.isEmpty() && item->nav() == current);
    }
}

} // namespace kivra
} // namespace qo
