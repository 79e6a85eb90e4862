#pragma once

#include <zeplet/export.h>

#include <QString>
#include <QVariant>
#include <memory>

namespace zeplet
{

/**
 * File stream: one statement, one line, appended in UTF-8 to the file that PluginLogFileManager
 * names for base and extension. The file is opened, with missing directories made, when the stream
 * is built; the line is written in one piece when it dies. Both block for that short file access.
 *
 * Where opening or writing fails, a warning in the category "default" says so and old log files
 * are deleted to make room. Opening is then tried once more; a line that could not be written is
 * lost. A stream is used on the thread that made it; any number may append to one file.
 */
class ZEPLET_EXPORT FLog
{
public:
    /** Starts the line with prefix and tag. `base` is a path prefix like "./log/zeplet/name". */
    FLog(const QString &prefix, const QString &tag, const QString &base, const QString &ext);
    ~FLog();
    FLog(const FLog &) = delete;
    FLog &operator=(const FLog &) = delete;

    /** Appends the text as it is, unquoted. */
    FLog &operator<<(const QString &text);
    /** The same for UTF-8; without it a text literal would print as an address. */
    FLog &operator<<(const char *text);
    /** Appends `value.toString()`. */
    FLog &operator<<(const QVariant &value);
    /** Appends the address in hexadecimal. */
    FLog &operator<<(const void *pointer);
    /** From now on a blank follows each item; writes nothing itself. */
    FLog &space();

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace zeplet
