#include "kivra/physicalbuttonbar.h"

#include "brisa/glyph.h"
#include "brisa/languagemanager.h"
#include "brisa/plaintip.h"
#include "brisa/thememanager.h"
#include "brisa/touchscrollarea_p.h"
#include "kest/bmodule.h"
#include "kest/centerwidget.h"
#include "kivra/navigationtree_p.h"
#include "kivra/physicalbuttonregistry_p.h"
#include "kivra/physicalkey_p.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QMenu>
#include <QPainter>
#include <QToolButton>

namespace qo
{
namespace kivra
{

namespace metrics = brisa::metrics;
using brisa::ThemeManager;

namespace
{
constexpr int SelectorTextWidth = 11 * metrics::Grid;
constexpr int KeysWithoutScrolling = 14; // of the least width, on a panel of 1280 pixels
constexpr int ScrollBarHeight = 2 * metrics::Grid;

// A page of keys that bears its module's own name is known to the operator by the title under which
// the module stands in the navigation.
QString titleOf(const KeyPage &page)
{
    const auto *const module = qobject_cast<const kest::BModule *>(page.module);
    if (!module || module->mobjKey().section(QLatin1Char('.'), 2) != page.name)
        return inPanelLanguage(page.name);
    const QString title = NavigationTree::instance().titleOf(page.module);
    return title.isEmpty() ? inPanelLanguage(page.name) : title;
}
} // namespace

PhysicalButtonBar::PhysicalButtonBar(Qt::Orientation orientation, QWidget *parent)
    : QWidget(parent)
    , m_orientation(orientation)
    , m_selector(new QToolButton(this))
    , m_scroll(new brisa::TouchScrollArea(brisa::TouchScrollArea::By::Bars, this))
    , m_keys(new QGridLayout(m_scroll->widget()))
{
    buildLayout();
    connect(m_selector, &QToolButton::clicked, this, &PhysicalButtonBar::choosePage);
    connect(&PhysicalButtonRegistry::instance(), &PhysicalButtonRegistry::changed, this,
            &PhysicalButtonBar::scheduleRefresh);
    connect(ThemeManager::instance(), &ThemeManager::themeChanged, this,
            &PhysicalButtonBar::scheduleRefresh);
    connect(brisa::LanguageManager::instance(), &brisa::LanguageManager::languageChanged, this,
            &PhysicalButtonBar::scheduleRefresh);
    connect(instantiatedCenterWidget(), &kest::CenterWidget::currentKeyChanged, this,
            &PhysicalButtonBar::followCentre);
    setVisible(false);
    scheduleRefresh();
}

PhysicalButtonBar::~PhysicalButtonBar() = default;

void PhysicalButtonBar::buildLayout()
{
    const bool horizontal = m_orientation == Qt::Horizontal;
    auto *const box
        = new QBoxLayout(horizontal ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom, this);
    box->setContentsMargins(metrics::Grid, metrics::Grid, metrics::Grid, metrics::Grid);
    box->setSpacing(metrics::Grid);
    box->addWidget(m_selector, 0, horizontal ? Qt::AlignTop : Qt::Alignment());
    box->addWidget(m_scroll, 1);
    buildKeyArea();
    m_selector->setObjectName(QStringLiteral("keyPageSelector"));
    m_selector->setProperty("role", QStringLiteral("caption"));
    m_selector->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_selector->setFixedHeight(metrics::Touch);
    m_selector->setSizePolicy(horizontal ? QSizePolicy::Fixed : QSizePolicy::Expanding,
                              QSizePolicy::Fixed);
    m_selector->setFont(ThemeManager::font(brisa::TextSize::Body, true));
    m_selector->setIconSize({metrics::Icon, metrics::Icon});
    if (!horizontal)
        setFixedWidth(26 * metrics::Grid);
}

// More keys than there is room for must not push the panel beyond its screen.
void PhysicalButtonBar::buildKeyArea()
{
    m_keys->setContentsMargins(0, 0, 0, 0);
    m_keys->setSpacing(metrics::Grid);
    m_keys->setAlignment(Qt::AlignTop);
    if (m_orientation == Qt::Horizontal)
        m_scroll->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    else
        m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

QString PhysicalButtonBar::currentPage() const
{
    return m_page ? m_page->name : QString();
}

void PhysicalButtonBar::paintEvent(QPaintEvent *)
{
    const brisa::ThemeColours &colours = ThemeManager::instance()->colours();
    QPainter painter(this);
    painter.fillRect(rect(), colours.window);
    if (m_orientation == Qt::Horizontal)
        painter.fillRect(0, 0, width(), 1, colours.border);
    else
        painter.fillRect(0, 0, 1, height(), colours.border);
}

// A centre page without keys of its own leaves the keys as they are.
void PhysicalButtonBar::followCentre()
{
    const kest::CenterWidget *const centre = instantiatedCenterWidget();
    const QString key = centre->currentKey();
    const KeyPagePtr page = PhysicalButtonRegistry::instance().pageFor(key, centre->owner(key));
    if (page && page != m_page)
        showPage(page);
}

// A page that was replaced is followed by its successor, one that has gone by the first.
void PhysicalButtonBar::followRegistry()
{
    m_scheduled = false;
    const QList<KeyPagePtr> &pages = PhysicalButtonRegistry::instance().pages();
    KeyPagePtr next = pages.value(0);
    for (const KeyPagePtr &page : pages) {
        if (m_page && page->module == m_page->module && page->name == m_page->name)
            next = page;
    }
    const bool first = !m_page;
    showPage(next);
    if (first)
        followCentre();
}

// Not at once: the registry may have been called by one of the keys.
void PhysicalButtonBar::scheduleRefresh()
{
    if (m_scheduled)
        return;
    m_scheduled = true;
    QMetaObject::invokeMethod(this, &PhysicalButtonBar::followRegistry, Qt::QueuedConnection);
}

// Held keys are released last: their callbacks may lead back here.
void PhysicalButtonBar::showPage(const KeyPagePtr &page)
{
    const QList<PhysicalKey *> earlier = takeKeys();
    m_page = page;
    setVisible(page != nullptr);
    if (page) {
        refreshSelector();
        addKeys();
        fitHeight();
    }
    for (PhysicalKey *key : earlier) {
        key->hide();
        key->deleteLater();
    }
}

void PhysicalButtonBar::refreshSelector()
{
    const brisa::ThemeColours &colours = ThemeManager::instance()->colours();
    m_scroll->setStyleSheet(ThemeManager::instance()->styleSheet());
    m_selector->setStyleSheet(ThemeManager::instance()->styleSheet()
                              + QStringLiteral("QToolButton { min-width: %1px; }")
                                    .arg(metrics::Icon + SelectorTextWidth));
    // With a single page there is nothing to choose: the selector is its heading then.
    const bool choice = PhysicalButtonRegistry::instance().pages().size() > 1;
    m_selector->setIcon(brisa::glyphIcon(choice ? brisa::Glyph::Down : brisa::Glyph::Key,
                                         colours.text, colours.mutedText));
    const QString title = titleOf(*m_page);
    m_selector->setText(
        QFontMetrics(m_selector->font()).elidedText(title, Qt::ElideRight, SelectorTextWidth));
    m_selector->setToolTip(brisa::plainTip(title));
    m_selector->setEnabled(choice);
}

void PhysicalButtonBar::addKeys()
{
    const bool horizontal = m_orientation == Qt::Horizontal;
    for (int row = 0; row < 2; ++row) {
        for (int column = 0; column < m_page->rows[row].size(); ++column) {
            auto *const key = new PhysicalKey(m_page, row, column, m_scroll->widget());
            m_keys->addWidget(key, horizontal ? row : column, horizontal ? column : row);
        }
    }
}

void PhysicalButtonBar::fitHeight()
{
    if (m_orientation == Qt::Vertical)
        return;
    const int rows = m_page->rows[1].isEmpty() ? 1 : 2;
    const int longest = qMax(m_page->rows[0].size(), m_page->rows[1].size());
    const int bar = longest > KeysWithoutScrolling ? ScrollBarHeight : 0;
    m_scroll->setFixedHeight(rows * metrics::Touch + (rows - 1) * metrics::Grid + bar);
}

QList<PhysicalKey *> PhysicalButtonBar::takeKeys()
{
    QList<PhysicalKey *> keys;
    while (QLayoutItem *const item = m_keys->takeAt(0)) {
        keys.append(static_cast<PhysicalKey *>(item->widget()));
        delete item;
    }
    return keys;
}

void PhysicalButtonBar::choosePage()
{
    auto *const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setStyleSheet(ThemeManager::instance()->styleSheet());
    for (const KeyPagePtr &page : PhysicalButtonRegistry::instance().pages()) {
        const QWeakPointer<KeyPage> chosen = page;
        menu->addAction(titleOf(*page).replace(QLatin1Char('&'), QLatin1String("&&")), this,
                        [this, chosen] {
                            if (const KeyPagePtr still = chosen.toStrongRef())
                                showPage(still);
                        });
    }
    menu->popup(m_selector->mapToGlobal(QPoint(0, m_selector->height())));
}

} // namespace kivra
} // namespace qo
