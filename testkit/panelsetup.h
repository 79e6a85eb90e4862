#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

// The plugins' files, separated by "|"; zeplet_add_plugin_test() defines it.
#ifndef ZEPLET_TEST_PLUGINS
#define ZEPLET_TEST_PLUGINS ""
#endif

namespace zeplet
{
namespace test
{

/** What a TestPanel starts with. */
struct PanelSetup {
    /** Files of plugin libraries. A panel opens copies of them. */
    QStringList plugins
        = QString::fromUtf8(ZEPLET_TEST_PLUGINS).split(QLatin1Char('|'), Qt::SkipEmptyParts);
    /** JSON of a simulator's scenario. Empty: a robot "SIM-0001" that is ready, with its motors on,
     *  in manual mode, with the signals di_1 to di_4, do_1 to do_4 and the register R_1. */
    QByteArray scenario;
    QString project = QStringLiteral("test"); ///< made and opened; empty: none is open
    QString language; ///< "de", "zh_CN"; empty: English
};

} // namespace test
} // namespace zeplet
