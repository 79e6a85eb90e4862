#include "kivra/navigation.h"

#include "kest/bmodule.h"
#include "kivra/navigationtree_p.h"
#include "kivra/physicalbuttonregistry_p.h"

namespace qo
{
namespace kivra
{

ostrel::ModuleObject *registerPage(kest::BModule *module, const QString &title,
                                   const QString &parent, const QString &icon, int index)
{
    return NavigationTree::instance().addPage(module, title, parent, icon, index);
}

void registerGroup(const QString &parent, const QString &title)
{
    NavigationTree::instance().addGroup(parent, title);
}

void registerPhysicalButtons(kest::BModule *module, const QString &page,
                             const QList<brisa::PhysicalButton> &first,
                             const QList<brisa::PhysicalButton> &second, const QStringList &extra)
{
    PhysicalButtonRegistry::instance().registerPage(module, page, first, second, extra);
}

void enableRegisterPhysicalButtons(kest::BModule *module, const QString &page, bool enable)
{
    PhysicalButtonRegistry::instance().setEnabled(module, page, enable);
}

} // namespace kivra
} // namespace qo
