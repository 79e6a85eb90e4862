#pragma once

#include "ostrel/node_p.h"

namespace ostrel
{

// Changes of a tree's shape that keep its handles right: a handle whose node comes is attached to
// it, one whose node goes becomes a placeholder, or retires where it stood for a list element.

/** Drops the node's content and makes it an empty node of that kind. */
void resetContent(Node &node, Node::Kind kind);

void removeChildAt(Node &parent, int index);

/** Appends a child to a container, with a reference of its own to name. */
Node *appendChild(Node &parent, NameId name);

/**
 * The node that lies path below node, made where it is missing, or null where that would be deeper
 * than depth levels. A missing "#n" makes an empty node a list and fills it up to that place; any
 * other missing step makes a node that has no children an object, and its value goes.
 */
Node *makePath(Node &node, const QString &path, int depth);
Node *makeStep(Node &node, QStringView step);

/** The node that lies path below node, or null. */
const Node *findPath(const Node *node, const QString &path);

/** Calls step(QStringView) for each step of a dotted path until it returns false. */
template <typename Step>
bool forEachStep(const QString &path, Step step)
{
    if (path.isEmpty())
        return true;
    const QChar *const end = path.constData() + path.size();
    const QChar *from = path.constData();
    for (const QChar *at = from; at != end; ++at) {
        if (*at != QLatin1Char('.'))
            continue;
        if (!step(QStringView(from, at)))
            return false;
        from = at + 1;
    }
    return step(QStringView(from, end));
}

} // namespace ostrel
