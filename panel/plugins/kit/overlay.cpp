#include "overlay.h"

#include "page.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>
#include <brisa/thememanager.h>
#include <zeplet/plugin/uiservices.h>

namespace kit
{

using brisa::ThemeManager;
namespace metrics = brisa::metrics;

namespace
{

/** What can be seen of the page, in its window. */
QRect seenOf(const QWidget *page)
{
    QRect seen = page->rect();
    for (const QWidget *widget = page; !widget->isWindow(); widget = widget->parentWidget())
        seen = seen.translated(widget->pos()) & widget->parentWidget()->rect();
    return seen;
}

} // namespace

Overlay::Overlay(Page *page, const QString &title)
    : QWidget(page->window())
    , m_page(page)
    , m_card(new QFrame(this))
    , m_content(new QVBoxLayout)
    , m_buttons(new QHBoxLayout)
{
    hide();
    setFocusPolicy(Qt::StrongFocus);
    m_card->setProperty("role", QStringLiteral("card"));
    auto *const heading = new QLabel(title, m_card);
    heading->setTextFormat(Qt::PlainText);
    heading->setWordWrap(true);
    heading->setProperty("role", QStringLiteral("heading"));
    m_content->setSpacing(metrics::Grid);
    m_buttons->setSpacing(metrics::Grid);
    m_buttons->addStretch(1);
    auto *const column = new QVBoxLayout(m_card);
    column->setContentsMargins(3 * metrics::Grid, 3 * metrics::Grid, 3 * metrics::Grid,
                               3 * metrics::Grid);
    column->setSpacing(metrics::Margin);
    column->addWidget(heading);
    column->addLayout(m_content);
    column->addLayout(m_buttons);
    auto *const middle = new QVBoxLayout(this);
    middle->addStretch(1);
    auto *const row = new QHBoxLayout;
    row->addStretch(1);
    row->addWidget(m_card);
    row->addStretch(1);
    middle->addLayout(row);
    middle->addStretch(1);
    connect(page, &QObject::destroyed, this, &QObject::deleteLater);
    connect(ThemeManager::instance(), &ThemeManager::themeChanged, this, &Overlay::applyTheme);
    page->installEventFilter(this);
    parentWidget()->installEventFilter(this);
}

Overlay::~Overlay() = default;

QVBoxLayout *Overlay::content() const
{
    return m_content;
}

QLabel *Overlay::addParagraph(const QString &text)
{
    auto *const label = new QLabel(text, m_card);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    m_content->addWidget(label);
    return label;
}

QPushButton *Overlay::addButton(const QString &text, const QString &objectName, const QString &role)
{
    auto *const button = new QPushButton(text, m_card);
    button->setObjectName(objectName);
    button->setProperty("role", role);
    m_buttons->addWidget(button);
    return button;
}

void Overlay::addCancel(const QString &text)
{
    m_cancelable = true;
    connect(addButton(text, QStringLiteral("cancel")), &QPushButton::clicked, this,
            &Overlay::finish);
}

void Overlay::setCardWidth(int width)
{
    m_cardWidth = width;
}

// The host dims its window when it counts: this comes above that.
void Overlay::open()
{
    if (!m_page)
        return;
    m_page->setOverlay(this);
    m_open = true;
    zeplet::ChangeModelWindowStatus(m_page->pluginName(), true);
    applyTheme();
    place();
    show();
    raise();
    const QList<QWidget *> chain = focusChain();
    (chain.isEmpty() ? this : chain.first())->setFocus();
}

void Overlay::finish()
{
    if (!std::exchange(m_open, false))
        return;
    hide();
    if (m_page)
        zeplet::ChangeModelWindowStatus(m_page->pluginName(), false);
    deleteLater();
}

void Overlay::paintEvent(QPaintEvent *)
{
    QPainter(this).fillRect(rect(), QColor(0, 0, 0, 60));
}

void Overlay::keyPressEvent(QKeyEvent *event)
{
    if (m_cancelable && event->key() == Qt::Key_Escape)
        finish();
}

void Overlay::mousePressEvent(QMouseEvent *event)
{
    event->accept();
}

// The focus stays within the card.
bool Overlay::focusNextPrevChild(bool next)
{
    const QList<QWidget *> chain = focusChain();
    if (chain.isEmpty())
        return true;
    const int step = next ? 1 : chain.size() - 1;
    const int at = qMax(0, chain.indexOf(focusWidget()));
    chain.at((at + step) % chain.size())
        ->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

bool Overlay::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::Move)
        place();
    return QWidget::eventFilter(watched, event);
}

void Overlay::place()
{
    if (!m_page)
        return;
    setGeometry(seenOf(m_page));
    m_card->setFixedWidth(qMin(m_cardWidth, width() - 2 * metrics::Margin));
}

void Overlay::applyTheme()
{
    setStyleSheet(ThemeManager::instance()->styleSheet());
}

// Fields come before the buttons, whichever were made first.
QList<QWidget *> Overlay::focusChain() const
{
    QList<QWidget *> fields;
    QList<QWidget *> buttons;
    for (QWidget *widget = nextInFocusChain(); widget != this;
         widget = widget->nextInFocusChain()) {
        if (isAncestorOf(widget) && widget->isEnabled() && widget->isVisibleTo(this)
            && (widget->focusPolicy() & Qt::TabFocus))
            (m_buttons->indexOf(widget) < 0 ? fields : buttons).append(widget);
    }
    return fields + buttons;
}

} // namespace kit
