#include "kit/pageplugin.h"
#include "projectspage.h"

namespace
{

[[maybe_unused]] const bool registered
    = kit::registerPage<ProjectsPage>("folder", QT_TRANSLATE_NOOP("navigation", "Projects"));

} // namespace
