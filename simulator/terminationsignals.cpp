#include "terminationsignals.h"

#include <array>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace simulator
{

namespace
{
std::array<int, 2> pipeEnds {-1, -1};

/** Only async-signal-safe calls may stand here. */
void writeToPipe(int)
{
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = ::write(pipeEnds[1], &byte, 1);
}
} // namespace

TerminationSignals::TerminationSignals(QObject *parent)
    : QObject(parent)
{
    if (::pipe2(pipeEnds.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    m_notifier = std::make_unique<QSocketNotifier>(pipeEnds[0], QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, [this] {
        m_notifier->setEnabled(false);
        emit received();
    });
    std::signal(SIGTERM, writeToPipe);
    std::signal(SIGINT, writeToPipe);
}

} // namespace simulator
