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

} // namespace zeplet
