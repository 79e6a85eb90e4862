#include "ostrel/log.h"

#include <appendfile.h>
#include <consoleline.h>
#include <datedname.h>
#include <linebuffer.h>
#include <retention.h>

namespace ostrel
{

namespace
{
/** Files of one log: about 100 MiB. */
constexpr int keptFiles = 10;
} // namespace

class QLog::Private
{
public:
    Private(const QString &colour, const QString &prefix, const QString &tag)
        : line(colour, prefix, tag)
    {
    }

    logbase::ConsoleLine line;
};

QLog::QLog(const QString &colour, const QString &prefix, const QString &tag)
    : d(std::make_unique<Private>(colour, prefix, tag))
{
}

QLog::~QLog() = default;

QLog &QLog::operator<<(const QString &text)
{
    d->line.appendItem(text);
    return *this;
}

QLog &QLog::operator<<(const char *text)
{
    return *this << QString::fromUtf8(text);
}

QLog &QLog::operator<<(const QVariant &value)
{
    return *this << value.toString();
}

QLog &QLog::operator<<(const void *pointer)
{
    d->line.appendItem(pointer);
    return *this;
}

QLog &QLog::space()
{
    d->line.space();
    return *this;
}

class FLog::Private
{
public:
    void open(const QString &base, const QString &ext);
    void append();
    void warn(const char *what) const;

    logbase::AppendFile file;
    logbase::LineBuffer line;
    QString path;
};

// The disk alone knows which files are full: the streams keep nothing between two lines.
void FLog::Private::open(const QString &base, const QString &ext)
{
    const QString date = logbase::today();
    int index = 0;
    do {
        path = logbase::datedName(base, date, index++, ext);
        if (!file.open(path)) {
            warn("cannot open the log file");
            return;
        }
    } while (file.sizeAtOpen() > logbase::LargestAppendable);
    if (file.sizeAtOpen() == 0) {
        logbase::keepNewestFiles(base, ext, keptFiles, path);
    }
}

void FLog::Private::append()
{
    if (!file.isOpen()) {
        return;
    }
    line.endLine();
    if (!file.write(line.data(), line.size())) {
        warn("cannot write the log file");
    }
}

void FLog::Private::warn(const char *what) const
{
    qWarning("%s. file=%s error=%s", what, qUtf8Printable(path),
             qUtf8Printable(file.errorString()));
}

FLog::FLog(const QString &prefix, const QString &tag, const QString &base, const QString &ext)
    : d(std::make_unique<Private>())
{
    d->open(base, ext);
    d->line.append(prefix);
    d->line.append(tag);
}

FLog::~FLog()
{
    d->append();
}

FLog &FLog::operator<<(const QString &text)
{
    d->line.appendItem(text);
    return *this;
}

FLog &FLog::operator<<(const char *text)
{
    return *this << QString::fromUtf8(text);
}

FLog &FLog::operator<<(const QVariant &value)
{
    return *this << value.toString();
}

FLog &FLog::operator<<(const void *pointer)
{
    d->line.appendItem(pointer);
    return *this;
}

FLog &FLog::space()
{
    d->line.space();
    return *this;
}

QFLog::QFLog(const QString &colour, const QString &prefix, const QString &tag, const QString &base,
             const QString &ext)
    : m_console(colour, prefix, tag)
    , m_file(prefix, tag, base, ext)
{
}

QFLog &QFLog::operator<<(const QString &text)
{
    m_console << text;
    m_file << text;
    return *this;
}

QFLog &QFLog::operator<<(const char *text)
{
    return *this << QString::fromUtf8(text);
}

QFLog &QFLog::operator<<(const QVariant &value)
{
    return *this << value.toString();
}

QFLog &QFLog::operator<<(const void *pointer)
{
    m_console << pointer;
    m_file << pointer;
    return *this;
}

QFLog &QFLog::space()
{
    m_console.space();
    m_file.space();
    return *this;
}

} // namespace ostrel
