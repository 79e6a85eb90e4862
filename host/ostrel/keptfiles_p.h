#pragma once

#include <QString>

namespace ostrel
{

/**
 * Says of a file whose content is not in the data store that a copy must be kept beside it before
 * ModuleManager::writeToJson() replaces it, under a name with that word. Holds until the copy has
 * been made, or is taken back by an empty word. GUI thread.
 */
void keepBeforeWriting(const QString &path, const QString &word);

/** Makes the copy where one must be kept ("point.json.damaged-20261123-040500"); false, with the
 *  reason in error, where that fails. Blocks for the disk. */
bool keepCopy(const QString &path, QString *error);

} // namespace ostrel
