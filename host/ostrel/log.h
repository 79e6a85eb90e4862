#pragma once

#include "hostexport.h"

#include <QString>
#include <QVariant>
#include <memory>

namespace ostrel
{

/**
 * Console stream: one statement, one line. The caller composes colour and prefix; the line goes to
 * the message handler at debug level, category "default", when the stream dies. A stream is used
 * on the thread that made it.
 */
class HOST_EXPORT QLog
{
public:
    /** Starts the line with the three texts, without separators. */
    QLog(const QString &colour, const QString &prefix, const QString &tag);
    ~QLog();
    QLog(const QLog &) = delete;
    QLog &operator=(const QLog &) = delete;

    QLog &operator<<(const QString &text);
    /** UTF-8; without it a text literal would print as an address. */
    QLog &operator<<(const char *text);
    QLog &operator<<(const QVariant &value);
    QLog &operator<<(const void *pointer);
    /** From now on a blank follows each item; writes nothing itself. */
    QLog &space();

private:
    class Private;
    std::unique_ptr<Private> d;
};

/**
 * File stream: the line is appended to "base_yyyyMMdd.ext", or "base_yyyyMMdd_index.ext" with the
 * first index whose file is below 10 MiB, by one write when the stream dies. Missing directories
 * are made. With each new file the oldest ones of the same base go, so that ten are left, about 100
 * MiB. A failure is one warning in the category "default", and the line is lost; the next one
 * tries again. A stream is used on the thread that made it; any number may append to one file.
 */
class HOST_EXPORT FLog
{
public:
    FLog(const QString &prefix, const QString &tag, const QString &base, const QString &ext);
    ~FLog();
    FLog(const FLog &) = delete;
    FLog &operator=(const FLog &) = delete;

    FLog &operator<<(const QString &text);
    FLog &operator<<(const char *text);
    FLog &operator<<(const QVariant &value);
    FLog &operator<<(const void *pointer);
    FLog &space();

private:
    class Private;
    std::unique_ptr<Private> d;
};

/** Both at once; the colour goes to the console alone. */
class HOST_EXPORT QFLog
{
public:
    QFLog(const QString &colour, const QString &prefix, const QString &tag, const QString &base,
          const QString &ext);
    QFLog(const QFLog &) = delete;
    QFLog &operator=(const QFLog &) = delete;

    QFLog &operator<<(const QString &text);
    QFLog &operator<<(const char *text);
    QFLog &operator<<(const QVariant &value);
    QFLog &operator<<(const void *pointer);
    QFLog &space();

private:
    QLog m_console;
    FLog m_file;
};

} // namespace ostrel
