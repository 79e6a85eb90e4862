#pragma once

#include <zeplet/export.h>

#include <QString>

namespace ostrel
{
class ModuleObject;
}

namespace zeplet
{

/**
 * Writes the records of a list node to a JSON file: {"version", "points": [...]} for the kind
 * "point", {"version", "variables": [...]} for "var", the array alone for any other kind. The file
 * is old or new, never half. True when it was written; what went wrong is in the log. Blocks for
 * the disk. GUI thread.
 */
ZEPLET_EXPORT bool writeDataToJson(const QString &path, ostrel::ModuleObject *list,
                                   const QString &kind);

} // namespace zeplet
