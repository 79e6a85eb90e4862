#include "kit/pageplugin.h"
#include "programpage.h"

namespace
{

[[maybe_unused]] const bool registered
    = kit::registerPage<ProgramPage>("list", QT_TRANSLATE_NOOP("navigation", "Program"));

} // namespace
