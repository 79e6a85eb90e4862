#pragma once

#include "ostrel/node_p.h"

#include <QByteArray>
#include <QString>

namespace ostrel
{

/** The node as JSON text in UTF-8, laid out as QJsonDocument does it, in the order of children. */
QByteArray writeJsonText(const Node &node, bool indented);

/**
 * Reads JSON text (RFC 8259, UTF-8, at most 512 levels) into node, which must be empty and without
 * a handle. On failure returns false, node stays empty, and error, if given, says why and where.
 */
bool parseJsonText(const QByteArray &text, Node *node, QString *error);

} // namespace ostrel
