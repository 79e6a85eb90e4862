#include "systempage.h"

#include "pluginrow.h"

#include <QComboBox>
#include <QGridLayout>
#include <QJsonObject>
#include <QLabel>
#include <QLocale>
#include <QScrollArea>
#include <QScroller>
#include <QVBoxLayout>
#include <brisa/languagemanager.h>
#include <brisa/managerhelper.h>
#include <brisa/settingmanager.h>
#include <brisa/translated.h>
#include <memory>
#include <zeplet/events/zepleteventsystem.h>
#include <zeplet/interface/interfacemanager.h>
#include <zeplet/plugin/uiservices.h>

using brisa::LanguageManager;

namespace
{

constexpr int Margin = 24;
constexpr int Spacing = 16;

QLabel *makeLabel(const kit::Text &text, const QString &role, QWidget *parent)
{
    auto *const label = new QLabel(parent);
    label->setProperty("role", role);
    brisa::translated(label, [=] { label->setText(text()); });
    return label;
}

/** Adds a line with a name and a value; the value's label. */
QLabel *addLine(QGridLayout *grid, const kit::Text &name, const QString &value = QString())
{
    auto *const label = new QLabel(value);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    const int row = grid->rowCount();
    grid->addWidget(makeLabel(name, QString(), grid->parentWidget()), row, 0);
    grid->addWidget(label, row, 1);
    return label;
}

/** The languages by their own names: who can't read the panel finds the one to choose. */
QComboBox *makeLanguageChoice(QWidget *parent)
{
    auto *const choice = new QComboBox(parent);
    choice->setObjectName(QStringLiteral("language"));
    choice->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    for (const QString &code : LanguageManager::languages())
        choice->addItem(LanguageManager::languageName(code), code);
    brisa::translated(choice, [choice] {
        choice->setCurrentIndex(choice->findData(LanguageManager::instance()->language()));
        choice->setAccessibleName(SystemPage::tr("Language"));
    });
    QObject::connect(choice, QOverload<int>::of(&QComboBox::activated), choice, [choice] {
        const QString code = choice->currentData().toString();
        brisa::ManagerHelper::instance()->settingManager()->set(QStringLiteral("language"), code);
        LanguageManager::instance()->setLanguage(code);
    });
    return choice;
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
    auto *const header = new QHBoxLayout;
    header->setSpacing(Spacing);
    header->addWidget(makeLabel([] { return tr("Plugins"); }, QStringLiteral("heading"), this), 1);
    header->addWidget(makeLabel([] { return tr("Language"); }, QStringLiteral("muted"), this));
    header->addWidget(makeLanguageChoice(this));

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
    column->addLayout(header);
    column->addLayout(cards);
    column->addWidget(scroll, 1);
    brisa::translated(this, [this] { sayAgain(); });
}

QWidget *SystemPage::makeCard(const kit::Text &title, QGridLayout **grid)
{
    auto *const card = new QFrame(this);
    card->setProperty("role", QStringLiteral("card"));
    *grid = new QGridLayout(card);
    (*grid)->setContentsMargins(Spacing, Spacing, Spacing, Spacing);
    (*grid)->setColumnStretch(1, 1);
    (*grid)->addWidget(makeLabel(title, QStringLiteral("title"), card), 0, 0, 1, 2);
    return card;
}

QWidget *SystemPage::makeVersions()
{
    QGridLayout *grid = nullptr;
    QWidget *const card = makeCard([] { return tr("Versions"); }, &grid);
    addLine(
        grid, [] { return tr("Plugin library"); }, zeplet::GetPluginVersion());
    addLine(
        grid, [] { return tr("Panel"); }, hostVersion());
    addLine(
        grid, [] { return QStringLiteral("Qt"); }, QString::fromLatin1(qVersion()));
    return card;
}

QWidget *SystemPage::makeStatistics()
{
    QGridLayout *grid = nullptr;
    QWidget *const card = makeCard([] { return tr("Event bus"); }, &grid);
    m_published = addLine(grid, [] { return tr("Events published"); });
    m_handled = addLine(grid, [] { return tr("Handlers called"); });
    m_subscriptions = addLine(grid, [] { return tr("Subscriptions"); });
    return card;
}

void SystemPage::refresh()
{
    refreshStatistics();
    refreshPlugins();
}

void SystemPage::refreshStatistics()
{
    const QLocale locale = LanguageManager::instance()->locale();
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

void SystemPage::sayAgain()
{
    m_shown = QJsonArray();
    clearRows();
    if (isVisible())
        refresh();
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
