#pragma once

#include <QString>
#include <memory>

namespace ostrel
{
class ModuleObject;
}

namespace zeplet
{

/** A point that is in no list yet, without elements. persistence is "true" or "false"; empty, the
 *  template's stays. */
std::unique_ptr<ostrel::ModuleObject> newPoint(const QString &name, bool joint,
                                               const QString &persistence = QString());
/** Puts the point at the end of the list, announces it as operation, saves and pushes; true when
 *  all was done. Blocks for disk and rsync (up to 30 s). */
bool addPoint(std::unique_ptr<ostrel::ModuleObject> point, const QString &operation);
/** "joint" or "cart" */
QString pointProperty(bool joint);

} // namespace zeplet
