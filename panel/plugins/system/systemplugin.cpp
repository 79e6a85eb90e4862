#include "systemplugin.h"

#include "systempage.h"

#include <QCoreApplication>
#include <kit/page.h>
#include <ostrel/moduleobject.h>
#include <zeplet/events/zepleteventsystem.h>
#include <zeplet/plugin/pluginregister.h>
#include <zeplet/plugin/uiservices.h>

namespace
{

constexpr int RefreshInterval = 500; // ms; faster than this nobody reads

QString pluginName()
{
    return QStringLiteral("zeplet");
}

// The panel says "stopped" after it has destroyed the last module, this plugin's included: the
// application is the context, because the plugin is gone by then.
void destroyBusWithPanel()
{
    static bool connected = false;
    if (std::exchange(connected, true))
        return;
    QObject::connect(m(QStringLiteral("panel.state")), &ostrel::ModuleObject::changed, qApp,
                     [](const QVariant &state) {
                         if (state.toString() == QLatin1String("stopped"))
                             zeplet::ZepletEventSystem::destroyInstance();
                     });
}

[[maybe_unused]] const bool registered = [] {
    zeplet::zepletFactory().regist(pluginName(),
                                   [](QObject *parent) { return new SystemPlugin(parent); });
    return true;
}();

} // namespace

SystemPlugin::SystemPlugin(QObject *parent)
    : PluginBase(parent)
{
    setPluginLabel(QT_TRANSLATE_NOOP("navigation", "Overview"));
    destroyBusWithPanel();
}

void SystemPlugin::init()
{
    m_page = new SystemPage;
    connect(m_page, &SystemPage::tryAgain, this, &SystemPlugin::requestRetry);
    zeplet::CreateCenterWidget(pluginName(), m_page);
    kit::choosePictogram(this, pluginName(), QStringLiteral("plugin"));
}

void SystemPlugin::render()
{
    if (!m_page || !m_page->isVisible())
        return;
    if (m_refreshed.isValid() && m_refreshed.elapsed() < RefreshInterval)
        return;
    m_refreshed.start();
    m_page->refresh();
}

void SystemPlugin::requestRetry(const QString &name)
{
    m(QStringLiteral("panel.retry"))->set(this, name);
    m_refreshed.invalidate();
}
