#pragma once

#include "hostexport.h"

#include <QHash>
#include <QString>
#include <functional>

class QObject;

namespace ostrel
{
class ModuleObject;
}

namespace kest
{

class BModule;

/**
 * The host's module factory: a maker per module name, and a data node that mirrors the names (one
 * child per module). Entries stay for the life of the process. GUI thread.
 */
class HOST_EXPORT ModuleFactory
{
public:
    using Maker = std::function<BModule *(QObject *)>;

    QHash<QString, Maker> makers;

    /** The node "ostrel.bfactory" of the host data store; owned by the store. */
    ostrel::ModuleObject *mobj() const;
};

} // namespace kest

/** The process-wide module factory. */
HOST_EXPORT kest::ModuleFactory &bfactory();
