#pragma once

#include <zeplet/export.h>

#include <QList>
#include <QMap>
#include <QString>

namespace zeplet
{

/** What connectNexoData() and connectRcNotify() keep connected, for the test kit: ids of
 *  subscriptions on the bus per key. A key stays until all of its ids were disconnected, whether or
 *  not the bus still has them. GUI thread. */
class ZEPLET_EXPORT InterfaceWatches
{
public:
    using Ids = QMap<QString, QList<QString>>;

    static Ids hubKeys();
    static Ids notifyPaths();
};

} // namespace zeplet
