#include "paneloptions.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QSet>
#include <QStandardPaths>
#include <algorithm>
#include <brisa/languagemanager.h>
#include <cmath>

namespace panel
{

namespace
{

constexpr double longestRun = 7 * 24 * 3600; // seconds

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(panel)
};

void addOptions(QCommandLineParser *parser)
{
    parser->setApplicationDescription(Texts::tr("The operator panel."));
    parser->addHelpOption();
    parser->addVersionOption();
    parser->addOptions({
        {"plugins", Texts::tr("Loads the plugins of DIR; may be given several times."), "DIR"},
        {"runtime", Texts::tr("Works in DIR: its log, workspace and tools."), "DIR"},
        {"settings", Texts::tr("Reads and keeps the settings in FILE."), "FILE"},
        {"for", Texts::tr("Ends after SECONDS."), "SECONDS"},
        {"screenshot", Texts::tr("Saves the window as PNG to FILE just before the end."), "FILE"},
        {"page", Texts::tr("Shows the page KEY of the centre area first."), "KEY"},
        {"language",
         Texts::tr("Speaks CODE: %1.").arg(brisa::LanguageManager::languages().join(", ")), "CODE"},
        {"resume", Texts::tr("Shows the page that was shown last, else that of --page.")},
        {"fullscreen", Texts::tr("Covers the whole screen.")},
        {"retry", Texts::tr("Lets the plugin NAME, which took the panel down, take part again."),
         "NAME"},
        {"list",
         Texts::tr("Shows nothing, starts the plugins without a controller, prints what became of "
                   "each library (NAME, STATE, FILE, SENTENCE with tabs between) and ends. A "
                   "plugin that takes it down here is named by the next --list.")},
    });
}

QString absolute(const QString &path)
{
    return path.isEmpty() ? path : QDir::cleanPath(QDir::current().absoluteFilePath(path));
}

/** Nothing for what is no positive number of seconds. */
std::optional<int> milliseconds(const QString &seconds)
{
    bool ok = false;
    const double number = seconds.toDouble(&ok);
    if (!ok || !(number > 0) || number > longestRun)
        return std::nullopt;
    return static_cast<int>(std::ceil(number * 1000));
}

/** What was given, but for the duration, which may be wrong. */
PanelOptions optionsOf(const QCommandLineParser &parser)
{
    PanelOptions options;
    for (const QString &directory : parser.values("plugins"))
        options.pluginDirectories += absolute(directory);
    options.runtimeDirectory = parser.isSet("runtime")
        ? absolute(parser.value("runtime"))
        : QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
    options.settingsFile = parser.isSet("settings")
        ? absolute(parser.value("settings"))
        : QDir(options.runtimeDirectory).filePath(QStringLiteral("settings.json"));
    options.screenshotFile = absolute(parser.value("screenshot"));
    options.page = parser.value("page");
    options.language = parser.value("language");
    options.retries = parser.values("retry");
    options.fullScreen = parser.isSet("fullscreen");
    options.list = parser.isSet("list");
    options.resume = parser.isSet("resume");
    return options;
}

} // namespace

bool PanelOptions::needDisplay(int argc, char **argv)
{
    static const QSet<QByteArray> texts {"--list", "--help", "-h", "--version", "-v"};
    return std::none_of(argv, argv + argc, [](const char *word) { return texts.contains(word); });
}

std::optional<PanelOptions> PanelOptions::parse(const QStringList &arguments, QString *text,
                                                int *exitCode)
{
    QCommandLineParser parser;
    addOptions(&parser);
    const bool parsed = parser.parse(arguments);
    *exitCode = 0;
    if (parser.isSet("help") || parser.isSet("version")) {
        *text = parser.isSet("help")
            ? parser.helpText()
            : QStringLiteral("zeplet-panel %1\n").arg(QCoreApplication::applicationVersion());
        return std::nullopt;
    }
    *exitCode = 2;
    if (!parsed || !parser.positionalArguments().isEmpty()) {
        *text = parsed
            ? Texts::tr("Unknown argument \"%1\".").arg(parser.positionalArguments().first())
            : parser.errorText();
        return std::nullopt;
    }
    const std::optional<int> duration = ::panel::milliseconds(parser.value("for"));
    if (parser.isSet("for") && !duration) {
        *text = Texts::tr("--for needs a number of seconds, not \"%1\".").arg(parser.value("for"));
        return std::nullopt;
    }
    const QStringList languages = brisa::LanguageManager::languages();
    if (parser.isSet("language") && !languages.contains(parser.value("language"))) {
        *text = Texts::tr("--language needs one of %1, not \"%2\".")
                    .arg(languages.join(", "), parser.value("language"));
        return std::nullopt;
    }
    PanelOptions options = optionsOf(parser);
    options.milliseconds = duration;
    return options;
}

} // namespace panel
