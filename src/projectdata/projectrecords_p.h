#pragma once

#include <QString>
#include <memory>

namespace ostrel
{
class ModuleObject;
}

/** What points and variables have in common. kind is "point" or "var". */
namespace zeplet
{

/** "tavik.project.<kind>": the list of records with the template beside it. */
ostrel::ModuleObject *recordTree(const QString &kind);
/** The list of records of the open project, in order of creation. */
ostrel::ModuleObject *recordList(const QString &kind);

/** A field of the record at that place, "" where there is none. Makes no handles in a list. */
QString recordText(ostrel::ModuleObject *list, int place, const QString &field);
/** The place of the first record that has exactly that name in JSON; -1 where there is none. */
int placeOfExactName(ostrel::ModuleObject *list, const QString &name);

/** A record of its own, a copy of the template. */
std::unique_ptr<ostrel::ModuleObject> newRecord(const QString &kind);
/** Puts a record at the end of the list and tells its watchers; false, with an error line, where
 *  the list takes none. */
bool appendRecord(const QString &kind, std::unique_ptr<ostrel::ModuleObject> record);
/** Tells the watchers of a record, or of a list, that something in it has changed. */
void touch(ostrel::ModuleObject *record);

/** Sends a request to the controller's program data and waits for the answer; a missing answer, or
 *  one that is no integer, counts as noAnswer. 0 is success. Blocks for the service hub. */
int commandProjectVariable(ostrel::ModuleObject *request, int noAnswer);

} // namespace zeplet
