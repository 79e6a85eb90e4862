#include "appendfile.h"

#include "ascii.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace logbase
{

namespace
{

// Non-blocking, so that a pipe in place of the file is an error instead of a frozen caller.
int openForAppending(const QByteArray &path)
{
    int descriptor = -1;
    do {
        descriptor = ::open(path.constData(),
                            O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC | O_NONBLOCK, 0666);
    } while (descriptor < 0 && errno == EINTR);
    return descriptor;
}

} // namespace

AppendFile::~AppendFile()
{
    close();
}

bool AppendFile::open(const QString &path)
{
    close();
    m_written = 0;
    // The codec is the dearest step of a short line otherwise.
    const QByteArray encoded = isAscii(path) ? path.toLatin1() : QFile::encodeName(path);
    m_descriptor = openForAppending(encoded);
    if (m_descriptor < 0 && errno == ENOENT && QDir().mkpath(QFileInfo(path).absolutePath())) {
        m_descriptor = openForAppending(encoded);
    }
    struct stat status = {};
    if (m_descriptor < 0 || ::fstat(m_descriptor, &status) != 0) {
        m_error = errno;
        close();
        return false;
    }
    m_size = status.st_size;
    return true;
}

bool AppendFile::write(const char *bytes, qint64 count)
{
    while (count > 0) {
        const ssize_t done = ::write(m_descriptor, bytes, static_cast<size_t>(count));
        if (done < 0 && errno == EINTR) {
            continue;
        }
        if (done < 0) {
            m_error = errno;
            return false;
        }
        bytes += done;
        count -= done;
        m_written += done;
    }
    return true;
}

void AppendFile::close()
{
    if (isOpen()) {
        ::close(m_descriptor);
        m_descriptor = -1;
    }
}

QString AppendFile::errorString() const
{
    return qt_error_string(m_error);
}

} // namespace logbase
