#include "brisa/modalcounter.h"

#include "brisa/thememanager.h"
#include "brisa/translated.h"
#include "kest/bmodule.h"
#include "ostrel/moduleobject.h"

#include <QEvent>
#include <QPainter>

namespace brisa
{

namespace
{

constexpr int BadgeHeight = 5 * metrics::Grid;

ostrel::ModuleObject *countNode()
{
    return m(mName(QStringLiteral("brisa.msg"), QStringLiteral("_")));
}

} // namespace

ModalCounter::ModalCounter(QWidget *target)
    : QWidget(target)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setVisible(false);
    target->installEventFilter(this);
    connect(countNode(), &ostrel::ModuleObject::changed, this, &ModalCounter::readCount);
    connect(ThemeManager::instance(), &ThemeManager::themeChanged, this,
            qOverload<>(&QWidget::update));
    translated(this, [this] { update(); });
    readCount();
}

ModalCounter::~ModalCounter() = default;

int ModalCounter::count() const
{
    return m_count;
}

void ModalCounter::readCount()
{
    const int count = qMax(0, countNode()->getInt(0));
    if (count == m_count)
        return;
    m_count = count;
    setGeometry(parentWidget()->rect());
    setVisible(count > 0);
    raise();
    update();
    Q_EMIT countChanged(count);
}

void ModalCounter::paintEvent(QPaintEvent *)
{
    const ThemeColours &colours = ThemeManager::instance()->colours();
    const QString text = tr("Open windows: %1").arg(m_count);
    QPainter painter(this);
    painter.fillRect(rect(), QColor(0, 0, 0, 90));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(ThemeManager::font(TextSize::Caption, true));
    const int badgeWidth = painter.fontMetrics().horizontalAdvance(text) + 2 * metrics::Margin;
    const QRect badge((width() - badgeWidth) / 2, metrics::Margin, badgeWidth, BadgeHeight);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colours.surface);
    painter.drawRoundedRect(badge, BadgeHeight / 2.0, BadgeHeight / 2.0);
    painter.setPen(colours.text);
    painter.drawText(badge, Qt::AlignCenter, text);
}

bool ModalCounter::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == parentWidget() && event->type() == QEvent::Resize)
        setGeometry(parentWidget()->rect());
    return QWidget::eventFilter(watched, event);
}

} // namespace brisa
