#pragma once

#include <QString>
#include <functional>

class QIODevice;

namespace ostrel
{

/** Writes a file's content, or returns false with the reason in error. The file tells its own
 * errors. */
using ContentWriter = std::function<bool(QIODevice *file, QString *error)>;

/**
 * Makes what write writes the file at path, old or new and never half, and returns when the disk
 * has it. Missing parents are made. Only a plain file is replaced: a directory, a symbolic link or
 * a device at path is refused. The new file's modification time is now, or one second after that of
 * the old file where the clock has not moved on by a whole second, or has run back. On failure
 * returns false with the reason in error, and the old file is untouched, but for one case: the
 * directory could not be synced after the file was in place. Blocks for the disk.
 */
bool writeDurably(const QString &path, const ContentWriter &write, QString *error);

/** Copies a file to a name that nothing has yet, whole or not at all, and returns when the disk has
 *  it; on failure false with the reason in error. Blocks for the disk. */
bool copyDurably(const QString &from, const QString &to, QString *error);

} // namespace ostrel
