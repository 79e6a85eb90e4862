#pragma once

#include "pluginrecord.h"

namespace panel
{

/**
 * Judges a plugin library by its file, without opening it as a library: a sound shared library of
 * this machine, with a tag that agrees with the panel. The record is Refused, with a sentence,
 * where it is not. Blocks for the disk.
 */
PluginRecord checkPlugin(const QFileInfo &file);

/** One sentence with cause and remedy for the linker's refusal to open the library. */
QString linkerSentence(const QString &fileName, const QString &linkerMessage);

} // namespace panel
