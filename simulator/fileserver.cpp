#include "fileserver.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QHostAddress>
#include <QThread>
#include <algorithm>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace simulator
{

namespace
{
const char *const kConfigFile = "rsyncd.conf";
const char *const kSecretsFile = "rsyncd.secrets";
const char *const kLogFile = "rsyncd.log";

/** What the panel's sync tool says it is. */
const char *const kSecret = "brisa:729413\n";

/** A port that is free now may be taken when the daemon wants it. */
constexpr int kAttempts = 3;
constexpr int kReserveLimitMs = 1000;
constexpr int kReservePauseMs = 10;

bool isPlain(const QString &path)
{
    return std::none_of(path.cbegin(), path.cend(), [](QChar c) {
        return c.unicode() < ' ' || c.unicode() == 0x7f || c == QLatin1Char('%');
    });
}

/** Writes a file that nobody else may read, not even for a moment. */
bool writePrivate(const QString &path, const QByteArray &text, QString *error)
{
    const int descriptor
        = ::open(QFile::encodeName(path).constData(),
                 O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW | O_CLOEXEC, S_IRUSR | S_IWUSR);
    QFile file;
    if (descriptor >= 0 && ::fchmod(descriptor, S_IRUSR | S_IWUSR) == 0
        && file.open(descriptor, QIODevice::WriteOnly, QFileDevice::AutoCloseHandle)
        && file.write(text) == text.size() && file.flush())
        return true;
    *error = QStringLiteral("%1: %2").arg(path, qt_error_string());
    return false;
}

/** A daemon of root would write as nobody. */
QByteArray identity()
{
    if (::geteuid() != 0)
        return {};
    return "uid = 0\ngid = " + QByteArray::number(::getegid()) + '\n';
}
} // namespace

FileServer::FileServer(const FileOptions &options, QObject *parent)
    : QObject(parent)
    , m_options(options)
{
    if (!m_options.directory.isEmpty())
        m_options.directory = QDir(m_options.directory).absolutePath();
    connect(&m_daemon, &RsyncDaemon::died, this,
            [this](const QString &reason) { emit problem(QStringLiteral("files: ") + reason); });
}

QString FileServer::root() const
{
    return m_options.directory.isEmpty() ? QString() : inDirectory("hmi");
}

QString FileServer::inDirectory(const char *name) const
{
    return m_options.directory + QLatin1Char('/') + QLatin1String(name);
}

bool FileServer::open(QString *error)
{
    if (m_options.directory.isEmpty() || isOpen())
        return true;
    if (!prepare(error)) {
        error->prepend(QStringLiteral("files: "));
        return false;
    }
    const quint16 wanted = m_port != 0 ? m_port : m_options.port.value_or(kStandardPort);
    bool opened = wanted != 0 && openOn(wanted, error);
    const bool mayBeAnother = m_port == 0 && m_options.port.value_or(0) == 0;
    for (int attempt = 0; !opened && mayBeAnother && attempt < kAttempts; ++attempt)
        opened = openOn(0, error);
    return opened;
}

void FileServer::close()
{
    m_daemon.stop();
}

bool FileServer::openOn(quint16 port, QString *error)
{
    if (!reserve(port, error))
        return false;
    if (m_daemon.start(inDirectory(kConfigFile), m_reserved.localPort(), error)) {
        m_port = m_reserved.localPort();
        return true;
    }
    error->prepend(QStringLiteral("files: port %1: ").arg(m_reserved.localPort()));
    if (m_port == 0)
        m_reserved.abort();
    return false;
}

/** The daemon of a simulator that was killed holds its port for a moment longer, and the next one
 *  that is started with just that port is to have it. */
bool FileServer::reserve(quint16 port, QString *error)
{
    const bool isOnlyOne = m_options.port.value_or(0) != 0;
    QElapsedTimer waited;
    waited.start();
    while (m_reserved.state() != QAbstractSocket::BoundState
           && !m_reserved.bind(QHostAddress::LocalHost, port, QAbstractSocket::ReuseAddressHint)) {
        *error = QStringLiteral("files: port %1: %2").arg(port).arg(m_reserved.errorString());
        m_reserved.abort();
        if (!isOnlyOne || waited.hasExpired(kReserveLimitMs))
            return false;
        QThread::msleep(kReservePauseMs);
    }
    return true;
}

bool FileServer::prepare(QString *error) const
{
    if (!isPlain(m_options.directory)) {
        *error = QStringLiteral("the path may have neither control characters nor '%': %1")
                     .arg(m_options.directory);
        return false;
    }
    if (!QDir().mkpath(root() + QStringLiteral("/_temp"))) {
        *error = QStringLiteral("cannot make the directory %1/_temp").arg(root());
        return false;
    }
    // Debian's init script or a person may run another daemon: nothing of the system's is used.
    const QByteArray config = "use chroot = no\nreverse lookup = no\nmax connections = 16\n"
                              "socket options = TCP_NODELAY\n"
        + identity() + "lock file = " + QFile::encodeName(inDirectory("rsyncd.lock"))
        + "\nlog file = " + QFile::encodeName(inDirectory(kLogFile))
        + "\n[hmi]\npath = " + QFile::encodeName(root())
        + "\nread only = no\nlist = no\nauth users = brisa\nsecrets file = "
        + QFile::encodeName(inDirectory(kSecretsFile)) + '\n';
    return writePrivate(inDirectory(kSecretsFile), kSecret, error)
        && writePrivate(inDirectory(kConfigFile), config, error);
}

} // namespace simulator
