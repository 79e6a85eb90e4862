#include "panelsite.h"

#include "readyscenario.h"

#include <mainwindow.h>
#include <panelsession.h>
#include <pluginloader.h>

#include <QApplication>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>
#include <QTest>
#include <brisa/languagemanager.h>
#include <brisa/managerhelper.h>
#include <brisa/tasknetworkmanager.h>
#include <kest/modulerunner.h>
#include <nexo/nexo.h>
#include <ostrel/moduleobject.h>
#include <sys/statvfs.h>
#include <zeplet/interface/interfacemanager.h>

namespace zeplet
{
namespace test
{

namespace
{

constexpr int startTimeout = 30000; // ms, for each wait
constexpr int frameTimeout = 30000; // ms

bool oneLives = false;

QString missingProgram()
{
    for (const char *program : {"rsync", "socat"}) {
        if (QStandardPaths::findExecutable(QLatin1String(program)).isEmpty())
            return QLatin1String(program);
    }
    return {};
}

/** In memory where that can be had, since the disk's own sync would take most of the time: there
 *  must be room, and libraries and programs must run from there. */
QString temporaryPlace()
{
    constexpr const char *memory = "/dev/shm";
    constexpr quint64 room = 256 << 20;
    struct statvfs system = {};
    const bool isFit = statvfs(memory, &system) == 0 && !(system.f_flag & ST_NOEXEC)
        && quint64(system.f_bavail) * system.f_frsize >= room && QFileInfo(memory).isWritable();
    return isFit ? QString::fromLatin1(memory) : QDir::tempPath();
}

} // namespace

PanelSite::PanelSite(const PanelSetup &panelSetup)
    : setup(panelSetup)
{
}

PanelSite::~PanelSite()
{
    if (!surroundings)
        return;
    if (session)
        session->finish();
    session.reset();
    oneLives = false;
}

bool PanelSite::start()
{
    return checkConditions() && makeDirectory() && copyPlugins() && startSimulator()
        && writeSettings() && startSession() && checkPlugins() && waitForLinks() && openProject()
        && waitUntilQuiet() && checkPlugins();
}

bool PanelSite::fail(const QString &reason)
{
    problem = reason;
    return false;
}

bool PanelSite::checkConditions()
{
    if (surroundings)
        return fail(QStringLiteral("This panel was started before: make another one."));
    if (!qobject_cast<QApplication *>(QCoreApplication::instance()))
        return fail(QStringLiteral("There is no QApplication: use QTEST_MAIN()."));
    if (oneLives)
        return fail(QStringLiteral("Another panel lives: destroy it first."));
    const QString missing = missingProgram();
    if (!missing.isEmpty())
        return fail(QStringLiteral("%1 is not installed: install the package %1.").arg(missing));
    const QStringList languages = brisa::LanguageManager::languages();
    return setup.language.isEmpty() || languages.contains(setup.language)
        || fail(QStringLiteral("There is no language \"%1\"; there are: %2.")
                    .arg(setup.language, languages.join(QStringLiteral(", "))));
}

bool PanelSite::makeDirectory()
{
    oneLives = true;
    surroundings = std::make_unique<Surroundings>();
    const QString place = temporaryPlace();
    directory = std::make_unique<QTemporaryDir>(place + QStringLiteral("/zeplet-test-XXXXXX"));
    return directory->isValid()
        || fail(QStringLiteral("No directory can be made in %1: %2.")
                    .arg(place, directory->errorString()));
}

/** Copies, since a library that is open is not opened again: its plugins would not register. */
bool PanelSite::copyPlugins()
{
    const QDir plugins(directory->filePath(QStringLiteral("plugins")));
    plugins.mkpath(QStringLiteral("."));
    for (const QString &file : setup.plugins) {
        if (!QFile::copy(file, plugins.filePath(QFileInfo(file).fileName())))
            return fail(QStringLiteral("The plugin %1 can't be copied: build it first.").arg(file));
    }
    return true;
}

bool PanelSite::startSimulator()
{
    const QByteArray text = setup.scenario.isEmpty() ? QByteArray(readyScenario) : setup.scenario;
    auto scenario = simulator::Scenario::fromText(text, &problem);
    if (!scenario)
        return false;
    scenario->files = {directory->filePath(QStringLiteral("controller")), 0};
    simulator = std::make_unique<SimulatorFixture>(*scenario);
    surroundings->setVariable(
        "RSYNC_CONNECT_PROG",
        QStringLiteral("socat - TCP:127.0.0.1:%1").arg(simulator->rsyncPort()).toUtf8());
    return true;
}

bool PanelSite::writeSettings()
{
    QJsonObject settings {{"server.ip", "127.0.0.1"},
                          {"server.port", QString::number(simulator->controllerPort())},
                          {"server.hub_port", QString::number(simulator->hubPort())},
                          {"workspace", directory->filePath(QStringLiteral("workspace"))}};
    settings.insert(QStringLiteral("language"),
                    setup.language.isEmpty() ? QStringLiteral("en") : setup.language);
    const QByteArray text = QJsonDocument(settings).toJson();
    QFile file(directory->filePath(QStringLiteral("settings.json")));
    return (file.open(QIODevice::WriteOnly) && file.write(text) == text.size())
        || fail(
               QStringLiteral("%1 can't be written: %2.").arg(file.fileName(), file.errorString()));
}

bool PanelSite::startSession()
{
    host = std::make_unique<HostState>();
    bus = std::make_unique<BusWatch>();
    QObject::connect(brisa::ManagerHelper::instance(), &brisa::ManagerHelper::logThrown, &m_context,
                     [this](QObject *, const QString &level, const QString &text) {
                         banners += level + QStringLiteral(": ") + text;
                     });
    panel::PanelOptions options;
    options.pluginDirectories = QStringList {directory->filePath(QStringLiteral("plugins"))};
    options.runtimeDirectory = directory->filePath(QStringLiteral("run"));
    options.settingsFile = directory->filePath(QStringLiteral("settings.json"));
    options.ownPlugins = false;
    session = std::make_unique<panel::PanelSession>(options);
    QObject::connect(session.get(), &panel::PanelSession::stepStarted, &m_context,
                     [this](const QString &module) { enterStep(module); });
    QObject::connect(session.get(), &panel::PanelSession::stepFinished, &m_context,
                     [this] { bus->setStep(QString()); });
    return session->start(&problem)
        && (QTest::qWaitForWindowExposed(&session->window(), startTimeout)
            || fail(QStringLiteral("The panel's window did not appear.")));
}

/** The first step is the last moment without a plugin. */
void PanelSite::enterStep(const QString &module)
{
    if (!leftovers)
        leftovers = std::make_unique<Leftovers>(*bus, *simulator, &session->window());
    bus->setStep(module);
}

bool PanelSite::checkPlugins()
{
    for (const panel::PluginRecord &record : session->loader().records()) {
        if (record.state != panel::PluginRecord::Running)
            return fail(record.sentence);
    }
    return true;
}

bool PanelSite::waitForLinks()
{
    const auto isConnected = [] {
        return brisa::ManagerHelper::instance()->taskNetworkManager()->isConnect()
            && nexo()->mobj()->getBool(QStringLiteral("connected"), false)
            && !m(QStringLiteral("brisa.r.id"))->getStr(QString()).isEmpty();
    };
    return QTest::qWaitFor(isConnected, startTimeout)
        || fail(QStringLiteral("The panel found no link to the simulated controller."));
}

bool PanelSite::openProject()
{
    if (setup.project.isEmpty())
        return true;
    const int result = zepletInterface()->createProject(setup.project, QString(), true);
    if (result != 0)
        return fail(QStringLiteral("The project \"%1\" can't be made (%2).")
                        .arg(setup.project, QString::number(result)));
    const auto isOpen = [this] {
        return simulator->call([](simulator::Simulator &s) { return s.projects().current(); })
            == setup.project;
    };
    return QTest::qWaitFor(isOpen, startTimeout)
        || fail(QStringLiteral("The controller did not open the project."));
}

/** Until the panel has read all that it mirrors: each answer may bring another request, and an
 *  answer comes after all that was sent before it. */
bool PanelSite::waitUntilQuiet()
{
    const QString probe = QStringLiteral("system.state.get");
    int before = -1;
    const auto isQuiet = [&] {
        zepletInterface()->rcExecRequestFullCommand(probe, QJsonValue());
        QJsonObject counts
            = simulator->call([](simulator::Simulator &s) { return s.requests().counts(); });
        counts.remove(probe);
        int now = 0;
        for (const QJsonValue &count : qAsConst(counts))
            now += count.toInt();
        return now == std::exchange(before, now);
    };
    return QTest::qWaitFor(isQuiet, startTimeout)
        || fail(QStringLiteral("The plugins send requests to the controller without end."));
}

QStringList PanelSite::plugins() const
{
    return session ? session->loader().moduleNames() : QStringList();
}

bool PanelSite::waitForFrames(int frames) const
{
    QObject counter;
    QObject::connect(&session->runner(), &kest::ModuleRunner::frameFinished, &counter,
                     [&frames] { --frames; });
    return QTest::qWaitFor([&frames] { return frames <= 0; }, frameTimeout);
}

} // namespace test
} // namespace zeplet
