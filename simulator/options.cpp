#include "options.h"

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
    const QCommandLineOption trace(
        QStringLiteral("trace"),
        QStringLiteral("Print each frame that arrives to standard error."));
    const QCommandLineOption untilEof(QStringLiteral("until-eof"),
                                      QStringLiteral("End when standard input is closed."));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Plays a robot controller with its service hub on loopback.\n"
        "When both listen it prints \"ready controller=PORT hub=PORT\"; then it takes control\n"
        "commands from standard input, one per line, and answers each with a line of JSON."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOptions({port, hubPort, scenario, trace, untilEof});
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
    return Options {*controllerPort, *otherPort, parser.value(scenario), parser.isSet(trace),
                    parser.isSet(untilEof)};
}

} // namespace simulator
