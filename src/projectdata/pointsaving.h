#pragma once

#include <zeplet/export.h>

#include <QString>

namespace ostrel
{
class ModuleObject;
}

/** What follows an edit of a point. GUI thread. Blocks for the service hub, the disk and rsync (up
 *  to 30 s). */
namespace zeplet
{

/** Tells the controller of a changed element of the record at that place of the list, then saves
 *  and pushes. False where one of these failed; nothing is saved that the controller refused. */
ZEPLET_EXPORT bool syncPointElementAfterEdit(ostrel::ModuleObject *record, int position,
                                             const QString &index);

/** Writes "point.json" of the open project and pushes it to the controller; true when both was
 *  done. */
ZEPLET_EXPORT bool saveAndPushPoint();

} // namespace zeplet
