#include "panelapplication.h"
#include "paneloptions.h"
#include "panelsession.h"

#include <cstdio>

int main(int argc, char *argv[])
{
    panel::PanelApplication application(argc, argv);
    QString text;
    int exitCode = 0;
    const auto options = panel::PanelOptions::parse(application.arguments(), &text, &exitCode);
    if (!options) {
        std::fprintf(exitCode ? stderr : stdout, "%s\n", qPrintable(text.trimmed()));
        return exitCode;
    }
    panel::PanelSession session(*options);
    if (!session.start(&text)) {
        std::fprintf(stderr, "%s\n", qPrintable(text));
        return 1;
    }
    exitCode = application.exec();
    return session.finish() ? exitCode : 1;
}
