#include "kest/statusbar.h"

#include "brisa/thememanager.h"
#include "brisa/touchscrollarea_p.h"
#include "kest/bmodule.h"
#include "kest/keyedwidgets_p.h"

#include <QEvent>
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

const QString &stretchKey()
{
    static const QString key = QStringLiteral("tavik.body.statuspage.wgtStrech2");
    return key;
}

/** Modules' items side by side. What does not fit is reached by a flick, and never pushes the
 *  host's own items off the screen. */
class ItemStrip : public brisa::TouchScrollArea
{
public:
    explicit ItemStrip(QWidget *parent)
        : TouchScrollArea(By::Flick, parent)
    {
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
        auto *const row = new QHBoxLayout(widget());
        row->setContentsMargins(0, 0, 0, 0);
        row->setSpacing(brisa::metrics::Margin);
        widget()->installEventFilter(this);
    }

    QHBoxLayout *row() const { return static_cast<QHBoxLayout *>(widget()->layout()); }
    QSize sizeHint() const override { return row()->sizeHint(); }
    QSize minimumSizeHint() const override { return {0, 0}; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched == widget() && event->type() == QEvent::LayoutRequest)
            updateGeometry();
        return TouchScrollArea::eventFilter(watched, event);
    }
};

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
    , m_strip(new ItemStrip(this))
{
    if (!instance())
        instance() = this;
    setFixedHeight(brisa::metrics::Touch + brisa::metrics::Grid);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_row->setContentsMargins(brisa::metrics::Margin, 0, brisa::metrics::Margin, 1);
    m_row->setSpacing(brisa::metrics::Margin);
    m_row->addWidget(m_strip);
    addBeforeItem(nullptr, stretchKey(), QString(), makeStretch(this));
    connect(brisa::ThemeManager::instance(), &brisa::ThemeManager::themeChanged, this,
            qOverload<>(&QWidget::update));
}

StatusBar::~StatusBar() = default;

bool StatusBar::addBeforeItem(BModule *module, const QString &key, const QString &beforeKey,
                              QWidget *widget)
{
    if (!m_items->add(module, key, widget))
        return false;
    QHBoxLayout *const modulesRow = static_cast<ItemStrip *>(m_strip)->row();
    QWidget *const before = item(beforeKey);
    const bool inFront = before && beforeKey == stretchKey();
    if (before && modulesRow->indexOf(before) >= 0)
        modulesRow->insertWidget(modulesRow->indexOf(before), widget);
    else if (inFront && module)
        modulesRow->addWidget(widget);
    else
        m_row->insertWidget(before ? m_row->indexOf(inFront ? m_strip : before) : -1, widget);
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
