#pragma once

#include <QString>
#include <QtGlobal>

/** The offscreen platform warns of what it cannot do with a window ("This plugin does not support
 *  raise()"), which says nothing about the code under test. */
inline bool isOffscreenNoise(const QString &message)
{
    return message.startsWith(QLatin1String("This plugin does not support "));
}

/** For tests that show windows; call once in initTestCase(). Every other message goes on to the
 *  test's log. */
inline void ignoreOffscreenNoise()
{
    static QtMessageHandler next = nullptr;
    next = qInstallMessageHandler(
        [](QtMsgType type, const QMessageLogContext &context, const QString &message) {
            if (!isOffscreenNoise(message))
                next(type, context, message);
        });
}
