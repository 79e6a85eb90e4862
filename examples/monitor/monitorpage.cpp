#include "monitorpage.h"

#include "eventtable.h"

#include <zeplet/zeplet.h>

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

QPushButton *touchButton(const QString &text, QWidget *parent)
{
    auto *button = new QPushButton(text, parent);
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
    auto *title = new QLabel(tr("Event monitor"), header);
    title->setProperty("role", "heading");
    auto *fullScreen = touchButton(tr("Full screen"), header);
    fullScreen->setCheckable(true);
    connect(fullScreen, &QPushButton::toggled, this, &MonitorPage::fullScreenRequested);
    layout->addWidget(title, 1);
    layout->addWidget(fullScreen);
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
    m_name->setPlaceholderText(tr("Hub key or notify path, for example demo.temperature"));
    auto *hub = touchButton(tr("Watch hub key"), line);
    auto *notify = touchButton(tr("Watch notify path"), line);
    connect(hub, &QPushButton::clicked, this, [this] { startWatch(WatchList::HubKey); });
    connect(notify, &QPushButton::clicked, this, [this] { startWatch(WatchList::NotifyPath); });
    layout->addWidget(m_name, 1);
    layout->addWidget(hub);
    layout->addWidget(notify);
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
    auto *chip = touchButton(tr("%1  ✕").arg(name), this);
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
