#pragma once

#include "buswatch.h"
#include "simulatorfixture.h"

#include <QSet>
#include <QStringList>
#include <QWidget>

namespace kest
{
class ModuleRunner;
}

namespace zeplet
{
namespace test
{

/**
 * Detaches plugins and tells what they left behind: what is there when the module has gone, and was
 * not there before any plugin started, which is when this object is made. Windows on the screen are
 * looked at before the module takes back its own. Where several plugins run, what bears no name
 * counts for the first one that is detached.
 */
class Leftovers
{
public:
    Leftovers(const BusWatch &bus, SimulatorFixture &simulator, const QWidget *window);

    /** plugins: all of this panel. A sentence for each; what was told once is not told again. */
    QStringList detach(kest::ModuleRunner &runner, const QString &plugin,
                       const QStringList &plugins);

private:
    /** What the host and the controller show at a moment, by where it is. */
    struct Sight {
        QSet<QString> centrePages, sidePages, statusEntries, keyPages, monitored, filters;
        QSet<QWidget *> windows;
        bool motionErrors = false;
        int modalWindows = 0;
    };

    Sight look() const;
    QStringList subscriptions(const QString &plugin, const QStringList &plugins);
    QStringList watches(const QString &plugin, const QStringList &plugins) const;
    QStringList compare(const Sight &now);

    const BusWatch &m_bus;
    SimulatorFixture &m_simulator;
    const QWidget *const m_window;
    QSet<QString> m_told; ///< ids of subscriptions
    Sight m_before;
};

} // namespace test
} // namespace zeplet
