#include "kit/pageplugin.h"
#include "runpage.h"

namespace
{

[[maybe_unused]] const bool registered
    = kit::registerPage<RunPage>("play", QT_TRANSLATE_NOOP("navigation", "Run"));

} // namespace
