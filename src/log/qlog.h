#pragma once

#include <zeplet/export.h>

#include <QString>
#include <QVariant>
#include <memory>

namespace zeplet
{

/**
 * Console stream: one statement, one line. The caller composes colour and prefix, such as
 * "\e[31m" and "[E|05/06 10:30:00.000]". When the stream dies it adds the colour reset "\e[0m" and
 * hands the line to the message handler at debug level, category "default". A stream is used on
 * the thread that made it.
 */
class ZEPLET_EXPORT QLog
{
public:
    /** Starts the line with the three texts, without separators. */
    QLog(const QString &colour, const QString &prefix, const QString &tag);
    ~QLog();
    QLog(const QLog &) = delete;
    QLog &operator=(const QLog &) = delete;

    /** Appends the text as it is, unquoted. */
    QLog &operator<<(const QString &text);
    /** The same for UTF-8; without it a text literal would print as an address. */
    QLog &operator<<(const char *text);
    /** Appends `value.toString()`. */
    QLog &operator<<(const QVariant &value);
    /** Appends the address in hexadecimal. */
    QLog &operator<<(const void *pointer);
    /** From now on a blank follows each item; writes nothing itself. */
    QLog &space();

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace zeplet
