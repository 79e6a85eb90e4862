#pragma once

#include <zeplet/projectdata/pointrecords.h>

namespace zeplet
{

/** The points of the open project. */
ostrel::ModuleObject *pointList();
/** The name of the record at that place, "" where it has none. Makes no handles in a list. */
QString pointNameAt(ostrel::ModuleObject *list, int place);
/** The node that holds a record's elements; null where there is none, or no record. */
ostrel::ModuleObject *pointValue(ostrel::ModuleObject *point);
/** The element of that index, which is no path; null where there is none, or no record. Children
 *  of another name than "[..." are no elements. */
ostrel::ModuleObject *findPointElement(ostrel::ModuleObject *point, const QString &index);

/** The index of a plain point's only element. */
inline QString firstPointElement()
{
    return QStringLiteral("[0][0][0]");
}

} // namespace zeplet
