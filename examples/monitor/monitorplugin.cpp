// Every event of the panel, and what a plugin can have beside its page: a status bar item, a page
// in the right side bar, physical keys, the whole screen, a log file. WatchList shows watches that
// end.
#include "monitorplugin.h"

#include "eventtable.h"
#include "monitorpage.h"

#include <zeplet/zeplet.h>

#include <QDateTime>
#include <QLabel>

using namespace zeplet;

namespace
{
const QString pluginName = QStringLiteral("monitor");

// Runs when the panel loads the library: from here on it knows the plugin by name.
const bool registered = [] {
    zepletFactory().regist(pluginName, [](QObject *parent) { return new MonitorPlugin(parent); });
    return true;
}();

QString details(const ZepletEvent &event)
{
    const QString time = event.timestamp.toLocalTime().toString(QStringLiteral("hh:mm:ss.zzz"));
    return QStringList {eventTypeToString(event.type),
                        MonitorPlugin::tr("No. %1 at %2").arg(QString::number(event.seq), time),
                        MonitorPlugin::tr("from %1").arg(event.source), QString(),
                        EventTable::dataText(event.data)}
        .join(QLatin1Char('\n'));
}

void writeLog(const ZepletEvent &event)
{
    const QString time
        = QDateTime::currentDateTime().toString(QStringLiteral("MM/dd hh:mm:ss.zzz"));
    FLog(QStringLiteral("[I|%1]").arg(time), QString(), QStringLiteral("./log/zeplet/monitor"),
         QStringLiteral("log"))
        << event.toString();
}
} // namespace

MonitorPlugin::MonitorPlugin(QObject *parent)
    : PluginBase(parent)
{
    setPluginLabel(QT_TRANSLATE_NOOP("navigation", "Monitor"));
}

void MonitorPlugin::init()
{
    createUi();
    createButtons();
    subscribe();
}

// Watches end here, while the panel is still whole; subscriptions end with their context object.
// The panel takes back what it was given.
void MonitorPlugin::detach()
{
    ChangePhyButtonStatus(pluginName, pluginName, false);
    delete m_page;
}

void MonitorPlugin::createUi()
{
    m_page = new MonitorPage(pluginName);
    connect(m_page, &MonitorPage::fullScreenRequested, this, &MonitorPlugin::changeFullScreen);
    connect(m_page, &MonitorPage::languageChanged, this, &MonitorPlugin::translate);
    CreateCenterWidget(pluginName, m_page);

    m_status = new QLabel;
    CreateStatusBar(pluginName, m_status, 0);

    m_last = new QLabel(tr("The last event appears here."));
    m_last->setTextFormat(Qt::PlainText);
    m_last->setWordWrap(true);
    m_last->setMargin(16);
    m_last->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    CreateRightExpandWidgte(pluginName, m_last, QString());
    translate();
}

// What was told of the last event stays as it was told.
void MonitorPlugin::translate()
{
    m_status->setText(tr("Events: %1").arg(m_count));
    m_last->setWindowTitle(tr("Last event"));
}

// Out of the panel the page no longer inherits the panel's style sheet: it takes it along.
void MonitorPlugin::changeFullScreen(bool full)
{
    QString sheet;
    for (const QWidget *widget = m_page->parentWidget(); full && widget;
         widget = widget->parentWidget())
        sheet.prepend(widget->styleSheet());
    if (full)
        m_page->setStyleSheet(sheet);
    ChangeFullScreen(pluginName, full);
    if (!full)
        m_page->setStyleSheet(QString());
}

// The panel shows the keys in its language: they are given in English.
void MonitorPlugin::createButtons()
{
    PhysicalButton pause;
    pause.text = QT_TRANSLATE_NOOP("navigation", "Pause");
    pause.callback = [this](bool pressed) { m_paused = pressed ? !m_paused : m_paused; };
    PhysicalButton clear;
    clear.text = QT_TRANSLATE_NOOP("navigation", "Clear");
    clear.callback = [this](bool pressed) {
        if (pressed && m_page)
            m_page->clear();
    };
    PhysicalButton details;
    details.text = QT_TRANSLATE_NOOP("navigation", "Details");
    details.callback = [](bool pressed) {
        if (pressed)
            SwitchRightExpandWidgte(pluginName, QString());
    };
    CreatePhyButtonList(pluginName, pluginName, {pause, clear}, {details}, {});
    ChangePhyButtonStatus(pluginName, pluginName, true);
}

// Without a context object a plain subscription would never be called.
void MonitorPlugin::subscribe()
{
    for (ZepletEventType type :
         {NetworkConnected, NetworkDisconnected, RCPowerStatusChange, RCRunModelChange, RCRunStart,
          RCRunStop, RCBeforeRunStart, RCBeforeRunStop, NexoDataChange, RCNotifyDataChange}) {
        zepletEvent()->subscribe(
            type, [this](const ZepletEvent &event) { receive(event); }, pluginName, this);
    }
}

void MonitorPlugin::receive(const ZepletEvent &event)
{
    writeLog(event);
    ++m_count;
    if (m_paused || !m_page)
        return;
    m_page->show(event);
    m_status->setText(tr("Events: %1").arg(m_count));
    m_last->setText(details(event));
}
