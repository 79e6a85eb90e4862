#include "kit/pageplugin.h"
#include "signalspage.h"

namespace
{

[[maybe_unused]] const bool registered
    = kit::registerPage<SignalsPage>("lamp", QT_TRANSLATE_NOOP("navigation", "Signals"));

} // namespace
