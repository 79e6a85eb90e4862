#pragma once

#include "messagecapture.h"

#include <QRegularExpression>

/**
 * Collects the log lines of library and host while it lives, as "<level>|<text>" ("E|~Zeplet
 * begin"). A line without its level's colour or without its time is kept as it came. One at a time.
 */
class LogCapture
{
public:
    /** What has arrived since the last call. */
    QStringList take()
    {
        collect();
        return std::exchange(m_lines, {});
    }

    /** The lines of one level ("E"), without it; they stay. */
    QStringList ofLevel(const QString &level)
    {
        collect();
        const QString prefix = level + QLatin1Char('|');
        QStringList found;
        for (const QString &line : qAsConst(m_lines)) {
            if (line.startsWith(prefix))
                found.append(line.mid(prefix.size()));
        }
        return found;
    }

private:
    void collect()
    {
        const QStringList messages = m_messages.take();
        for (const QString &message : messages)
            m_lines.append(plain(message));
    }

    static QString plain(const QString &line)
    {
        static const QRegularExpression shape(
            QStringLiteral("^\x1b\\[(31m\\[E|36m\\[I|35m\\[S|32m\\[d)\\|"
                           "\\d\\d/\\d\\d \\d\\d:\\d\\d:\\d\\d\\.\\d{3}\\](.*)\x1b\\[0m$"),
            QRegularExpression::DotMatchesEverythingOption);
        const QRegularExpressionMatch match = shape.match(line);
        return match.hasMatch() ? match.captured(1).right(1) + QLatin1Char('|') + match.captured(2)
                                : line;
    }

    MessageCapture m_messages;
    QStringList m_lines;
};
