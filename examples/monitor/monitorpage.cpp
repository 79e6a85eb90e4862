#include "monitorpage.h"

#include "eventtable.h"

#include <zeplet/zeplet.h>

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

namespace
{
constexpr int touchHeight = 56; // 9 mm on the panel and more
constexpr int margin = 24;
constexpr int spacing = 16;

QPushButton *touchButton(QWidget *parent)
{
    auto *button = new QPushButton(parent);
    button->setMinimumHeight(touchHeight);
    return button;
}
} // namespace

MonitorPage::MonitorPage(const QString &pluginName, QWidget *parent)
    : QWidget(parent)
    , m_watches(pluginName)
    , m_table(new EventTable(this))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(spacing);
    layout->addWidget(createHeader());
    layout->addWidget(createWatchLine());
    layout->addWidget(createChipArea());
    layout->addWidget(m_table, 1);
    translate();
}

void MonitorPage::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::LanguageChange)
        return;
    translate();
    Q_EMIT languageChanged();
}

void MonitorPage::translate()
{
    m_title->setText(tr("Event monitor"));
    m_fullScreen->setText(tr("Full screen"));
    m_name->setPlaceholderText(tr("Hub key or notify path, for example demo.temperature"));
    m_watchHub->setText(tr("Watch hub key"));
    m_watchNotify->setText(tr("Watch notify path"));
}

void MonitorPage::show(const zeplet::ZepletEvent &event)
{
    m_table->add(event);
}

void MonitorPage::clear()
{
    m_table->setRowCount(0);
}

QWidget *MonitorPage::createHeader()
{
    auto *header = new QWidget(this);
    auto *layout = new QHBoxLayout(header);
    layout->setContentsMargins(0, 0, 0, 0);
    m_title = new QLabel(header);
    m_title->setProperty("role", "heading");
    m_fullScreen = touchButton(header);
    m_fullScreen->setCheckable(true);
    connect(m_fullScreen, &QPushButton::toggled, this, &MonitorPage::fullScreenRequested);
    layout->addWidget(m_title, 1);
    layout->addWidget(m_fullScreen);
    return header;
}

QWidget *MonitorPage::createWatchLine()
{
    auto *line = new QWidget(this);
    auto *layout = new QHBoxLayout(line);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(spacing / 2);
    m_name = new QLineEdit(line);
    m_name->setObjectName(QStringLiteral("watchName"));
    m_name->setMinimumHeight(touchHeight);
    m_watchHub = touchButton(line);
    m_watchNotify = touchButton(line);
    connect(m_watchHub, &QPushButton::clicked, this, [this] { startWatch(WatchList::HubKey); });
    connect(m_watchNotify, &QPushButton::clicked, this,
            [this] { startWatch(WatchList::NotifyPath); });
    layout->addWidget(m_name, 1);
    layout->addWidget(m_watchHub);
    layout->addWidget(m_watchNotify);
    return line;
}

// However many there are: they are scrolled, never cut.
QWidget *MonitorPage::createChipArea()
{
    m_chipArea = new QScrollArea(this);
    m_chipArea->setFrameShape(QFrame::NoFrame);
    m_chipArea->setProperty("role", "plain");
    m_chipArea->setWidgetResizable(true);
    m_chipArea->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_chipArea->setFixedHeight(touchHeight + spacing);
    auto *content = new QWidget;
    m_chips = new QHBoxLayout(content);
    m_chips->setContentsMargins(0, 0, 0, spacing);
    m_chips->setSpacing(spacing / 2);
    m_chips->addStretch();
    m_chipArea->setWidget(content);
    m_chipArea->viewport()->setAutoFillBackground(false);
    content->setAutoFillBackground(false);
    m_chipArea->hide();
    return m_chipArea;
}

void MonitorPage::startWatch(WatchList::Kind kind)
{
    const QString name = m_name->text().trimmed();
    if (!m_watches.add(kind, name))
        return;
    addChip(kind, name);
    m_name->clear();
}

void MonitorPage::addChip(WatchList::Kind kind, const QString &name)
{
    auto *chip = touchButton(this);
    chip->setText(tr("%1  ✕").arg(name));
    chip->setToolTip(tr("Tap to stop watching"));
    connect(chip, &QPushButton::clicked, this, [this, chip, kind, name] {
        m_watches.remove(kind, name);
        m_chips->removeWidget(chip);
        chip->deleteLater();
        m_chipArea->setVisible(m_chips->count() > 1);
    });
    m_chips->insertWidget(m_chips->count() - 1, chip);
    m_chipArea->show();
}
