#include "monitorpage.h"

#include "eventtable.h"

#include <zeplet/zeplet.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace
{
constexpr int touchHeight = 53;

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
    layout->setContentsMargins(16, 16, 16, 16);
    layout->setSpacing(16);
    layout->addWidget(createHeader());
    layout->addWidget(createWatchLine());
    m_chips = new QHBoxLayout;
    m_chips->addStretch();
    layout->addLayout(m_chips);
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
    title->setProperty("role", "title");
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
        chip->deleteLater();
    });
    m_chips->insertWidget(m_chips->count() - 1, chip);
}
