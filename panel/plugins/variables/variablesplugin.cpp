#include "kit/pageplugin.h"
#include "variablespage.h"

namespace
{

[[maybe_unused]] const bool registered
    = kit::registerPage<VariablesPage>("variable", QT_TRANSLATE_NOOP("navigation", "Variables"));

} // namespace
