#pragma once

#include "hostexport.h"

#include <QString>
#include <QVariant>
#include <memory>

namespace ostrel
{

/** Contract sketch: console stream; one statement, one line. */
class HOST_EXPORT QLog
{
public:
    QLog(const QString &colour, const QString &prefix, const QString &tag);
    ~QLog();
    QLog(const QLog &) = delete;
    QLog &operator=(const QLog &) = delete;

    QLog &operator<<(const QString &text);
    QLog &operator<<(const QVariant &value);
    QLog &operator<<(const void *pointer);
    QLog &space();

private:
    class Private;
    std::unique_ptr<Private> d;
};

/** File stream: base path and extension become a dated file name. */
class HOST_EXPORT FLog
{
public:
    FLog(const QString &prefix, const QString &tag, const QString &base, const QString &ext);
    ~FLog();
    FLog(const FLog &) = delete;
    FLog &operator=(const FLog &) = delete;

    FLog &operator<<(const QString &text);
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
    QFLog &operator<<(const QVariant &value);
    QFLog &operator<<(const void *pointer);
    QFLog &space();

private:
    QLog m_console;
    FLog m_file;
};

} // namespace ostrel
