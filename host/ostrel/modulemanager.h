#pragma once

#include "hostexport.h"

#include <QJsonValue>
#include <QString>

namespace ostrel
{

/** The host's file writer for JSON documents. */
class HOST_EXPORT ModuleManager
{
public:
    /**
     * Writes value as JSON to path, old or new and never half: missing parents are made, file and
     * directory are synced, and the file's modification time moves on by at least a whole second
     * against the file it replaces. indented: one member a line. Returns false, with nothing
     * changed, where the file can't be written. Blocks for the disk.
     */
    static bool writeToJson(const QString &path, const QJsonValue &value, bool indented);
};

} // namespace ostrel
