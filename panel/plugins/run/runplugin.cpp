#include "kit/pageplugin.h"
#include "runpage.h"

namespace
{

[[maybe_unused]] const bool registered
    = kit::registerPage<RunPage>("play", [] { return RunPage::tr("Run"); });

} // namespace
