#pragma once

#include <QString>
#include <QStringList>
#include <optional>

namespace panel
{

/** What the command line asks for. All paths are absolute: the panel works in its runtime
 * directory. */
struct PanelOptions {
    bool ownPlugins = true; ///< load the panel's own, too
    QStringList pluginDirectories; ///< empty: the installation's
    QString runtimeDirectory;
    QString settingsFile;
    QString screenshotFile; ///< empty: none
    QString page; ///< key of the centre page to show first; empty: the first page
    QString language; ///< code; empty: the setting "language"
    QStringList retries; ///< plugins that were left out and shall take part again
    std::optional<int> milliseconds; ///< how long to run; nothing: until it is closed
    int loadLimit = 10000; ///< ms that a library may take to open
    bool fullScreen = false;
    bool list = false; ///< shows nothing, but prints what became of each plugin library, and ends
    bool resume = false; ///< shows the page that was shown last, and the one of --page failing that

    /** False where the command line asks for text alone: for what works without a display. To be
     *  asked before there is an application, which needs one. */
    static bool needDisplay(int argc, char **argv);

    /**
     * Reads the command line. Where it is to end the program at once (--help, --version, an error),
     * returns nothing and sets text to what is to be printed and exitCode to 0 or 2.
     */
    static std::optional<PanelOptions> parse(const QStringList &arguments, QString *text,
                                             int *exitCode);
};

} // namespace panel
