#pragma once

#include <QString>

namespace zeplet
{

/** The last part of the open project's name; "_temp" where none is open. */
QString openProjectName();
/** Writes the records to "<kind>.json" of the open project and pushes the file to the controller;
 *  true when both was done. Blocks for disk and rsync (up to 30 s). */
bool saveAndPushRecords(const QString &kind);

} // namespace zeplet
