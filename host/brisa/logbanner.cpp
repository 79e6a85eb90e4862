#include "brisa/logbanner.h"

#include "brisa/elidedlabel.h"
#include "brisa/glyphlabel.h"
#include "brisa/loghistory_p.h"
#include "brisa/managerhelper.h"
#include "brisa/thememanager.h"
#include "brisa/translated.h"
#include "kest/bmodule.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QListView>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace brisa
{

namespace
{

constexpr int HistoryHeight = 45 * metrics::Grid;
constexpr int IconLeft = metrics::Margin;
constexpr int TextLeft = IconLeft + metrics::Icon + 12;

// A module is known to the operator by the name it was registered under, the end of its key.
QString sourceOf(QObject *sender)
{
    const auto *const module = qobject_cast<kest::BModule *>(sender);
    if (module && !module->mobjKey().isEmpty())
        return module->mobjKey().section(QLatin1Char('.'), 2);
    return sender ? sender->objectName() : QString();
}

QString rowText(LogMessage message)
{
    message.text = message.text.simplified();
    return messageLine(message);
}

GlyphLabel *makeCount(const QString &level, Tone tone, QWidget *parent)
{
    auto *const label = new GlyphLabel(LogBanner::levelGlyph(level), QString(), tone, parent);
    label->setFont(ThemeManager::font(TextSize::Body, true));
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    return label;
}

QListView *makeList(QAbstractItemModel *model, QWidget *parent)
{
    auto *const list = new QListView(parent);
    list->setModel(model);
    list->setWordWrap(true);
    list->setFrameShape(QFrame::NoFrame);
    list->setProperty("role", QStringLiteral("plain"));
    list->setSelectionMode(QAbstractItemView::NoSelection);
    list->setFocusPolicy(Qt::NoFocus);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    list->setResizeMode(QListView::Adjust);
    list->setIconSize({metrics::Icon, metrics::Icon});
    return list;
}

} // namespace

LogBanner::LogBanner(QWidget *parent)
    : QWidget(parent)
    , m_history(new LogHistory(this))
    , m_text(new ElidedLabel(QString(), this))
    , m_warnings(makeCount(QStringLiteral("warning"), Tone::Warning, this))
    , m_errors(makeCount(QStringLiteral("error"), Tone::Error, this))
    , m_toggle(new QToolButton(this))
{
    setFixedHeight(metrics::Touch);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    buildRow();
    translated(this, [this] { applyTheme(); });
    connect(m_toggle, &QToolButton::clicked, this,
            [this] { setHistoryVisible(!isHistoryVisible()); });
    connect(ManagerHelper::instance(), &ManagerHelper::logThrown, this, &LogBanner::addMessage);
    connect(ThemeManager::instance(), &ThemeManager::themeChanged, this, &LogBanner::applyTheme);
}

LogBanner::~LogBanner()
{
    delete m_panel;
}

void LogBanner::buildRow()
{
    m_text->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_toggle->setAutoRaise(true);
    m_toggle->setObjectName(QStringLiteral("historyToggle"));
    m_toggle->setFixedSize(metrics::Touch, metrics::Touch);
    m_toggle->setIconSize({metrics::Icon, metrics::Icon});
    auto *const row = new QHBoxLayout(this);
    row->setContentsMargins(TextLeft, 0, 0, 0);
    row->setSpacing(metrics::Margin);
    row->addWidget(m_text, 1);
    row->addWidget(m_warnings);
    row->addWidget(m_errors);
    row->addWidget(m_toggle);
}

void LogBanner::buildHistory()
{
    m_panel = new QFrame(window());
    m_panel->setObjectName(QStringLiteral("logHistory"));
    m_panel->setProperty("role", QStringLiteral("card"));
    auto *const title = new ElidedLabel(QString(), m_panel);
    title->setFont(ThemeManager::font(TextSize::Title, true));
    auto *const clearButton = new QPushButton(m_panel);
    translated(m_panel, [=] {
        title->setText(tr("Messages"));
        clearButton->setText(tr("Clear"));
    });
    connect(clearButton, &QPushButton::clicked, this, &LogBanner::clear);
    auto *const header = new QHBoxLayout;
    header->addWidget(title, 1);
    header->addWidget(clearButton);
    auto *const column = new QVBoxLayout(m_panel);
    column->setContentsMargins(metrics::Margin, metrics::Grid, metrics::Grid, metrics::Grid);
    column->addLayout(header);
    column->addWidget(makeList(m_history, m_panel), 1);
    window()->installEventFilter(this);
    applyTheme();
}

void LogBanner::addMessage(QObject *sender, const QString &level, const QString &message)
{
    m_history->add(sourceOf(sender), level, message);
    refresh();
}

void LogBanner::clear()
{
    m_history->clear();
    refresh();
}

QString LogBanner::message() const
{
    return m_history->messages().value(0).text;
}

QString LogBanner::level() const
{
    return m_history->messages().value(0).level;
}

int LogBanner::count(const QString &level) const
{
    return m_history->count(level);
}

bool LogBanner::isHistoryVisible() const
{
    return m_panel && m_panel->isVisible();
}

void LogBanner::setHistoryVisible(bool visible)
{
    if (visible == isHistoryVisible())
        return;
    if (!m_panel)
        buildHistory();
    placeHistory();
    m_panel->setVisible(visible);
    m_panel->raise();
    applyTheme();
}

Glyph LogBanner::levelGlyph(const QString &level)
{
    if (level == QLatin1String("error"))
        return Glyph::Error;
    return level == QLatin1String("warning") ? Glyph::Warning : Glyph::Info;
}

void LogBanner::paintEvent(QPaintEvent *)
{
    const ThemeManager *const theme = ThemeManager::instance();
    QPainter painter(this);
    painter.fillRect(rect(), theme->levelBackground(level()));
    painter.fillRect(0, 0, width(), 1, theme->colours().border);
    const bool quiet = m_history->messages().isEmpty();
    const QPixmap icon
        = glyphPixmap(quiet ? Glyph::Ok : levelGlyph(level()),
                      quiet ? theme->colours().mutedText : theme->levelColour(level()),
                      metrics::Icon, devicePixelRatioF());
    painter.drawPixmap(IconLeft, (height() - metrics::Icon) / 2, icon);
}

void LogBanner::mouseReleaseEvent(QMouseEvent *event)
{
    QWidget::mouseReleaseEvent(event);
    if (rect().contains(event->pos()))
        setHistoryVisible(!isHistoryVisible());
}

bool LogBanner::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest)
        placeHistory();
    return QWidget::eventFilter(watched, event);
}

void LogBanner::refresh()
{
    const ThemeColours &colours = ThemeManager::instance()->colours();
    const bool quiet = m_history->messages().isEmpty();
    m_text->setText(quiet ? tr("No messages") : rowText(m_history->messages().first()));
    m_text->setColour(quiet ? colours.mutedText : colours.text);
    const int warnings = count(QStringLiteral("warning"));
    const int errors = count(QStringLiteral("error"));
    m_warnings->setText(QString::number(warnings));
    m_warnings->setVisible(warnings > 0);
    m_errors->setText(QString::number(errors));
    m_errors->setVisible(errors > 0);
    update();
}

void LogBanner::applyTheme()
{
    const ThemeColours &colours = ThemeManager::instance()->colours();
    m_toggle->setIcon(glyphIcon(isHistoryVisible() ? Glyph::Down : Glyph::Up, colours.text,
                                colours.disabledText));
    m_toggle->setToolTip(isHistoryVisible() ? tr("Hide the messages") : tr("Show all messages"));
    if (m_panel)
        m_panel->setStyleSheet(ThemeManager::instance()->styleSheet());
    refresh();
}

void LogBanner::placeHistory()
{
    if (!m_panel || m_panel->parentWidget() != window())
        return;
    const QPoint top = mapTo(window(), QPoint(0, 0));
    const int height = qMin(HistoryHeight, top.y());
    m_panel->setGeometry(top.x(), top.y() - height, width(), height);
}

} // namespace brisa
