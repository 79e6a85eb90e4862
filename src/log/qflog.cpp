#include <zeplet/log/qflog.h>

namespace zeplet
{

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

} // namespace zeplet
