#include "ostrel/treeedit_p.h"

#include "ostrel/moduleobject_p.h"

namespace ostrel
{

namespace
{
void letGoChildren(const Node &node)
{
    if (!node.handle)
        return;
    for (const Node &child : node) {
        if (child.handle)
            child.handle->letGo(node.isList());
    }
}

void attachPlaceholders(const Node &node)
{
    if (node.handle)
        node.handle->attachPlaceholders();
}

void appendEmpty(Node &list, int count)
{
    while (list.childCount() < count)
        appendChild(list, 0);
}
} // namespace

void resetContent(Node &node, Node::Kind kind)
{
    letGoChildren(node);
    node.reset(kind);
}

void removeChildAt(Node &parent, int index)
{
    const Node *child = parent.childAt(index);
    if (child->handle)
        child->handle->letGo(parent.isList());
    parent.removeAt(index);
}

Node *appendChild(Node &parent, NameId name)
{
    NameTable::instance().acquire(name);
    Node *child = parent.append(name);
    attachPlaceholders(parent);
    return child;
}

Node *makeStep(Node &node, QStringView step)
{
    if (Node *there = node.descend(step))
        return there;
    const int index = listIndex(step);
    if (index >= 0 && !node.childCount() && !node.isList())
        resetContent(node, Node::Kind::List);
    if (index >= 0 && node.isList()) {
        appendEmpty(node, index + 1);
        return node.childAt(index);
    }
    if (!node.isContainer())
        resetContent(node, Node::Kind::Object);
    const Name name(step);
    return appendChild(node, name.id());
}

Node *makePath(Node &node, const QString &path, int depth)
{
    if (path.count(QLatin1Char('.')) >= depth)
        return nullptr;
    Node *at = &node;
    forEachStep(path, [&](QStringView step) { return (at = makeStep(*at, step)) != nullptr; });
    return at;
}

const Node *findPath(const Node *node, const QString &path)
{
    if (!node)
        return nullptr;
    forEachStep(path, [&](QStringView step) { return (node = node->descend(step)) != nullptr; });
    return node;
}

} // namespace ostrel
