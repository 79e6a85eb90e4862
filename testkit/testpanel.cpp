#include "testpanel.h"

#include "parts/buswatch.h"
#include "parts/hoststate.h"
#include "parts/leftovers.h"
#include "parts/readyscenario.h"
#include "parts/simulatorfixture.h"
#include "parts/surroundings.h"

#include <mainwindow.h>
#include <panelsession.h>
#include <pluginloader.h>

#include <QAbstractButton>
#include <QApplication>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QScrollArea>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <brisa/languagemanager.h>
#include <brisa/managerhelper.h>
#include <brisa/tasknetworkmanager.h>
#include <kest/centerwidget.h>
#include <kest/modulerunner.h>
#include <nexo/nexo.h>
#include <ostrel/moduleobject.h>
#include <zeplet/interface/interfacemanager.h>

namespace zeplet
{
namespace test
{

namespace
{

constexpr int startTimeout = 30000; // ms, for each wait
constexpr int pageTimeout = 30000; // ms

bool oneLives = false;

QString stored(const char *key)
{
    return m(QLatin1String(key))->getStr(QString());
}

/** "SIM-0001/test": below the workspace. */
QString currentProject()
{
    return stored("tavik.project.cur_project");
}

QString missingProgram()
{
    for (const char *program : {"rsync", "socat"}) {
        if (QStandardPaths::findExecutable(QLatin1String(program)).isEmpty())
            return QLatin1String(program);
    }
    return {};
}

QString counted(const QJsonObject &counts)
{
    QStringList parts;
    for (auto count = counts.begin(); count != counts.end(); ++count)
        parts += QStringLiteral("%1 (%2)").arg(count.key()).arg(count->toInt());
    return parts.isEmpty() ? QStringLiteral("nothing") : parts.join(QStringLiteral(", "));
}

bool isNamed(const QAbstractButton *button, const QString &name)
{
    return button->objectName() == name || button->text().remove(QLatin1Char('&')) == name;
}

void scrollTo(QWidget *widget)
{
    for (QWidget *above = widget->parentWidget(); above; above = above->parentWidget()) {
        if (auto *const area = qobject_cast<QScrollArea *>(above))
            area->ensureWidgetVisible(widget);
    }
}

} // namespace

class TestPanel::Private
{
public:
    explicit Private(const PanelSetup &panelSetup)
        : setup(panelSetup)
    {
    }
    ~Private();

    bool fail(const QString &reason);
    bool prepare();
    bool copyPlugins();
    bool writeSettings();
    bool startSimulator();
    bool startSession();
    bool checkPlugins();
    bool waitForLinks();
    bool openProject();
    bool waitUntilQuiet();
    void enterStep(const QString &module);
    QStringList plugins() const;
    bool waitForFrames(int frames) const;

    const PanelSetup setup;
    QString problem;
    QStringList banners;
    // In the order in which they need each other; none before start().
    std::unique_ptr<Surroundings> surroundings;
    std::unique_ptr<QTemporaryDir> directory;
    std::unique_ptr<SimulatorFixture> simulator;
    std::unique_ptr<HostState> host;
    std::unique_ptr<BusWatch> bus;
    std::unique_ptr<Leftovers> leftovers;
    std::unique_ptr<panel::PanelSession> session;
    QObject context; ///< of connections that end with this object
};

TestPanel::Private::~Private()
{
    if (!surroundings)
        return;
    if (session)
        session->finish();
    session.reset();
    oneLives = false;
}

bool TestPanel::Private::fail(const QString &reason)
{
    problem = reason;
    return false;
}

bool TestPanel::Private::prepare()
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
    if (!setup.language.isEmpty() && !languages.contains(setup.language))
        return fail(QStringLiteral("There is no language \"%1\"; there are: %2.")
                        .arg(setup.language, languages.join(QStringLiteral(", "))));
    oneLives = true;
    surroundings = std::make_unique<Surroundings>();
    // In memory where that can be had: the disk's own sync would take most of the time.
    const QString memory = QStringLiteral("/dev/shm");
    const QString place = QFileInfo(memory).isWritable() ? memory : QDir::tempPath();
    directory = std::make_unique<QTemporaryDir>(place + QStringLiteral("/zeplet-test-XXXXXX"));
    if (!directory->isValid())
        return fail(QStringLiteral("No directory can be made in %1: %2.")
                        .arg(place, directory->errorString()));
    return copyPlugins();
}

/** Copies, since a library that is open is not opened again: its plugins would not register. */
bool TestPanel::Private::copyPlugins()
{
    const QDir plugins(directory->filePath(QStringLiteral("plugins")));
    plugins.mkpath(QStringLiteral("."));
    for (const QString &file : setup.plugins) {
        if (!QFile::copy(file, plugins.filePath(QFileInfo(file).fileName())))
            return fail(QStringLiteral("The plugin %1 can't be copied: build it first.").arg(file));
    }
    return true;
}

bool TestPanel::Private::startSimulator()
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

bool TestPanel::Private::writeSettings()
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

bool TestPanel::Private::startSession()
{
    host = std::make_unique<HostState>();
    bus = std::make_unique<BusWatch>();
    QObject::connect(brisa::ManagerHelper::instance(), &brisa::ManagerHelper::logThrown, &context,
                     [this](QObject *, const QString &level, const QString &text) {
                         banners += level + QStringLiteral(": ") + text;
                     });
    panel::PanelOptions options;
    options.pluginDirectories = QStringList {directory->filePath(QStringLiteral("plugins"))};
    options.runtimeDirectory = directory->filePath(QStringLiteral("run"));
    options.settingsFile = directory->filePath(QStringLiteral("settings.json"));
    options.ownPlugins = false;
    session = std::make_unique<panel::PanelSession>(options);
    QObject::connect(session.get(), &panel::PanelSession::stepStarted, &context,
                     [this](const QString &module) { enterStep(module); });
    QObject::connect(session.get(), &panel::PanelSession::stepFinished, &context,
                     [this] { bus->setStep(QString()); });
    return session->start(&problem)
        && (QTest::qWaitForWindowExposed(&session->window(), startTimeout)
            || fail(QStringLiteral("The panel's window did not appear.")));
}

/** The first step is the last moment without a plugin. */
void TestPanel::Private::enterStep(const QString &module)
{
    if (!leftovers)
        leftovers = std::make_unique<Leftovers>(*bus, *simulator, &session->window());
    bus->setStep(module);
}

bool TestPanel::Private::checkPlugins()
{
    for (const panel::PluginRecord &record : session->loader().records()) {
        if (record.state != panel::PluginRecord::Running)
            return fail(record.sentence);
    }
    return true;
}

bool TestPanel::Private::waitForLinks()
{
    const auto isConnected = [] {
        return brisa::ManagerHelper::instance()->taskNetworkManager()->isConnect()
            && nexo()->mobj()->getBool(QStringLiteral("connected"), false)
            && !stored("brisa.r.id").isEmpty();
    };
    return QTest::qWaitFor(isConnected, startTimeout)
        || fail(QStringLiteral("The panel found no link to the simulated controller."));
}

bool TestPanel::Private::openProject()
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
bool TestPanel::Private::waitUntilQuiet()
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

QStringList TestPanel::Private::plugins() const
{
    return session ? session->loader().moduleNames() : QStringList();
}

bool TestPanel::Private::waitForFrames(int frames) const
{
    QObject counter;
    QObject::connect(&session->runner(), &kest::ModuleRunner::frameFinished, &counter,
                     [&frames] { --frames; });
    return QTest::qWaitFor([&frames] { return frames <= 0; }, pageTimeout);
}

TestPanel::TestPanel(const PanelSetup &setup)
    : d(std::make_unique<Private>(setup))
{
}

TestPanel::~TestPanel() = default;

bool TestPanel::start()
{
    const bool done = d->prepare() && d->startSimulator() && d->writeSettings() && d->startSession()
        && d->checkPlugins() && d->waitForLinks() && d->openProject() && d->waitUntilQuiet()
        && d->checkPlugins();
    if (d->bus)
        d->bus->clear();
    return done;
}

QString TestPanel::problem() const
{
    return d->problem;
}

QWidget *TestPanel::window() const
{
    return d->session ? &d->session->window() : nullptr;
}

QWidget *TestPanel::page(const QString &plugin)
{
    const QString key = QStringLiteral("zeplet.") + plugin;
    if (!d->session || !d->session->window().showPage(key)) {
        d->fail(QStringLiteral("There is no page of a plugin \"%1\"; there run: %2.")
                    .arg(plugin, d->plugins().join(QStringLiteral(", "))));
        return nullptr;
    }
    // Pages are styled in a frame, and laid out after it.
    if (!d->waitForFrames(2)) {
        d->fail(QStringLiteral("The panel stands still: a plugin holds it up."));
        return nullptr;
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    return instantiatedCenterWidget()->page(key);
}

bool TestPanel::click(QWidget *in, const QString &text)
{
    QStringList there;
    const auto buttons = in ? in->findChildren<QAbstractButton *>() : QList<QAbstractButton *>();
    for (QAbstractButton *const button : buttons) {
        if (!button->isVisible() || !button->isEnabled())
            continue;
        if (isNamed(button, text)) {
            scrollTo(button);
            QTest::mouseClick(button, Qt::LeftButton);
            return true;
        }
        there += button->text().isEmpty() ? button->objectName() : button->text();
    }
    return d->fail(QStringLiteral("No button \"%1\" can be clicked; there can: %2.")
                       .arg(text, there.join(QStringLiteral(", "))));
}

bool TestPanel::waitForEvent(ZepletEventType type, ZepletEvent *event, int timeout)
{
    if (!d->bus)
        return d->fail(QStringLiteral("The panel was not started."));
    if (!QTest::qWaitFor([&] { return d->bus->last(type).has_value(); }, timeout))
        return d->fail(QStringLiteral("No event %1 came within %2 ms; there came: %3.")
                           .arg(eventTypeToString(type))
                           .arg(timeout)
                           .arg(d->bus->summary()));
    if (event)
        *event = *d->bus->last(type);
    return true;
}

void TestPanel::clearEvents()
{
    d->banners.clear();
    if (d->bus)
        d->bus->clear();
    if (d->simulator)
        d->simulator->call([](simulator::Simulator &s) { s.requests().clear(); });
}

bool TestPanel::expectRequest(const QString &command, QJsonValue *arguments, int timeout)
{
    if (!QTest::qWaitFor([&] { return requests(command) > 0; }, timeout)) {
        const QJsonObject counts = d->simulator
            ? d->simulator->call([](simulator::Simulator &s) { return s.requests().counts(); })
            : QJsonObject();
        return d->fail(QStringLiteral("No request %1 came within %2 ms; there came: %3.")
                           .arg(command)
                           .arg(timeout)
                           .arg(counted(counts)));
    }
    if (arguments)
        *arguments = d->simulator->last(command);
    return true;
}

int TestPanel::requests(const QString &command) const
{
    return d->simulator ? d->simulator->count(command) : 0;
}

bool TestPanel::expectBanner(const QString &level, const QString &part, int timeout)
{
    const auto hasCome = [&] {
        return std::any_of(d->banners.cbegin(), d->banners.cend(), [&](const QString &banner) {
            return banner.startsWith(level + QStringLiteral(": ")) && banner.contains(part);
        });
    };
    return QTest::qWaitFor(hasCome, timeout)
        || d->fail(QStringLiteral("No banner \"%1: ...%2...\" came within %3 ms; there came: %4.")
                       .arg(level, part)
                       .arg(timeout)
                       .arg(d->banners.isEmpty() ? QStringLiteral("nothing")
                                                 : d->banners.join(QStringLiteral(" | "))));
}

QStringList TestPanel::banners() const
{
    return d->banners;
}

QJsonValue TestPanel::control(const QString &line, QString *problem)
{
    if (!d->simulator)
        d->fail(QStringLiteral("The panel was not started."));
    else if (const auto reply
             = d->simulator->call([&line](simulator::Simulator &s) { return s.control(line); });
             reply.isDone())
        return reply.result;
    else
        d->fail(reply.reason);
    if (problem)
        *problem = d->problem;
    return QJsonValue(QJsonValue::Undefined);
}

bool TestPanel::injectFault(const QString &fault, const QString &command, const QJsonObject &more)
{
    if (!d->simulator)
        return d->fail(QStringLiteral("The panel was not started."));
    QJsonObject entry = more;
    entry.insert(QStringLiteral("fault"), fault);
    if (!command.isEmpty())
        entry.insert(QStringLiteral("command"), command);
    // The words of a scenario, with its checks.
    const QJsonObject scenario {{"faults", QJsonArray {entry}}};
    const auto read = simulator::Scenario::fromText(QJsonDocument(scenario).toJson(), &d->problem);
    if (!read)
        return false;
    Surroundings::expectFaults();
    d->simulator->call(
        [&read](simulator::Simulator &s) { s.faults().add(read->faults.constFirst()); });
    return true;
}

void TestPanel::clearFaults()
{
    if (d->simulator)
        d->simulator->call([](simulator::Simulator &s) { s.faults().clear(); });
}

QString TestPanel::panelFile(const QString &name) const
{
    const QString project = currentProject();
    return d->session && !project.isEmpty()
        ? d->directory->filePath(QStringLiteral("workspace/%1/%2").arg(project, name))
        : QString();
}

QString TestPanel::controllerFile(const QString &name) const
{
    const QString project = currentProject().section(QLatin1Char('/'), 1);
    return d->session && !project.isEmpty()
        ? d->directory->filePath(QStringLiteral("controller/hmi/%1/%2").arg(project, name))
        : QString();
}

QStringList TestPanel::detach(const QString &plugin)
{
    const QStringList plugins = d->plugins();
    if (!d->session || !d->session->runner().module(plugin)) {
        d->fail(QStringLiteral("No plugin \"%1\" runs; there run: %2.")
                    .arg(plugin, plugins.join(QStringLiteral(", "))));
        return {d->problem};
    }
    return d->leftovers->detach(d->session->runner(), plugin, plugins);
}

} // namespace test
} // namespace zeplet
