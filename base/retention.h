#pragma once

#include <QString>

namespace logbase
{

/**
 * Deletes the dated files of one log, those changed longest ago first, until at most `count` are
 * left. `current` is never deleted. Links and files of other names are left alone, and so is what
 * can't be deleted.
 */
void keepNewestFiles(const QString &base, const QString &ext, int count, const QString &current);

} // namespace logbase
