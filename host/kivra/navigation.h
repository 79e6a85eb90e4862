#pragma once

#include "brisa/physicalbutton.h"
#include "hostexport.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace kest
{
class BModule;
}
namespace ostrel
{
class ModuleObject;
}

namespace qo
{
namespace kivra
{

/**
 * Enters a page into the navigation tree "kivra.page" below the dotted parent ("robot.pack" is
 * kivra.page.robot.page.pack) and returns its node, whose child "nav" links it to a centre page.
 * index -1 appends. The entry goes when its module goes. Never null. GUI thread.
 */
HOST_EXPORT ostrel::ModuleObject *registerPage(kest::BModule *module, const QString &title,
                                               const QString &parent, const QString &icon,
                                               int index);

/** Registers two rows of keys under a page name; a second call for a page replaces them. */
HOST_EXPORT void registerPhysicalButtons(kest::BModule *module, const QString &page,
                                         const QList<brisa::PhysicalButton> &first,
                                         const QList<brisa::PhysicalButton> &second,
                                         const QStringList &extra);
/** Enables or disables the keys of a registered page. */
HOST_EXPORT void enableRegisterPhysicalButtons(kest::BModule *module, const QString &page,
                                               bool enable);

} // namespace kivra
} // namespace qo
