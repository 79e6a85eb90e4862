#include "panelsession.h"

#include "desktoptools.h"
#include "lastpage.h"
#include "loadtrial.h"
#include "mainwindow.h"
#include "panellog.h"
#include "pluginloader.h"
#include "robotstate.h"
#include "startguard.h"

#include <QCoreApplication>
#include <QDir>
#include <QTimer>
#include <brisa/languagemanager.h>
#include <brisa/managerhelper.h>
#include <brisa/settingmanager.h>
#include <brisa/thememanager.h>
#include <kest/centerwidget.h>
#include <kest/modulerunner.h>
#include <ostrel/moduleobject.h>
#include <tavik/robotdata.h>

namespace panel
{

namespace
{

constexpr int FrameInterval = 33; // ms: 30 frames a second

// ms. What modules make in their start may need 100 ms until it listens to the links: a link that
// came up earlier would be news that nobody hears.
constexpr int LinkDelay = 150;

void announce(const QString &state)
{
    m(QStringLiteral("panel.state"))->set(nullptr, state, true);
}

/** Where an installation, and the build tree alike, keep plugins: relative to the program. */
QString installed(const char *directory)
{
    return QDir(QCoreApplication::applicationDirPath())
        .absoluteFilePath(QStringLiteral("../") + QLatin1String(directory));
}

} // namespace

PanelSession::PanelSession(const PanelOptions &options, QObject *parent)
    : QObject(parent)
    , m_options(options)
{
}

PanelSession::~PanelSession()
{
    finish();
}

bool PanelSession::start(QString *error)
{
    if (!enterRuntimeDirectory(error))
        return false;
    DesktopTools(m_options.runtimeDirectory).provide();
    announce(QStringLiteral("starting"));
    m(QStringLiteral("panel.version"))->set(nullptr, QStringLiteral(ZEPLET_VERSION), true);
    readSettings();
    m_robot = std::make_unique<RobotState>();
    m_window = std::make_unique<MainWindow>(*m_robot);
    m_data = std::make_unique<tavik::RobotData>(); // it has things to say: the window stands
    loadPlugins();
    startModules();
    if (!m_options.list)
        showWindow();
    announce(QStringLiteral("running"));
    infoLine() << tr("The panel is running.");
    if (m_options.milliseconds)
        QTimer::singleShot(*m_options.milliseconds, qApp, &QCoreApplication::quit);
    return true;
}

/** Logs, the workspace and tools have relative paths: they belong to this directory. */
bool PanelSession::enterRuntimeDirectory(QString *error)
{
    const QString path = m_options.runtimeDirectory;
    if (QDir().mkpath(path) && QDir::setCurrent(path))
        return true;
    *error = tr("The runtime directory %1 can't be used: check its permissions.").arg(path);
    return false;
}

void PanelSession::readSettings()
{
    brisa::ManagerHelper *const host = brisa::ManagerHelper::instance();
    host->settingManager()->load(m_options.settingsFile);
    brisa::ThemeManager *const theme = brisa::ThemeManager::instance();
    theme->setTheme(host->settingManager()->getStr(QStringLiteral("theme"), theme->themeName()));
    theme->applyToApplication();
    const QString language = m_options.language.isEmpty()
        ? host->settingManager()->getStr(QStringLiteral("language"), QStringLiteral("en"))
        : m_options.language;
    brisa::LanguageManager::instance()->setLanguage(language);
}

void PanelSession::loadPlugins()
{
    m_guard = std::make_unique<StartGuard>(m_options.runtimeDirectory);
    for (const QString &name : m_options.retries)
        m_guard->tryAgain(name);
    m_trial = std::make_unique<LoadTrial>(m_options.runtimeDirectory, m_options.loadLimit);
    m_loader = std::make_unique<PluginLoader>(*m_guard, *m_trial);
    if (m_options.ownPlugins)
        m_loader->loadDirectory(installed(ZEPLET_PANEL_PLUGIN_DIR));
    // A panel may be installed without plugins.
    const QString plugins = installed(ZEPLET_PLUGIN_DIR);
    if (m_options.pluginDirectories.isEmpty() && QDir(plugins).exists())
        m_loader->loadDirectory(plugins);
    for (const QString &directory : m_options.pluginDirectories)
        m_loader->loadDirectory(directory);
}

void PanelSession::startModules()
{
    m_runner = std::make_unique<kest::ModuleRunner>();
    connect(m_runner.get(), &kest::ModuleRunner::moduleFaulty, m_loader.get(),
            &PluginLoader::markFaulty);
    connect(m_runner.get(), &kest::ModuleRunner::stepStarted, this, &PanelSession::stepStarted);
    connect(m_runner.get(), &kest::ModuleRunner::stepFinished, this, &PanelSession::stepFinished);
    guardSteps();
    m_runner->start(m_loader->moduleNames());
    m_runner->startFrames(FrameInterval);
    brisa::ManagerHelper *const host = brisa::ManagerHelper::instance();
    host->setReady(true);
    // A list says what becomes of the plugins, and must not reach a robot for that.
    if (m_options.list)
        connect(m_runner.get(), &kest::ModuleRunner::frameFinished, qApp, &QCoreApplication::quit);
    else
        QTimer::singleShot(LinkDelay, this, [host] { host->openLinks(); });
}

/** The guard watches a module's steps up to its first frame: what happens later is no start. */
void PanelSession::guardSteps()
{
    m_guarding = std::make_unique<QObject>();
    const kest::ModuleRunner *const runner = m_runner.get();
    connect(runner, &kest::ModuleRunner::stepStarted, m_guarding.get(),
            [this](const QString &name, const QString &step) { m_guard->enter(name, step); });
    connect(runner, &kest::ModuleRunner::stepFinished, m_guarding.get(),
            [this] { m_guard->leave(); });
    connect(runner, &kest::ModuleRunner::frameFinished, m_guarding.get(),
            [this] { m_guarding.reset(); });
}

void PanelSession::showWindow()
{
    showFirstPage();
    if (m_options.fullScreen)
        m_window->showFullScreen();
    else
        m_window->show();
}

/** What is kept follows from here on: pages that came while the plugins started were nobody's
 *  choice, and a page whose plugin failed this time is shown again once it is mended. */
void PanelSession::showFirstPage()
{
    m_lastPage = std::make_unique<LastPage>(m_options.runtimeDirectory);
    m_lastPage->follow(instantiatedCenterWidget());
    if (m_options.resume && m_window->showPage(m_lastPage->key()))
        return;
    if (!m_options.page.isEmpty() && !m_window->showPage(m_options.page))
        errorLine() << tr("There is no page \"%1\".").arg(m_options.page);
}

bool PanelSession::finish()
{
    if (std::exchange(m_finished, true) || !m_runner)
        return true;
    const bool saved = saveScreenshot();
    m_lastPage.reset(); // pages that go now are nobody's choice
    announce(QStringLiteral("stopping"));
    brisa::ManagerHelper::instance()->setReady(false);
    m_guarding.reset();
    m_runner.reset();
    announce(QStringLiteral("stopped"));
    m_data.reset();
    m_window.reset();
    brisa::ManagerHelper::shutdown();
    infoLine() << tr("The panel has ended.");
    return saved;
}

bool PanelSession::saveScreenshot() const
{
    if (m_options.screenshotFile.isEmpty())
        return true;
    QDir().mkpath(QFileInfo(m_options.screenshotFile).path());
    if (m_window->grab().save(m_options.screenshotFile, "PNG"))
        return true;
    errorLine() << tr("The picture %1 can't be saved.").arg(m_options.screenshotFile);
    return false;
}

MainWindow &PanelSession::window() const
{
    return *m_window;
}

const PluginLoader &PanelSession::loader() const
{
    return *m_loader;
}

kest::ModuleRunner &PanelSession::runner() const
{
    return *m_runner;
}

} // namespace panel
