#pragma once

#include <QString>
#include <plainname.h>

/**
 * Where projects lie on the panel's disk: `<workspace>/<robot>/<project>/`. Nothing here looks at
 * the disk, and paths are joined as they are, without normalisation.
 */
namespace zeplet
{

using names::isPlainName;

/** The host setting; empty where it is not set, and there are no projects then. */
QString workspaceDirectory();

/** The controller's identity; "LOCALHOST" where none is known, or it is no plain name. */
QString robotDirectoryName();

/** `<workspace>/<robot>` */
QString robotDirectory();

/** `<workspace>/<robot>/<name>`; the name is not checked. */
QString projectDirectory(const QString &name);

} // namespace zeplet
