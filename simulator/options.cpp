#include "options.h"

#include "profile.h"

#include <QCommandLineParser>

namespace simulator
{

namespace
{
std::optional<quint16> portFrom(const QString &text, QString *error)
{
    bool isNumber = false;
    const quint16 port = text.toUShort(&isNumber);
    if (isNumber)
        return port;
    *error = QStringLiteral("'%1' is no port (0 to 65535; 0: any free one)").arg(text);
    return std::nullopt;
}
} // namespace

std::optional<Options> Options::fromArguments(const QStringList &arguments, QString *error)
{
    const QCommandLineOption port(QStringLiteral("port"), QStringLiteral("Port of the controller."),
                                  QStringLiteral("port"), QStringLiteral("9011"));
    const QCommandLineOption hubPort(QStringLiteral("hub-port"),
                                     QStringLiteral("Port of the service hub."),
                                     QStringLiteral("port"), QStringLiteral("9012"));
    const QCommandLineOption scenario(QStringLiteral("scenario"),
                                      QStringLiteral("Start with the state of this JSON file."),
                                      QStringLiteral("file"));
    const QCommandLineOption state(
        QStringLiteral("state"),
        QStringLiteral("Keep what changes in this file, and start with what it keeps."),
        QStringLiteral("file"));
    const QCommandLineOption files(
        QStringLiteral("files"),
        QStringLiteral("Serve the controller's files, which are in this directory, with rsync."),
        QStringLiteral("directory"));
    const QCommandLineOption rsyncPort(
        QStringLiteral("rsync-port"),
        QStringLiteral("Port of the rsync daemon (default: 873, or any free one)."),
        QStringLiteral("port"));
    const QCommandLineOption profile(QStringLiteral("profile"),
                                     QStringLiteral("Play this version of a controller: %1.")
                                         .arg(Profile::names().join(QStringLiteral(", "))),
                                     QStringLiteral("version"));
    const QCommandLineOption trace(
        QStringLiteral("trace"),
        QStringLiteral("Print each frame that arrives to standard error."));
    const QCommandLineOption untilEof(QStringLiteral("until-eof"),
                                      QStringLiteral("End when standard input is closed."));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Plays a robot controller with its service hub on loopback.\n"
        "When all listen it prints \"ready controller=PORT hub=PORT rsync=PORT\" (rsync=0 without\n"
        "files); then it takes control "
        "commands from standard input, one per line, and answers each with a line of JSON."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOptions({port, hubPort, scenario, state, profile, files, rsyncPort, trace, untilEof});
    if (!parser.parse(arguments)) {
        *error = parser.errorText();
        return std::nullopt;
    }
    if (parser.isSet(QStringLiteral("help")) || parser.isSet(QStringLiteral("help-all")))
        parser.showHelp();
    if (parser.isSet(QStringLiteral("version")))
        parser.showVersion();
    if (!parser.positionalArguments().isEmpty()) {
        *error
            = QStringLiteral("unexpected argument '%1'").arg(parser.positionalArguments().first());
        return std::nullopt;
    }
    const auto controllerPort = portFrom(parser.value(port), error);
    const auto otherPort = portFrom(parser.value(hubPort), error);
    if (!controllerPort || !otherPort)
        return std::nullopt;
    FileOptions fileOptions {parser.value(files), std::nullopt};
    if (parser.isSet(rsyncPort) && !(fileOptions.port = portFrom(parser.value(rsyncPort), error)))
        return std::nullopt;
    if (parser.isSet(rsyncPort) && fileOptions.directory.isEmpty()) {
        *error = QStringLiteral("--rsync-port goes with --files");
        return std::nullopt;
    }
    if (parser.isSet(profile) && !Profile::names().contains(parser.value(profile))) {
        *error = QStringLiteral("'%1' is no profile (known: %2)")
                     .arg(parser.value(profile), Profile::names().join(QStringLiteral(", ")));
        return std::nullopt;
    }
    return Options {
        *controllerPort,       *otherPort,  parser.value(scenario), parser.value(state),
        parser.value(profile), fileOptions, parser.isSet(trace),    parser.isSet(untilEof)};
}

} // namespace simulator
