#pragma once

#include "ostrel/node_p.h"

#include <QByteArray>
#include <QJsonValue>
#include <QString>

class QIODevice;

namespace ostrel
{

/** The node as JSON text in UTF-8, laid out as QJsonDocument does it, in the order of children. */
QByteArray writeJsonText(const Node &node, bool indented);

/**
 * Writes value, laid out likewise with members in order of their names, to device, which tells
 * whether it could. False where value is undefined or nested deeper than maxDepth levels. list, if
 * given, is the list of records that value may have been exported from: as far as its nodes keep
 * the very JSON that they find in value, they are what is written, which is faster.
 */
bool writeJsonValue(const QJsonValue &value, bool indented, const Node *list, QIODevice *device);

/**
 * Reads JSON text (RFC 8259, UTF-8, at most 512 levels) into node, which must be empty and without
 * a handle. On failure returns false, node stays empty, and error, if given, says why and where.
 */
bool parseJsonText(const QByteArray &text, Node *node, QString *error);

} // namespace ostrel
