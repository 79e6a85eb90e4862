#include "kest/centerwidget.h"

#include "kest/keyedwidgets_p.h"

#include <QPointer>

namespace
{

QPointer<kest::CenterWidget> &instance()
{
    static QPointer<kest::CenterWidget> widget;
    return widget;
}

} // namespace

namespace kest
{

CenterWidget::CenterWidget(QWidget *parent)
    : QStackedWidget(parent)
    , m_pages(new KeyedWidgets(this))
{
    if (!instance())
        instance() = this;
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    connect(this, &QStackedWidget::currentChanged, this, &CenterWidget::announceCurrent);
    connect(this, &QStackedWidget::widgetRemoved, this, &CenterWidget::announceCurrent);
}

CenterWidget::~CenterWidget()
{
    // The pages die in ~QWidget, when this is no longer a CenterWidget that could follow them.
    disconnect(this, nullptr, this, nullptr);
}

bool CenterWidget::addPage(QObject *module, const QString &key, QWidget *page)
{
    if (!m_pages->add(module, key, page)) {
        // A page that was made as a child of the centre area would float above the others.
        if (page && page->parentWidget() == this && indexOf(page) < 0)
            page->hide();
        return false;
    }
    addWidget(page);
    return true;
}

bool CenterWidget::removeItem(QObject *module, const QString &key, bool destroy)
{
    return m_pages->remove(module, key, destroy);
}

bool CenterWidget::switchTo(QObject *, const QString &key)
{
    QWidget *const target = page(key);
    if (!target || indexOf(target) < 0)
        return false;
    setCurrentWidget(target);
    return true;
}

QWidget *CenterWidget::page(const QString &key) const
{
    return m_pages->widget(key);
}

QString CenterWidget::currentKey() const
{
    return m_pages->keyOf(currentWidget());
}

QObject *CenterWidget::owner(const QString &key) const
{
    return m_pages->owner(key);
}

QSize CenterWidget::minimumSizeHint() const
{
    return {};
}

void CenterWidget::announceCurrent()
{
    const QString key = currentKey();
    if (key == m_announced)
        return;
    m_announced = key;
    Q_EMIT currentKeyChanged(key);
}

} // namespace kest

kest::CenterWidget *instantiatedCenterWidget()
{
    if (!instance())
        new kest::CenterWidget;
    return instance();
}
