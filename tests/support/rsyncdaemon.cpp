#include "rsyncdaemon.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QTcpServer>
#include <QTcpSocket>
#include <csignal>
#include <sys/prctl.h>
#include <unistd.h>

namespace
{

/** Goes when this program goes, however it ends. */
class Child : public QProcess
{
protected:
    void setupChildProcess() override { ::prctl(PR_SET_PDEATHSIG, SIGKILL); }
};

quint16 freePort()
{
    QTcpServer probe;
    probe.listen(QHostAddress::LocalHost);
    return probe.serverPort();
}

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()
        || !file.setPermissions(QFile::ReadOwner | QFile::WriteOwner))
        qFatal("%s can't be written", qPrintable(path));
}

} // namespace

RsyncDaemon::RsyncDaemon(const QByteArray &password)
{
    QDir(m_directory.path()).mkpath(QStringLiteral("hmi"));
    writeConfiguration(password);
    start();
}

RsyncDaemon::~RsyncDaemon()
{
    stop();
    qunsetenv("RSYNC_CONNECT_PROG");
}

QString RsyncDaemon::path(const QString &below) const
{
    return m_directory.filePath(QStringLiteral("hmi/") + below);
}

QByteArray RsyncDaemon::read(const QString &below) const
{
    QFile file(path(below));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void RsyncDaemon::start()
{
    // Another program may take the port before rsync does.
    for (int attempt = 0; attempt < 5; ++attempt) {
        m_port = freePort();
        if (listen()) {
            qputenv("RSYNC_CONNECT_PROG", "socat - TCP:127.0.0.1:" + QByteArray::number(m_port));
            return;
        }
    }
    qFatal("no rsync daemon: are rsync and socat installed?");
}

void RsyncDaemon::stop()
{
    m_process->kill();
    m_process->waitForFinished();
}

void RsyncDaemon::writeConfiguration(const QByteArray &password) const
{
    const QString secrets = m_directory.filePath(QStringLiteral("secrets"));
    write(secrets, "brisa:" + password + '\n');
    QByteArray text = "use chroot = no\nlog file = "
        + m_directory.filePath(QStringLiteral("log")).toUtf8() + "\n[hmi]\nread only = no\npath = "
        + path().toUtf8() + "\nauth users = brisa\nsecrets file = " + secrets.toUtf8() + '\n';
    if (::geteuid() == 0) // otherwise it would write as nobody
        text += "uid = 0\ngid = 0\n";
    write(m_directory.filePath(QStringLiteral("config")), text);
}

bool RsyncDaemon::listen()
{
    m_process = std::make_unique<Child>();
    m_process->setProcessChannelMode(QProcess::ForwardedChannels);
    m_process->start(
        QStringLiteral("rsync"),
        {QStringLiteral("--daemon"), QStringLiteral("--no-detach"),
         QStringLiteral("--address=127.0.0.1"), QStringLiteral("--port=%1").arg(m_port),
         QStringLiteral("--config=") + m_directory.filePath(QStringLiteral("config"))});
    const QDeadlineTimer deadline(10000);
    while (!deadline.hasExpired() && !m_process->waitForFinished(20)) {
        QTcpSocket probe;
        probe.connectToHost(QStringLiteral("127.0.0.1"), m_port);
        if (probe.waitForConnected(1000))
            return true;
    }
    return false;
}
