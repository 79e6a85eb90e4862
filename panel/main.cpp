#include "panelapplication.h"
#include "paneloptions.h"
#include "panelsession.h"
#include "pluginlist.h"
#include "pluginloader.h"

#include <cstdio>

namespace
{

/** Until the end; the exit code. */
int run(panel::PanelApplication *application, const panel::PanelOptions &options)
{
    const auto list = options.list ? std::make_unique<panel::PluginList>() : nullptr;
    panel::PanelSession session(options);
    QString problem;
    if (!session.start(&problem)) {
        std::fprintf(stderr, "%s\n", qPrintable(problem));
        return 1;
    }
    const int exitCode = application->exec();
    const bool listed = !list || list->print(session.loader().records());
    return session.finish() && listed ? exitCode : 1;
}

} // namespace

int main(int argc, char *argv[])
{
    if (!panel::PanelOptions::needDisplay(argc, argv))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    panel::PanelApplication application(argc, argv);
    QString text;
    int exitCode = 0;
    const auto options = panel::PanelOptions::parse(application.arguments(), &text, &exitCode);
    if (options)
        return run(&application, *options);
    std::fprintf(exitCode ? stderr : stdout, "%s\n", qPrintable(text.trimmed()));
    return exitCode;
}
