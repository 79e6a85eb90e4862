#include "kest/expandsidebar.h"

#include "brisa/elidedlabel.h"
#include "brisa/glyph.h"
#include "brisa/thememanager.h"
#include "brisa/touchscrollarea_p.h"
#include "brisa/translated.h"
#include "kest/keyedwidgets_p.h"

#include <QHBoxLayout>
#include <QMenu>
#include <QPainter>
#include <QPointer>
#include <QScrollBar>
#include <QStackedWidget>
#include <QToolButton>
#include <QVBoxLayout>

namespace
{

constexpr int BarWidth = 40 * brisa::metrics::Grid;

/** As large as the page that it shows asks for, whatever the others ask for. */
class PageStack : public QStackedWidget
{
public:
    using QStackedWidget::QStackedWidget;

    QSize minimumSizeHint() const override
    {
        const QWidget *const page = currentWidget();
        return page ? page->minimumSizeHint().expandedTo(page->minimumSize()) : QSize();
    }
    QSize sizeHint() const override { return minimumSizeHint(); }
};

QPointer<kest::ExpandSideBar> &instance()
{
    static QPointer<kest::ExpandSideBar> bar;
    return bar;
}

QToolButton *makeButton(const QString &name, QWidget *parent)
{
    auto *const button = new QToolButton(parent);
    button->setObjectName(name);
    button->setAutoRaise(true);
    button->setFixedSize(brisa::metrics::Touch, brisa::metrics::Touch);
    button->setIconSize({brisa::metrics::Icon, brisa::metrics::Icon});
    return button;
}

} // namespace

namespace kest
{

ExpandSideBar::ExpandSideBar(QWidget *parent)
    : QWidget(parent)
    , m_pages(new KeyedWidgets(this))
    , m_stack(new PageStack(this))
    , m_title(new brisa::ElidedLabel(QString(), this))
    , m_choose(makeButton(QStringLiteral("choose"), this))
    , m_close(makeButton(QStringLiteral("close"), this))
{
    if (!instance())
        instance() = this;
    setVisible(false);
    setFixedWidth(BarWidth);
    buildLayout();
    applyTheme();
    refreshHeader();
    brisa::translated(this, [this] {
        m_choose->setToolTip(tr("Choose a page"));
        m_close->setToolTip(tr("Close"));
    });
    connect(m_close, &QToolButton::clicked, this, &QWidget::hide);
    connect(m_choose, &QToolButton::clicked, this, &ExpandSideBar::choosePage);
    connect(m_stack, &QStackedWidget::currentChanged, this, &ExpandSideBar::refreshHeader);
    connect(m_stack, &QStackedWidget::widgetRemoved, this, &ExpandSideBar::refreshHeader);
    connect(brisa::ThemeManager::instance(), &brisa::ThemeManager::themeChanged, this,
            &ExpandSideBar::applyTheme);
}

ExpandSideBar::~ExpandSideBar()
{
    // The pages die in ~QWidget, when this is no longer a bar that could follow them.
    m_stack->disconnect(this);
}

void ExpandSideBar::buildLayout()
{
    auto *const header = new QHBoxLayout;
    header->setContentsMargins(brisa::metrics::Margin, 0, 0, 0);
    header->setSpacing(0);
    m_title->setFont(brisa::ThemeManager::font(brisa::TextSize::Title, true));
    header->addWidget(m_title, 1);
    header->addWidget(m_choose);
    header->addWidget(m_close);
    auto *const column = new QVBoxLayout(this);
    column->setContentsMargins(1, 0, 0, 0);
    column->setSpacing(0);
    column->addLayout(header);
    // A page that needs more room than the bar has is scrolled instead of being cut.
    m_scroll = new brisa::TouchScrollArea(brisa::TouchScrollArea::By::Flick, this);
    m_scroll->setWidget(m_stack);
    m_stack->setAutoFillBackground(false);
    column->addWidget(m_scroll, 1);
}

bool ExpandSideBar::addPage(QObject *module, const QString &key, QWidget *page)
{
    if (!m_pages->add(module, key, page))
        return false;
    m_stack->addWidget(page);
    connect(page, &QWidget::windowTitleChanged, this, &ExpandSideBar::refreshHeader);
    refreshHeader();
    return true;
}

bool ExpandSideBar::switchTo(QObject *, const QString &key)
{
    QWidget *const target = page(key);
    if (!target || m_stack->indexOf(target) < 0)
        return false;
    m_stack->setCurrentWidget(target);
    return true;
}

bool ExpandSideBar::removePage(QObject *module, const QString &key, bool destroy)
{
    return m_pages->remove(module, key, destroy);
}

QWidget *ExpandSideBar::page(const QString &key) const
{
    return m_pages->widget(key);
}

QString ExpandSideBar::currentKey() const
{
    return m_pages->keyOf(m_stack->currentWidget());
}

void ExpandSideBar::paintEvent(QPaintEvent *)
{
    const brisa::ThemeColours &colours = brisa::ThemeManager::instance()->colours();
    QPainter painter(this);
    painter.fillRect(rect(), colours.surface);
    painter.fillRect(0, 0, 1, height(), colours.border);
    painter.fillRect(0, m_scroll->y() - 1, width(), 1, colours.border);
}

void ExpandSideBar::applyTheme()
{
    const brisa::ThemeColours &colours = brisa::ThemeManager::instance()->colours();
    m_close->setIcon(brisa::glyphIcon(brisa::Glyph::Close, colours.text, colours.disabledText));
    // The bars alone: a page that wants its own looks must not inherit a style sheet.
    for (QWidget *const bar : {m_scroll->horizontalScrollBar(), m_scroll->verticalScrollBar()})
        bar->setStyleSheet(brisa::ThemeManager::instance()->styleSheet());
    m_choose->setIcon(brisa::glyphIcon(brisa::Glyph::List, colours.text, colours.disabledText));
    update();
}

void ExpandSideBar::refreshHeader()
{
    m_stack->updateGeometry();
    const QWidget *const current = m_stack->currentWidget();
    m_title->setText(current ? titleOf(current) : QString());
    m_choose->setVisible(m_stack->count() > 1);
    if (!current)
        hide();
}

void ExpandSideBar::choosePage()
{
    QMenu *const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setStyleSheet(brisa::ThemeManager::instance()->styleSheet());
    for (int i = 0; i < m_stack->count(); ++i) {
        const QString key = m_pages->keyOf(m_stack->widget(i));
        menu->addAction(titleOf(m_stack->widget(i)), this, [this, key] { switchTo(nullptr, key); });
    }
    menu->popup(m_choose->mapToGlobal(QPoint(0, m_choose->height())));
}

QString ExpandSideBar::titleOf(const QWidget *page) const
{
    if (!page->windowTitle().isEmpty())
        return page->windowTitle();
    return m_pages->keyOf(page).section(QLatin1Char('.'), -1);
}

} // namespace kest

kest::ExpandSideBar *instantiatedRightExpandSideWidget()
{
    return instance();
}
