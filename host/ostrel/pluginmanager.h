#pragma once

#include "hostexport.h"

#include <QHash>
#include <QString>
#include <functional>

namespace ostrel
{

class ModuleObject;

/**
 * The host's table of known plugins: a function per plugin name, and a data node that mirrors the
 * names (one child per plugin). Entries stay for the life of the process. GUI thread.
 */
class HOST_EXPORT PluginManager
{
public:
    using Function = std::function<int()>;

    QHash<QString, Function> plugins;

    /** The node "ostrel.plugins" of the host data store; owned by the store. */
    ModuleObject *mobj() const;
};

/** The process-wide plugin manager. */
HOST_EXPORT PluginManager &pluginManager();

} // namespace ostrel
