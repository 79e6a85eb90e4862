#pragma once

#include "buswatch.h"
#include "hoststate.h"
#include "leftovers.h"
#include "simulatorfixture.h"
#include "surroundings.h"

#include <QTemporaryDir>
#include <memory>
#include <panelsession.h>
#include <zeplet-test/panelsetup.h>

namespace zeplet
{
namespace test
{

/** What a TestPanel consists of, and the steps of its start. Members are null until their step. */
class PanelSite
{
public:
    explicit PanelSite(const PanelSetup &panelSetup);
    ~PanelSite();
    Q_DISABLE_COPY(PanelSite)

    /** False, with the reason in problem, where one of the steps fails. */
    bool start();
    /** Sets the problem; always false. */
    bool fail(const QString &reason);
    /** The plugins whose libraries were opened. */
    QStringList plugins() const;
    bool waitForFrames(int frames) const;

    const PanelSetup setup;
    QString problem;
    QStringList banners; ///< "level: text"
    // In the order in which they need each other.
    std::unique_ptr<Surroundings> surroundings;
    std::unique_ptr<QTemporaryDir> directory;
    std::unique_ptr<SimulatorFixture> simulator;
    std::unique_ptr<HostState> host;
    std::unique_ptr<BusWatch> bus;
    std::unique_ptr<Leftovers> leftovers;
    std::unique_ptr<panel::PanelSession> session;

private:
    bool checkConditions();
    bool makeDirectory();
    bool copyPlugins();
    bool startSimulator();
    bool writeSettings();
    bool startSession();
    bool checkPlugins();
    bool waitForLinks();
    bool openProject();
    bool waitUntilQuiet();
    void enterStep(const QString &module);

    QObject m_context; ///< of connections that end with this object
};

} // namespace test
} // namespace zeplet
