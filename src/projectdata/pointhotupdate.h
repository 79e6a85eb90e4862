#pragma once

#include <zeplet/export.h>

#include <QString>

namespace ostrel
{
class ModuleObject;
}

/** Telling a running controller of a changed point. GUI thread. */
namespace zeplet
{

/** Announces to the host, which tells the controller, that the point at that place of the list was
 *  changed: operation "add" or "edit". A negative position does nothing. */
ZEPLET_EXPORT void triggerPointHotUpdate(const QString &operation, int position);

/** Sends one element of a persistent point to the controller; false, with an error line, where the
 *  controller refuses it. Blocks for the service hub. */
ZEPLET_EXPORT bool hotUpdatePersPointElement(ostrel::ModuleObject *record, const QString &index);

} // namespace zeplet
