#include "kit/pageplugin.h"
#include "pointspage.h"

namespace
{

[[maybe_unused]] const bool registered
    = kit::registerPage<PointsPage>("target", QT_TRANSLATE_NOOP("navigation", "Points"));

} // namespace
