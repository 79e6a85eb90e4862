#pragma once

#include <QString>

namespace zeplet
{

/** Gives a local path to the panel's user, with all that it holds; on the controller itself, which
 *  has a mark for that, nothing is done. Blocks until it is done; the outcome is not looked at. */
void fixOwnership(const QString &path);

} // namespace zeplet
