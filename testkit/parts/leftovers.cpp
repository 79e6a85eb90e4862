#include "leftovers.h"

#include <QApplication>
#include <kest/bmodule.h>
#include <kest/centerwidget.h>
#include <kest/expandsidebar.h>
#include <kest/keyedwidgets_p.h>
#include <kest/modulerunner.h>
#include <kest/statusbar.h>
#include <kivra/physicalbuttonregistry_p.h>
#include <nexo/nexo.h>
#include <ostrel/moduleobject.h>
#include <zeplet/interface/interfacewatches_p.h>
#include <zeplet/plugin/pluginsettingpage.h>

namespace zeplet
{
namespace test
{

namespace
{

int modalCount()
{
    return m(mName(QStringLiteral("brisa.msg"), QStringLiteral("_")))->getInt(0);
}

QSet<QString> asSet(const QStringList &names)
{
    return {names.begin(), names.end()};
}

/** The widgets that no module owns: the others go with theirs. */
QSet<QString> unowned(const QWidget *container)
{
    const auto *const widgets = container
        ? container->findChild<kest::KeyedWidgets *>(QString(), Qt::FindDirectChildrenOnly)
        : nullptr;
    QSet<QString> keys = widgets ? asSet(widgets->keys()) : QSet<QString>();
    for (auto key = keys.begin(); key != keys.end();)
        key = widgets->owner(*key) ? keys.erase(key) : std::next(key);
    return keys;
}

QSet<QString> unownedKeyPages()
{
    QSet<QString> names;
    for (const auto &page : qo::kivra::PhysicalButtonRegistry::instance().pages()) {
        if (!page->module)
            names.insert(page->name);
    }
    return names;
}

/** What the hub was asked to monitor. Its answer to a command comes after all that was sent
 *  before. */
QSet<QString> monitored(SimulatorFixture &simulator)
{
    if (nexo()->mobj()->getBool(QStringLiteral("connected"), false))
        nexo()->execCommand(nullptr, QStringLiteral("echo"));
    const QJsonValue names = simulator.call([](simulator::Simulator &controller) {
        return controller.hub().value(QStringLiteral("monitor.select"));
    });
    return asSet(names.toVariant().toStringList());
}

QSet<QString> filters()
{
    QSet<QString> on;
    for (const char *filter : {"run", "stop"}) {
        if (m(QStringLiteral("brisa.r.zeplet.filter.") + QLatin1String(filter))->getBool(false))
            on.insert(QLatin1String(filter));
    }
    return on;
}

/** Whose a subscription is: the name on the bus counts first, then in whose step it was made. What
 *  neither tells is anybody's. */
bool isOf(const BusWatch::Subscription &subscription, const QString &plugin,
          const QStringList &plugins)
{
    for (const QString &name : {subscription.subscriber, subscription.madeIn}) {
        if (plugins.contains(name))
            return name == plugin;
    }
    return true;
}

/** A sentence, with %1 replaced, for each name that is new. */
QStringList newOnes(const QSet<QString> &before, const QSet<QString> &now, const QString &sentence)
{
    QStringList names = (now - before).values();
    names.sort();
    for (QString &name : names)
        name = sentence.arg(name);
    return names;
}

/** What the module takes back by itself when it is destroyed, but bothers the operator until then:
 *  looked at just before. */
QStringList heldBy(const QString &plugin)
{
    const kest::BModule *const module = bModule(QStringLiteral("ostrel.zeplet.") + plugin);
    const auto *const page = module ? module->findChild<PluginSettingPage *>() : nullptr;
    if (!page || !page->isFullWidget())
        return {};
    return {QStringLiteral("The centre widget fills the screen: call ChangeFullScreen(name, false) "
                           "in detach().")};
}

/** What its author knows it by. */
QString nameOf(const QWidget *window)
{
    for (const QString &name : {window->windowTitle(), window->objectName()}) {
        if (!name.isEmpty())
            return name;
    }
    return QLatin1String(window->metaObject()->className());
}

} // namespace

Leftovers::Leftovers(const BusWatch &bus, SimulatorFixture &simulator, const QWidget *window)
    : m_bus(bus)
    , m_simulator(simulator)
    , m_window(window)
    , m_before(look())
{
}

QStringList Leftovers::detach(kest::ModuleRunner &runner, const QString &plugin,
                              const QStringList &plugins)
{
    QStringList sentences;
    int modalWindows = 0;
    QObject context;
    QObject::connect(&runner, &kest::ModuleRunner::stepStarted, &context,
                     [&](const QString &name, const QString &step) {
                         if (name != plugin || step != QLatin1String("destroy"))
                             return;
                         sentences += heldBy(plugin);
                         modalWindows = modalCount();
                     });
    runner.stop(plugin);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    if (modalWindows > modalCount())
        sentences += QStringLiteral("A modal window still counts: call "
                                    "ChangeModelWindowStatus(name, false) when it closes.");
    return sentences + subscriptions(plugin, plugins) + watches(plugin, plugins) + compare(look());
}

QStringList Leftovers::subscriptions(const QString &plugin, const QStringList &plugins)
{
    QStringList sentences;
    for (const BusWatch::Subscription &made : m_bus.subscriptions()) {
        if (m_told.contains(made.id) || !isOf(made, plugin, plugins)
            || !zepletEvent()->hasSubscription(made.id))
            continue;
        m_told.insert(made.id);
        sentences += QStringLiteral("A subscription to %1 in the name \"%2\" is left: subscribe in "
                                    "the plugin's name, or unsubscribe in detach().")
                         .arg(eventTypeToString(made.type), made.subscriber);
    }
    return sentences;
}

QStringList Leftovers::watches(const QString &plugin, const QStringList &plugins) const
{
    QSet<QString> ofOthers;
    for (const BusWatch::Subscription &made : m_bus.subscriptions()) {
        if (!isOf(made, plugin, plugins))
            ofOthers.insert(made.id);
    }
    QStringList sentences;
    const auto tell = [&](const InterfaceWatches::Ids &watches, const QString &sentence) {
        for (auto watch = watches.cbegin(); watch != watches.cend(); ++watch) {
            if (!ofOthers.contains(asSet(*watch)))
                sentences += sentence.arg(watch.key());
        }
    };
    tell(InterfaceWatches::hubKeys(),
         QStringLiteral("The hub key %1 is still watched: call disconnectNexoData() in detach()."));
    tell(InterfaceWatches::notifyPaths(),
         QStringLiteral("The notify path %1 is still watched: call disconnectRcNotify() in "
                        "detach()."));
    return sentences;
}

Leftovers::Sight Leftovers::look() const
{
    Sight now;
    now.centrePages = unowned(instantiatedCenterWidget());
    now.sidePages = unowned(instantiatedRightExpandSideWidget());
    now.statusEntries = unowned(instantiatedStatusBar(nullptr));
    now.keyPages = unownedKeyPages();
    now.monitored = monitored(m_simulator);
    now.filters = filters();
    now.motionErrors = InterfaceWatches::motionErrors();
    now.modalWindows = modalCount();
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget *const window : windows) {
        if (window != m_window && window->isVisible())
            now.windows.insert(window);
    }
    return now;
}

QStringList Leftovers::compare(const Sight &now)
{
    const Sight before = std::exchange(m_before, now);
    QStringList sentences;
    sentences += newOnes(before.centrePages, now.centrePages,
                         QStringLiteral("The centre page %1 is left: remove it in detach()."));
    sentences += newOnes(before.sidePages, now.sidePages,
                         QStringLiteral("The page %1 of the right side bar is left: remove it in "
                                        "detach()."));
    sentences += newOnes(before.statusEntries, now.statusEntries,
                         QStringLiteral("The status bar entry %1 is left: remove it in detach()."));
    sentences += newOnes(before.keyPages, now.keyPages,
                         QStringLiteral("The page of keys %1 is left: register it for the plugin's "
                                        "module."));
    sentences
        += newOnes(before.monitored, now.monitored,
                   QStringLiteral("The variable %1 is still monitored: call registPERSVars({}) "
                                  "in detach()."));
    sentences += newOnes(before.filters, now.filters,
                         QStringLiteral("The filter \"%1\" is still on: an operator would wait for "
                                        "a plugin that is gone. Turn it off in detach()."));
    if (now.motionErrors && !before.motionErrors)
        sentences += QStringLiteral("The errors of a motion are still watched: call moveToStop() "
                                    "after moveToStart(), in detach() at the latest.");
    for (const QWidget *const window : now.windows - before.windows)
        sentences += QStringLiteral("The window \"%1\" is still open: delete it in detach().")
                         .arg(nameOf(window));
    if (now.modalWindows != before.modalWindows)
        sentences += QStringLiteral("The count of modal windows is off by %1: change it with "
                                    "ChangeModelWindowStatus() alone.")
                         .arg(now.modalWindows - before.modalWindows);
    return sentences;
}

} // namespace test
} // namespace zeplet
