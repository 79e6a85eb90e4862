#include "kit/pageplugin.h"
#include "pointspage.h"

namespace
{

[[maybe_unused]] const bool registered
    = kit::registerPage<PointsPage>("target", [] { return PointsPage::tr("Points"); });

} // namespace
