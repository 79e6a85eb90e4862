#include "panelapplication.h"

#include "panellog.h"

#include <QSocketNotifier>
#include <brisa/managerhelper.h>
#include <csignal>
#include <exception>
#include <fcntl.h>
#include <unistd.h>

namespace panel
{

namespace
{

int signalPipe[2] = {-1, -1};

/** A signal handler may do no more than this. */
void forwardSignal(int)
{
    const char byte = 0;
    [[maybe_unused]] const auto written = ::write(signalPipe[1], &byte, 1);
}

void report(const char *receiver, const QString &problem)
{
    const QString text = PanelApplication::tr("A plugin failed while %1 handled an event: %2")
                             .arg(QString::fromLatin1(receiver), problem);
    errorLine() << text;
    brisa::ManagerHelper::throwLog(nullptr, QStringLiteral("error"), text);
}

} // namespace

PanelApplication::PanelApplication(int &argc, char **argv)
    : QApplication(argc, argv)
{
    setApplicationName(QStringLiteral("zeplet-panel"));
    setApplicationVersion(QStringLiteral(ZEPLET_VERSION));
    quitOnSignals();
}

bool PanelApplication::notify(QObject *receiver, QEvent *event)
{
    // The handler may delete the receiver: what it is has to be known before. The name is static.
    const char *const name = receiver->metaObject()->className();
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception &exception) {
        report(name, QString::fromLocal8Bit(exception.what()));
    } catch (...) {
        report(name, tr("an unknown exception"));
    }
    return false;
}

void PanelApplication::quitOnSignals()
{
    if (pipe2(signalPipe, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    auto *const notifier = new QSocketNotifier(signalPipe[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, &QCoreApplication::quit);
    for (const int number : {SIGTERM, SIGINT, SIGHUP})
        std::signal(number, forwardSignal);
}

} // namespace panel
