#include "rsyncdaemon.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QRegularExpression>
#include <algorithm>
#include <array>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace simulator
{

namespace
{
constexpr int kStartLimitMs = 5000;
constexpr int kPollMs = 5;

/** The "socket:[inode]" that listens on a port of loopback; "" where none does. */
QString listeningSocket(quint16 port)
{
    QFile table(QStringLiteral("/proc/net/tcp"));
    if (!table.open(QIODevice::ReadOnly))
        return {};
    const QString local = QStringLiteral("0100007F:")
        + QString::number(port, 16).toUpper().rightJustified(4, QLatin1Char('0'));
    const QString listening = QStringLiteral("0A");
    const QStringList rows = QString::fromLatin1(table.readAll()).split(QLatin1Char('\n'));
    for (const QString &row : rows) {
        const QStringList columns = row.simplified().split(QLatin1Char(' '));
        if (columns.size() > 9 && columns.at(1) == local && columns.at(3) == listening)
            return QStringLiteral("socket:[%1]").arg(columns.at(9));
    }
    return {};
}

/** Whether it is this process that listens, and not another one that was faster. */
bool listens(qint64 pid, quint16 port)
{
    const QString socket = listeningSocket(port);
    const QDir descriptors(QStringLiteral("/proc/%1/fd").arg(pid));
    const QStringList names
        = descriptors.entryList(QDir::System | QDir::Files | QDir::NoDotAndDotDot);
    return !socket.isEmpty() && std::any_of(names.cbegin(), names.cend(), [&](const QString &name) {
        const QByteArray path = QFile::encodeName(descriptors.filePath(name));
        std::array<char, 64> target {};
        const ssize_t size = ::readlink(path.constData(), target.data(), target.size());
        return size > 0 && socket == QString::fromLatin1(target.data(), int(size));
    });
}
} // namespace

/** Between fork and exec: only async-signal-safe calls may stand here. SIGKILL, because a transfer
 *  that is told to end goes on reading for half a minute. */
void RsyncDaemon::Process::setupChildProcess()
{
    ::setpgid(0, 0);
    ::fcntl(STDIN_FILENO, F_SETOWN, -::getpid());
    ::fcntl(STDIN_FILENO, F_SETSIG, SIGKILL);
    ::fcntl(STDIN_FILENO, F_SETFL, O_ASYNC);
}

RsyncDaemon::RsyncDaemon(QObject *parent)
    : QObject(parent)
{
    m_process.setStandardOutputFile(QProcess::nullDevice());
    connect(&m_process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this,
            [this] {
                if (m_serving)
                    emit died(lastWords());
                m_serving = false;
            });
}

RsyncDaemon::~RsyncDaemon()
{
    stop();
}

bool RsyncDaemon::start(const QString &configFile, quint16 port, QString *error)
{
    m_process.start(QStringLiteral("rsync"),
                    {QStringLiteral("--daemon"), QStringLiteral("--no-detach"),
                     QStringLiteral("--address=127.0.0.1"), QStringLiteral("--port=%1").arg(port),
                     QStringLiteral("--config=") + configFile});
    if (!m_process.waitForStarted(kStartLimitMs)) {
        *error = QStringLiteral("rsync: ") + m_process.errorString();
        return false;
    }
    m_serving = waitUntilListening(port, error);
    if (!m_serving)
        stop();
    return m_serving;
}

bool RsyncDaemon::waitUntilListening(quint16 port, QString *error)
{
    QElapsedTimer waited;
    waited.start();
    while (!m_process.waitForFinished(kPollMs) && isRunning()) {
        if (listens(m_process.processId(), port))
            return true;
        if (waited.elapsed() > kStartLimitMs) {
            *error = QStringLiteral("rsync does not listen on port %1").arg(port);
            return false;
        }
    }
    *error = lastWords();
    return false;
}

void RsyncDaemon::stop()
{
    m_serving = false;
    if (!isRunning())
        return;
    ::kill(-static_cast<pid_t>(m_process.processId()), SIGKILL);
    m_process.waitForFinished();
}

QString RsyncDaemon::lastWords()
{
    const QString text = QString::fromLocal8Bit(m_process.readAllStandardError()).simplified();
    return QStringLiteral("rsync ended with %1%2")
        .arg(QString::number(m_process.exitCode()),
             text.isEmpty() ? QString() : QStringLiteral(": ") + text);
}

} // namespace simulator
