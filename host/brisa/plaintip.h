#pragma once

#include "hostexport.h"

#include <QString>

namespace brisa
{

/** A tool tip that shows the text as it is, whatever looks like markup in it; empty for none. Any
 *  thread. */
HOST_EXPORT QString plainTip(const QString &text);

} // namespace brisa
