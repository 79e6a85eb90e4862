#include <zeplet/log/flog.h>

#include <zeplet/log/pluginlogfilemanager_p.h>

#include <appendfile.h>
#include <datedname.h>
#include <linebuffer.h>

namespace zeplet
{

class FLog::Private
{
public:
    Private(const QString &base, const QString &ext);

    void open();
    void append();

    logbase::LineBuffer line;

private:
    bool tryOpen();
    void writeFailed();
    void warn(const QString &event, const QString &error = QString()) const;

    PluginLogFileManager &m_manager;
    logbase::AppendFile m_file;
    LogTarget m_target;
    QString m_base;
    QString m_ext;
};

FLog::Private::Private(const QString &base, const QString &ext)
    : m_manager(*PluginLogFileManager::instance())
    , m_base(base)
    , m_ext(ext)
{
}

void FLog::Private::open()
{
    if (tryOpen()) {
        return;
    }
    warn(QStringLiteral("open log failed before cleanup"), m_file.errorString());
    m_manager.recoverFromWriteFailure(m_base);
    if (!tryOpen()) {
        warn(QStringLiteral("open log failed after cleanup"), m_file.errorString());
        return;
    }
    warn(QStringLiteral("open log succeeded after cleanup"));
}

// The open file tells its size, so the manager need not look at the disk before. Only for a full
// file it does, and gives the next one, unless another stream has just moved on.
bool FLog::Private::tryOpen()
{
    m_target = m_manager.d->targetForStream(m_base, m_ext);
    if (!m_file.open(m_target.path)) {
        return false;
    }
    if (m_file.sizeAtOpen() <= logbase::LargestAppendable) {
        return true;
    }
    m_target.path = m_manager.getProperLogFileName(m_base, m_ext);
    return m_file.open(m_target.path);
}

void FLog::Private::append()
{
    if (!m_file.isOpen()) {
        return;
    }
    line.endLine();
    const bool isWhole = m_file.write(line.data(), line.size());
    m_manager.d->recordLine(m_target, m_file.sizeAtOpen() + m_file.written(), m_file.written());
    if (!isWhole) {
        writeFailed();
    }
}

void FLog::Private::writeFailed()
{
    warn(QStringLiteral("write log failed, trigger cleanup"), m_file.errorString());
    m_manager.recoverFromWriteFailure(m_base);
    // With room made, the part of the line that got through must not run into the next one.
    if (m_file.written() > 0) {
        m_file.write("\n", 1);
    }
}

void FLog::Private::warn(const QString &event, const QString &error) const
{
    const QString detail = error.isEmpty() ? QString() : QLatin1String(" error=") + error;
    const QString text = QLatin1String("[zeplet-log-cleanup] ") + event + QLatin1String(". file=")
        + m_target.path + detail;
    qWarning("%s", qUtf8Printable(text));
}

FLog::FLog(const QString &prefix, const QString &tag, const QString &base, const QString &ext)
    : d(std::make_unique<Private>(base, ext))
{
    d->open();
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

} // namespace zeplet
