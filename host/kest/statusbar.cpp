#include "kest/statusbar.h"

#include "brisa/thememanager.h"
#include "kest/bmodule.h"
#include "kest/keyedwidgets_p.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QPointer>

namespace
{

QPointer<kest::StatusBar> &instance()
{
    static QPointer<kest::StatusBar> bar;
    return bar;
}

QWidget *makeStretch(QWidget *parent)
{
    auto *const stretch = new QWidget(parent);
    stretch->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    return stretch;
}

} // namespace

namespace kest
{

StatusBar::StatusBar(QWidget *parent)
    : QWidget(parent)
    , m_items(new KeyedWidgets(this))
    , m_row(new QHBoxLayout(this))
{
    if (!instance())
        instance() = this;
    setFixedHeight(brisa::metrics::Touch + brisa::metrics::Grid);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_row->setContentsMargins(brisa::metrics::Margin, 0, brisa::metrics::Margin, 1);
    m_row->setSpacing(brisa::metrics::Margin);
    addBeforeItem(nullptr, QStringLiteral("tavik.body.statuspage.wgtStrech2"), QString(),
                  makeStretch(this));
    connect(brisa::ThemeManager::instance(), &brisa::ThemeManager::themeChanged, this,
            qOverload<>(&QWidget::update));
}

StatusBar::~StatusBar() = default;

bool StatusBar::addBeforeItem(BModule *module, const QString &key, const QString &beforeKey,
                              QWidget *widget)
{
    if (!m_items->add(module, key, widget))
        return false;
    QWidget *const before = item(beforeKey);
    const int at = before ? m_row->indexOf(before) : -1;
    m_row->insertWidget(at, widget, 0, Qt::Alignment());
    return true;
}

bool StatusBar::removeItem(BModule *module, const QString &key, bool destroy)
{
    return m_items->remove(module, key, destroy);
}

QWidget *StatusBar::item(const QString &key) const
{
    return m_items->widget(key);
}

QSize StatusBar::minimumSizeHint() const
{
    return {0, height()};
}

void StatusBar::paintEvent(QPaintEvent *)
{
    const brisa::ThemeColours &colours = brisa::ThemeManager::instance()->colours();
    QPainter painter(this);
    painter.fillRect(rect(), colours.surface);
    painter.fillRect(0, height() - 1, width(), 1, colours.border);
}

} // namespace kest

kest::StatusBar *instantiatedStatusBar(kest::BModule *)
{
    if (!instance())
        new kest::StatusBar;
    return instance();
}
