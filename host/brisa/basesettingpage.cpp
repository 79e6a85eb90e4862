#include "brisa/basesettingpage.h"

#include "brisa/elidedlabel.h"
#include "brisa/thememanager.h"
#include "brisa/touchscrollarea_p.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <QWidget>
#include <utility>

namespace brisa
{

namespace
{

constexpr int DefaultAutoSaveInterval = 10000;

QWidget *makeTitleBar(const QString &title, QWidget *page)
{
    auto *const bar = new QWidget(page);
    bar->setFixedHeight(metrics::Touch);
    auto *const label = new ElidedLabel(title, bar);
    label->setFont(ThemeManager::font(TextSize::Title, true));
    auto *const row = new QHBoxLayout(bar);
    row->setContentsMargins(metrics::Margin, 0, metrics::Margin, 0);
    row->addWidget(label);
    return bar;
}

} // namespace

BaseSettingPage::BaseSettingPage(const QString &name, const QString &pluginName, QWidget *parent,
                                 QObject *module)
    : QObject(module)
    , m_page(new QWidget(parent))
    , m_title(makeTitleBar(pluginName.isEmpty() ? name : pluginName, m_page))
    , m_content(new QWidget(m_page))
{
    m_page->setObjectName(name + QLatin1Char('.') + pluginName);
    auto *const column = new QVBoxLayout(m_page);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_title);
    column->addWidget(m_content, 1);
    m_page->installEventFilter(this);
}

BaseSettingPage::~BaseSettingPage()
{
    delete m_page.data();
}

QWidget *BaseSettingPage::wgt()
{
    return m_page;
}

int BaseSettingPage::autoSaveInterval() const
{
    return DefaultAutoSaveInterval;
}

bool BaseSettingPage::loadFromMobj()
{
    return true;
}

void BaseSettingPage::loadFromRC() { }

void BaseSettingPage::saveToRC() { }

void BaseSettingPage::saveToMobj() { }

QWidget *BaseSettingPage::titleWidget() const
{
    return m_title;
}

QWidget *BaseSettingPage::contentWidget() const
{
    return m_content;
}

void BaseSettingPage::startRender()
{
    m_renders = true;
    if (m_page && m_page->isVisible())
        applyStyleSheet();
}

// Most pages stay hidden for most of a session: what makes a page dear waits until it is shown.
bool BaseSettingPage::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_page && event->type() == QEvent::Show) {
        makeScrollable();
        if (m_renders)
            applyStyleSheet();
    }
    return QObject::eventFilter(watched, event);
}

/** A content that needs more room than the centre area has is scrolled instead of being cut. */
void BaseSettingPage::makeScrollable()
{
    if (!m_content || std::exchange(m_scrollable, true))
        return;
    auto *const scroll = new TouchScrollArea(TouchScrollArea::By::Flick, m_page);
    delete m_page->layout()->replaceWidget(m_content, scroll);
    scroll->setContent(m_content);
    scroll->show();
}

void BaseSettingPage::applyStyleSheet()
{
    const ThemeManager *const theme = ThemeManager::instance();
    if (m_renderedRevision == theme->revision())
        return;
    m_renderedRevision = theme->revision();
    m_page->setStyleSheet(theme->styleSheet());
}

} // namespace brisa
