#pragma once

#include <zeplet/export.h>

#include <QList>
#include <QMap>
#include <QString>

namespace zeplet
{

/** What the interface manager keeps connected, for the test kit. GUI thread. */
class ZEPLET_EXPORT InterfaceWatches
{
public:
    using Ids = QMap<QString, QList<QString>>;

    /** By connectNexoData() and connectRcNotify(): ids of subscriptions on the bus per key. A key
     *  stays until all of its ids were disconnected, whether or not the bus still has them. */
    static Ids hubKeys();
    static Ids notifyPaths();
    /** By moveToStart(), until moveToStop(). */
    static bool motionErrors();
    /** Ends that, and tells the robot nothing. */
    static void endMotionErrors();
};

} // namespace zeplet
