#include "hoststate.h"

#include <QApplication>
#include <QPointer>
#include <brisa/thememanager.h>
#include <kest/modulefactory.h>
#include <kivra/physicalbuttonregistry_p.h>
#include <ostrel/moduleobject.h>
#include <ostrel/pluginmanager.h>
#include <zeplet/events/zepleteventsystem.h>
#include <zeplet/interface/interfacemanager.h>
#include <zeplet/interface/interfacewatches_p.h>
#include <zeplet/plugin/pluginregister.h>

namespace zeplet
{
namespace test
{

namespace
{

/** Its nodes stay, and who watches them: both are the host's for the life of the process. */
void emptyStore()
{
    const QStringList trees = m(QString())->childNames();
    for (const QString &tree : trees)
        m(QString())->child(tree)->remove(nullptr, false);
}

/** The interface manager makes the bridge once, 100 ms after it is made itself; it goes with a bus
 *  that somebody destroyed. */
void bridgeBus()
{
    static QPointer<ZepletEventSystem> bridged;
    InterfaceManager *const manager = zepletInterface();
    static bool isFirst = true;
    if (!bridged && !isFirst)
        manager->initEventSystem();
    isFirst = false;
    bridged = zepletEvent();
    bridged->resetStatistics();
}

void endWatches()
{
    for (const QString &key : InterfaceWatches::hubKeys().keys())
        zepletInterface()->disconnectNexoData(QString(), key, QString());
    for (const QString &path : InterfaceWatches::notifyPaths().keys())
        zepletInterface()->disconnectRcNotify(QString(), path, QString());
    InterfaceWatches::endMotionErrors();
}

} // namespace

HostState::HostState()
    : m_modules(bfactory().makers.keys())
    , m_windows(QApplication::topLevelWidgets())
{
    emptyStore();
    brisa::ThemeManager::instance()->setTheme(brisa::Theme::Light);
    bridgeBus();
}

HostState::~HostState()
{
    endWatches();
    qo::kivra::PhysicalButtonRegistry::instance().removeOwnedBy(nullptr);
    hideWindows();
    withdrawModules();
}

/** Whoever left them may still delete them. */
void HostState::hideWindows() const
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *const window : windows) {
        if (!m_windows.contains(window))
            window->hide();
    }
}

void HostState::withdrawModules() const
{
    const QStringList modules = bfactory().makers.keys();
    for (const QString &module : modules) {
        if (m_modules.contains(module))
            continue;
        zepletFactory().cancel(module);
        bfactory().makers.remove(module);
        ostrel::pluginManager().plugins.remove(module);
    }
}

} // namespace test
} // namespace zeplet
