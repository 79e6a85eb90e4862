#include <zeplet/log/qlog.h>

#include <consoleline.h>

namespace zeplet
{

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

} // namespace zeplet
