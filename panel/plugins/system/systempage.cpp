#include "systempage.h"

#include "pluginrow.h"

#include <QGridLayout>
#include <QJsonObject>
#include <QLabel>
#include <QLocale>
#include <QScrollArea>
#include <QScroller>
#include <QVBoxLayout>
#include <memory>
#include <zeplet/events/zepleteventsystem.h>
#include <zeplet/interface/interfacemanager.h>
#include <zeplet/plugin/uiservices.h>

namespace
{

constexpr int Margin = 24;
constexpr int Spacing = 16;

/** Adds a line with a name and a value; the value's label. */
QLabel *addLine(QGridLayout *grid, const QString &name, const QString &value = QString())
{
    auto *const label = new QLabel(value);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    const int row = grid->rowCount();
    grid->addWidget(new QLabel(name), row, 0);
    grid->addWidget(label, row, 1);
    return label;
}

QString hostVersion()
{
    return zeplet::zepletInterface()->getNodeData(QStringLiteral("panel.version")).toString();
}

} // namespace

SystemPage::SystemPage(QWidget *parent)
    : QWidget(parent)
    , m_rowArea(new QWidget)
{
    auto *const title = new QLabel(tr("Plugins"), this);
    title->setProperty("role", QStringLiteral("heading"));

    auto *const cards = new QHBoxLayout;
    cards->setSpacing(Spacing);
    cards->addWidget(makeVersions(), 1);
    cards->addWidget(makeStatistics(), 1);

    m_rows = new QVBoxLayout(m_rowArea);
    m_rows->setContentsMargins(0, 0, 0, 0);
    m_rows->setSpacing(Spacing / 2);
    m_rows->addStretch(1);
    auto *const scroll = new QScrollArea(this);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setWidget(m_rowArea);
    scroll->viewport()->setAutoFillBackground(false);
    m_rowArea->setAutoFillBackground(false);
    QScroller::grabGesture(scroll->viewport(), QScroller::TouchGesture);

    auto *const column = new QVBoxLayout(this);
    column->setContentsMargins(Margin, Margin, Margin, Margin);
    column->setSpacing(Spacing);
    column->addWidget(title);
    column->addLayout(cards);
    column->addWidget(scroll, 1);
}

QWidget *SystemPage::makeCard(const QString &title, QGridLayout **grid)
{
    auto *const card = new QFrame(this);
    card->setProperty("role", QStringLiteral("card"));
    *grid = new QGridLayout(card);
    (*grid)->setContentsMargins(Spacing, Spacing, Spacing, Spacing);
    (*grid)->setColumnStretch(1, 1);
    auto *const label = new QLabel(title, card);
    label->setProperty("role", QStringLiteral("title"));
    (*grid)->addWidget(label, 0, 0, 1, 2);
    return card;
}

QWidget *SystemPage::makeVersions()
{
    QGridLayout *grid = nullptr;
    QWidget *const card = makeCard(tr("Versions"), &grid);
    addLine(grid, tr("Plugin library"), zeplet::GetPluginVersion());
    addLine(grid, tr("Panel"), hostVersion());
    addLine(grid, tr("Qt"), QString::fromLatin1(qVersion()));
    return card;
}

QWidget *SystemPage::makeStatistics()
{
    QGridLayout *grid = nullptr;
    QWidget *const card = makeCard(tr("Event bus"), &grid);
    m_published = addLine(grid, tr("Events published"));
    m_handled = addLine(grid, tr("Handlers called"));
    m_subscriptions = addLine(grid, tr("Subscriptions"));
    return card;
}

void SystemPage::refresh()
{
    refreshStatistics();
    refreshPlugins();
}

void SystemPage::refreshStatistics()
{
    const QLocale locale;
    zeplet::ZepletEventSystem *const bus = zeplet::zepletEvent();
    m_published->setText(locale.toString(bus->totalEventsPublished()));
    m_handled->setText(locale.toString(bus->totalEventsHandled()));
    m_subscriptions->setText(locale.toString(bus->totalSubscriptionCount()));
}

void SystemPage::refreshPlugins()
{
    const QJsonArray records
        = zeplet::zepletInterface()->getNodeData(QStringLiteral("panel.plugins")).toArray();
    if (records == m_shown)
        return;
    m_shown = records;
    clearRows();
    int at = 0;
    for (const QJsonValue &record : records) {
        auto *const row = new PluginRow(record.toObject(), m_rowArea);
        connect(row, &PluginRow::tryAgain, this, &SystemPage::tryAgain);
        m_rows->insertWidget(at++, row);
    }
}

// A row may be in its button's click.
void SystemPage::clearRows()
{
    while (m_rows->count() > 1) { // the stretch stays
        const std::unique_ptr<QLayoutItem> item(m_rows->takeAt(0));
        item->widget()->hide();
        item->widget()->deleteLater();
    }
}
