#pragma once

#include <zeplet/export.h>
#include <zeplet/log/flog.h>
#include <zeplet/log/qlog.h>

namespace zeplet
{

/** A QLog and an FLog with the same items; the colour goes to the console alone. */
class ZEPLET_EXPORT QFLog
{
public:
    /** Starts both lines: QLog and FLog say with what. */
    QFLog(const QString &colour, const QString &prefix, const QString &tag, const QString &base,
          const QString &ext);
    QFLog(const QFLog &) = delete;
    QFLog &operator=(const QFLog &) = delete;

    /** Appends the text as it is, unquoted. */
    QFLog &operator<<(const QString &text);
    /** The same for UTF-8. */
    QFLog &operator<<(const char *text);
    /** Appends `value.toString()`. */
    QFLog &operator<<(const QVariant &value);
    /** Appends the address in hexadecimal. */
    QFLog &operator<<(const void *pointer);
    /** From now on a blank follows each item; writes nothing itself. */
    QFLog &space();

private:
    QLog m_console;
    FLog m_file;
};

} // namespace zeplet
