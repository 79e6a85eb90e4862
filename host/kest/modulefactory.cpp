#include "kest/modulefactory.h"

#include "ostrel/moduleobject.h"

namespace kest
{

ostrel::ModuleObject *ModuleFactory::mobj() const
{
    return m(QStringLiteral("ostrel.bfactory"));
}

} // namespace kest

// Never destroyed: the makers come from plugin libraries, which are never unloaded either.
kest::ModuleFactory &bfactory()
{
    static auto *factory = new kest::ModuleFactory;
    return *factory;
}
