#pragma once

#include <QMutex>
#include <QMutexLocker>
#include <QString>
#include <QStringList>

#include <functional>
#include <utility>

/**
 * Takes over the message handler for its lifetime and keeps what arrives, from any thread. One at
 * a time. Debug lines are kept as they are, warnings with "W: " before them; a message of another
 * category than "default" starts with that.
 */
class MessageCapture
{
public:
    using Hook = std::function<void(const QString &line)>;

    /** The hook runs in the handler, as a host's own handler would. */
    explicit MessageCapture(Hook hook = {})
        : m_hook(std::move(hook))
    {
        current() = this;
        m_previous = qInstallMessageHandler(handle);
    }

    ~MessageCapture()
    {
        qInstallMessageHandler(m_previous);
        current() = nullptr;
    }

    MessageCapture(const MessageCapture &) = delete;
    MessageCapture &operator=(const MessageCapture &) = delete;

    /** What has arrived since the last call. */
    QStringList take()
    {
        const QMutexLocker lock(&m_mutex);
        return std::exchange(m_lines, {});
    }

private:
    static MessageCapture *&current()
    {
        static MessageCapture *capture = nullptr;
        return capture;
    }

    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &text)
    {
        const QString category = QString::fromUtf8(context.category);
        const QString line = (category == QLatin1String("default") ? QString() : category + ": ")
            + (type == QtDebugMsg ? "" : "W: ") + text;
        MessageCapture *capture = current();
        {
            const QMutexLocker lock(&capture->m_mutex);
            capture->m_lines.append(line);
        }
        if (capture->m_hook) {
            capture->m_hook(line);
        }
    }

    Hook m_hook;
    QtMessageHandler m_previous = nullptr;
    QMutex m_mutex;
    QStringList m_lines;
};
