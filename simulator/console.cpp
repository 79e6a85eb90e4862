#include "console.h"

#include "jsontext.h"
#include "simulator.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <unistd.h>

namespace simulator
{

namespace
{
constexpr int kMaxLine = 16 * 1024 * 1024;

QByteArray textOf(const Reply &reply)
{
    QJsonObject object {{QStringLiteral("ok"), reply.isDone()}};
    if (reply.isDone())
        object.insert(QStringLiteral("result"),
                      reply.result.isUndefined() ? QJsonValue() : reply.result);
    else
        object.insert(QStringLiteral("error"), reply.reason);
    return jsonToText(object);
}
} // namespace

Console::Console(Simulator &simulator, QObject *parent)
    : QObject(parent)
    , m_simulator(simulator)
    , m_notifier(STDIN_FILENO, QSocketNotifier::Read)
{
    connect(&m_notifier, &QSocketNotifier::activated, this, &Console::read);
}

void Console::print(const QByteArray &line)
{
    std::fwrite(line.constData(), 1, static_cast<size_t>(line.size()), stdout);
    std::fputc('\n', stdout);
    std::fflush(stdout);
}

void Console::printError(const QString &line)
{
    std::fprintf(stderr, "zeplet-simulator: %s\n", line.toUtf8().constData());
}

void Console::read()
{
    std::array<char, 65536> chunk {};
    const ssize_t size = ::read(STDIN_FILENO, chunk.data(), chunk.size());
    if (size < 0 && (errno == EINTR || errno == EAGAIN))
        return;
    if (size <= 0) {
        m_notifier.setEnabled(false);
        emit ended();
        return;
    }
    m_buffer.append(chunk.data(), static_cast<int>(size));
    int end = 0;
    while ((end = m_buffer.indexOf('\n')) >= 0) {
        const QString line = QString::fromUtf8(m_buffer.left(end)).trimmed();
        m_buffer.remove(0, end + 1);
        carryOut(line);
    }
    if (m_buffer.size() > kMaxLine) {
        printError(QStringLiteral("a control line is longer than %1 bytes").arg(kMaxLine));
        m_buffer.clear();
    }
}

void Console::carryOut(const QString &line)
{
    if (line.isEmpty())
        return;
    const bool quits = line == QLatin1String("quit");
    print(textOf(quits ? Reply {} : m_simulator.control(line)));
    if (quits)
        emit quitRequested();
}

} // namespace simulator
