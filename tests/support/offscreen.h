#pragma once

#include <QString>
#include <QtGlobal>

/**
 * For tests that show windows: the offscreen platform warns of what it cannot do with a window
 * ("This plugin does not support raise()"), which says nothing about the code under test. Call once
 * in initTestCase(); every other message goes on to the test's log.
 */
inline void ignoreOffscreenNoise()
{
    static QtMessageHandler next = nullptr;
    next = qInstallMessageHandler(
        [](QtMsgType type, const QMessageLogContext &context, const QString &message) {
            if (!message.startsWith(QLatin1String("This plugin does not support ")))
                next(type, context, message);
        });
}
