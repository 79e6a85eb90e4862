#include "console.h"
#include "options.h"
#include "simulator.h"
#include "statefile.h"
#include "terminationsignals.h"

#include <QCoreApplication>
#include <QTime>
#include <csignal>

namespace
{
constexpr int kFailed = 1;
constexpr int kWrongUsage = 2;

using simulator::Console;

void traceFrame(const QString &endpoint, const QString &text)
{
    Console::printError(
        QStringLiteral("%1 %2 received %3")
            .arg(QTime::currentTime().toString(QStringLiteral("HH:mm:ss.zzz")), endpoint, text));
}

/** What is kept, over the scenario. */
simulator::Scenario restored(const simulator::Options &options, const simulator::Scenario &scenario)
{
    if (options.state.isEmpty())
        return scenario;
    QString problem;
    simulator::Scenario start = simulator::StateFile::restore(scenario, options.state, &problem);
    if (!problem.isEmpty())
        Console::printError(problem);
    if (!options.profile.isEmpty())
        start.robot.version = options.profile;
    return start;
}

int run(const simulator::Options &options, const simulator::Scenario &scenario)
{
    simulator::Simulator simulated(restored(options, scenario));
    QObject::connect(&simulated, &simulator::Simulator::problem, &Console::printError);
    if (options.trace)
        QObject::connect(&simulated, &simulator::Simulator::received, &traceFrame);

    const simulator::TerminationSignals terminationSignals;
    QObject::connect(&terminationSignals, &simulator::TerminationSignals::received, qApp,
                     &QCoreApplication::quit);
    const Console console(simulated);
    QObject::connect(&console, &Console::quitRequested, qApp, &QCoreApplication::quit,
                     Qt::QueuedConnection);
    if (options.untilEof)
        QObject::connect(&console, &Console::ended, qApp, &QCoreApplication::quit,
                         Qt::QueuedConnection);

    QString error;
    if (!simulated.start(options.port, options.hubPort, &error)) {
        Console::printError(error);
        return kFailed;
    }
    std::optional<simulator::StateFile> kept;
    if (!options.state.isEmpty()) {
        kept.emplace(simulated, scenario, options.state);
        if (!kept->write(&error)) {
            Console::printError(error);
            return kFailed;
        }
        QObject::connect(&*kept, &simulator::StateFile::problem, &Console::printError);
    }
    Console::print(QStringLiteral("ready controller=%1 hub=%2 rsync=%3")
                       .arg(simulated.controllerPort())
                       .arg(simulated.hubPort())
                       .arg(simulated.rsyncPort())
                       .toUtf8());
    return QCoreApplication::exec();
}
} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("zeplet-simulator"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ZEPLET_VERSION));
    // A reader that went away, or a shell that put this into the background, must not end or stop
    // it.
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGTTIN, SIG_IGN);

    QString error;
    const auto options = simulator::Options::fromArguments(QCoreApplication::arguments(), &error);
    if (!options) {
        Console::printError(error + QStringLiteral(" (--help lists the options)"));
        return kWrongUsage;
    }
    auto scenario = options->scenario.isEmpty()
        ? simulator::Scenario()
        : simulator::Scenario::fromFile(options->scenario, &error);
    if (!scenario) {
        Console::printError(error);
        return kFailed;
    }
    scenario->files = options->files;
    if (!options->profile.isEmpty())
        scenario->robot.version = options->profile;
    return run(*options, *scenario);
}
