#pragma once

#include <zeplet/export.h>

#include <QString>

namespace zeplet
{

/** What the sync tool goes by. Tests change it; nothing else does. */
struct SyncLimits {
    int waitMs = 30000; ///< for one rsync, dialog included
    /** Exists on the controller itself, where the files have the right owner already. */
    QString controllerMark = QStringLiteral("/hostname/name.txt");
};

ZEPLET_EXPORT SyncLimits &syncLimits();

} // namespace zeplet
