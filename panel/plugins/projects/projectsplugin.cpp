#include "kit/pageplugin.h"
#include "projectspage.h"

namespace
{

[[maybe_unused]] const bool registered
    = kit::registerPage<ProjectsPage>("folder", [] { return ProjectsPage::tr("Projects"); });

} // namespace
