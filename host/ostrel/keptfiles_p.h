#pragma once

#include <QString>

namespace ostrel
{

/**
 * Says of a file that can't be read as what it should be whether a copy must be kept beside it
 * before ModuleManager::writeToJson() replaces it. Holds until the copy has been made. GUI thread.
 */
void keepBeforeWriting(const QString &path, bool keep);

/** Makes the copy where one must be kept ("point.json.damaged-20261123-040500"); false, with the
 *  reason in error, where that fails. Blocks for the disk. */
bool keepCopy(const QString &path, QString *error);

} // namespace ostrel
