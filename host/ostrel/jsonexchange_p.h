#pragma once

#include "ostrel/node_p.h"

#include <QJsonValue>

namespace ostrel
{

/** How deep a tree may be; deeper paths and documents are refused. Bounds every recursion. */
constexpr int maxDepth = 1024;

/** The node as JSON, with all that is below it; without children a container is an empty one. */
QJsonValue toJson(const Node &node, bool children = true);

/** A list of so many elements that keeping the JSON of those that have not changed pays. */
bool isRecordList(const Node &node);

/**
 * The same, and each record of a list of many keeps the JSON of what is nested in it: the next
 * export builds anew only what was changed meanwhile, and the flat fields of the others.
 */
QJsonValue toJsonKeeping(const Node &node);

/**
 * Sets the node to json. Members are children by their literal names, elements go by position.
 * replace: children that json lacks are removed. create: children that json has are made. Returns
 * false where json is undefined or deeper than depth levels; what lies deeper is left out.
 */
bool fromJson(Node &node, const QJsonValue &json, bool replace, bool create, int depth = maxDepth);

} // namespace ostrel
