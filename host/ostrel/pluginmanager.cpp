#include "ostrel/pluginmanager.h"

#include "ostrel/moduleobject.h"

namespace ostrel
{

ModuleObject *PluginManager::mobj() const
{
    return m(QStringLiteral("ostrel.plugins"));
}

// Never destroyed: the functions come from plugin libraries, which are never unloaded either.
PluginManager &pluginManager()
{
    static auto *manager = new PluginManager;
    return *manager;
}

} // namespace ostrel
