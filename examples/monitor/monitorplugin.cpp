#include "monitorplugin.h"

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
    setPluginLabel(tr("Monitor"));
}

void MonitorPlugin::init()
{
    createUi();
    createButtons();
    subscribe();
}

// Watches end here, while the panel is still whole; subscriptions end with their context object.
void MonitorPlugin::detach()
{
    delete m_page;
}

void MonitorPlugin::createUi()
{
    m_page = new MonitorPage(pluginName);
    connect(m_page, &MonitorPage::fullScreenRequested, this,
            [](bool full) { ChangeFullScreen(pluginName, full); });
    CreateCenterWidget(pluginName, m_page);

    m_status = new QLabel(tr("No events"));
    CreateStatusBar(pluginName, m_status, 0);

    m_last = new QLabel(tr("The last event appears here."));
    m_last->setWordWrap(true);
    m_last->setMargin(16);
    m_last->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    CreateRightExpandWidgte(pluginName, m_last, QString());
}

void MonitorPlugin::createButtons()
{
    PhysicalButton pause;
    pause.text = tr("Pause");
    pause.callback = [this](bool pressed) { m_paused = pressed ? !m_paused : m_paused; };
    PhysicalButton clear;
    clear.text = tr("Clear");
    clear.callback = [this](bool pressed) {
        if (pressed && m_page)
            m_page->clear();
    };
    PhysicalButton details;
    details.text = tr("Details");
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
    m_status->setText(tr("%n event(s)", nullptr, m_count));
    m_last->setText(event.toString());
}
