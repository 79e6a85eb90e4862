#pragma once

#include <QString>

namespace names
{

/** Whether the name can stand for one directory or file, and for itself only: not "." or "..", no
 *  "/", no control characters, and nothing that the file system would spell in another way. */
bool isPlainName(const QString &name);

} // namespace names
