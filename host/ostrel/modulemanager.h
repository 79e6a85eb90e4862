#pragma once

#include "hostexport.h"

#include <QByteArray>
#include <QJsonValue>
#include <QString>

namespace ostrel
{

/** The host's file writer. */
class HOST_EXPORT ModuleManager
{
public:
    /**
     * Writes value as JSON text in UTF-8 to path, old or new and never half: missing parents are
     * made, file and directory are synced, and the file's modification time moves on by at least a
     * whole second against the file it replaces, also where the clock has run back. Only a plain
     * file is replaced, no directory, symbolic link or device. A file that the host has refused as
     * damaged is copied beside itself first. indented: one member a line. A process that is killed
     * meanwhile may leave one unfinished file beside it ("NAME.XXXXXX"); nothing reads that.
     *
     * Returns false, with an error line in the host's log, where value is undefined, nested deeper
     * than 1024 levels or can't be written; the old file is still there then, unless only the last
     * step failed, the sync of its directory. Blocks for the disk. GUI thread.
     */
    static bool writeToJson(const QString &path, const QJsonValue &value, bool indented);

    /** Writes the bytes as they are, and keeps, refuses and reports as writeToJson() does. Blocks
     *  for the disk. GUI thread. */
    static bool writeFile(const QString &path, const QByteArray &content);
};

} // namespace ostrel
