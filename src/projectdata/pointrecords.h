#pragma once

#include <zeplet/export.h>

#include <QString>
#include <QStringList>

namespace ostrel
{
class ModuleObject;
}

/**
 * Looking into the records of points. A record has a "name" and a "value", whose children are the
 * point's elements, each named by its index "[i][j][k]". Nothing here changes data; records and
 * lists stay the host's. GUI thread.
 */
namespace zeplet
{

/** The index with all three levels: "" becomes "[0][0][0]", "[2]" becomes "[2][0][0]". A text with
 *  no or with more brackets only loses its outer blanks. */
ZEPLET_EXPORT QString normalizePointValueIndex(const QString &index);

/** The first record of that name in a list, whatever its case; null where there is none. index, if
 *  given, receives its place, or -1. */
ZEPLET_EXPORT ostrel::ModuleObject *findPointByName(ostrel::ModuleObject *list, const QString &name,
                                                    int *index);

/** The number of a record's elements. */
ZEPLET_EXPORT int countPointValueElements(ostrel::ModuleObject *point);
/** The indexes of a record's elements, in its order. */
ZEPLET_EXPORT QStringList collectPointValueIndexes(ostrel::ModuleObject *point);

} // namespace zeplet
