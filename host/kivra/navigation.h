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

/*
 * Titles of entries and groups, labels of keys and names of their pages are English texts that the
 * module marks with QT_TRANSLATE_NOOP("navigation", ...): the host shows them in the language of
 * the panel, as far as a catalogue has them in that context, and else as they are.
 */

/**
 * Enters a page into the navigation tree "kivra.page" below the dotted parent ("robot.pack" is
 * kivra.page.robot.page.pack) and returns its node, whose child "nav" links it to a centre page.
 * icon is the name of a host glyph ("home") or the path of an image; without one the title's first
 * letter stands in. index -1 appends. The entry goes when its module goes. Never null. GUI thread.
 */
HOST_EXPORT ostrel::ModuleObject *registerPage(kest::BModule *module, const QString &title,
                                               const QString &parent, const QString &icon,
                                               int index);

/** Titles the group of entries below the dotted parent. Groups are shown in the order in which
 * their parents were first named, here or by registerPage(). */
HOST_EXPORT void registerGroup(const QString &parent, const QString &title);

/**
 * Registers two rows of keys under a page name of the module; a second call for a page replaces
 * them. The keys come up when a centre page of the module is shown, or one whose key is the page
 * name or is in extra; the operator may also choose them. They go when the module goes.
 */
HOST_EXPORT void registerPhysicalButtons(kest::BModule *module, const QString &page,
                                         const QList<brisa::PhysicalButton> &first,
                                         const QList<brisa::PhysicalButton> &second,
                                         const QStringList &extra);
/** Enables or disables the keys of a registered page; nothing happens for another one. */
HOST_EXPORT void enableRegisterPhysicalButtons(kest::BModule *module, const QString &page,
                                               bool enable);

} // namespace kivra
} // namespace qo
