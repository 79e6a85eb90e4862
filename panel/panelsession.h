#pragma once

#include "paneloptions.h"

#include <QObject>
#include <memory>

namespace kest
{
class ModuleRunner;
}

namespace tavik
{
class RobotData;
}

namespace panel
{

class LastPage;
class LoadTrial;
class MainWindow;
class PluginLoader;
class RobotState;
class StartGuard;

/**
 * One run of the panel: start() builds the window, loads the plugins and drives their modules,
 * finish() ends it all in order. One that is
 * to list the plugins shows no window, opens no links and quits after the first frame. The data
 * store's "panel.state" follows: "starting", "running", "stopping", and "stopped" when no module
 * lives any more, the moment to take down what modules used. GUI thread.
 */
class PanelSession : public QObject
{
    Q_OBJECT

public:
    explicit PanelSession(const PanelOptions &options, QObject *parent = nullptr);
    ~PanelSession() override;

    /** False, with one line in error, where the runtime directory can't be used. */
    bool start(QString *error);
    /** Saves the picture if one is wanted, detaches and destroys the modules, joins the host's I/O
     *  thread. False where the picture could not be saved. */
    bool finish();

    MainWindow &window() const;
    const PluginLoader &loader() const;
    kest::ModuleRunner &runner() const;

Q_SIGNALS:
    /** Around each step of a module; see kest::ModuleRunner. */
    void stepStarted(const QString &module, const QString &step);
    void stepFinished(const QString &module, const QString &step);

private:
    bool enterRuntimeDirectory(QString *error);
    void readSettings();
    void showWindow();
    void showFirstPage();
    void loadPlugins();
    void startModules();
    void guardSteps();
    bool saveScreenshot() const;

    const PanelOptions m_options;
    std::unique_ptr<RobotState> m_robot;
    std::unique_ptr<MainWindow> m_window;
    std::unique_ptr<LastPage> m_lastPage;
    std::unique_ptr<tavik::RobotData> m_data;
    std::unique_ptr<StartGuard> m_guard;
    std::unique_ptr<LoadTrial> m_trial;
    std::unique_ptr<PluginLoader> m_loader;
    std::unique_ptr<kest::ModuleRunner> m_runner;
    std::unique_ptr<QObject> m_guarding; ///< lives until the first frame is over
    bool m_finished = false;
};

} // namespace panel
