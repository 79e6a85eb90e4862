#include "ostrel/moduleobject_p.h"

#include "ostrel/jsonexchange_p.h"
#include "ostrel/treeedit_p.h"

#include <QMetaMethod>
#include <algorithm>

namespace ostrel
{

namespace
{
// Retired handles wait here for the event loop; where none runs any more, they go at exit.
QObject *retiredHandles()
{
    static QObject owner;
    return &owner;
}
} // namespace

ModuleObjectPrivate::ModuleObjectPrivate(ModuleObject *object, ModuleObjectPrivate *above,
                                         NameId ownName)
    : q(object)
    , parent(above)
    , name(ownName)
{
}

ModuleObjectPrivate::~ModuleObjectPrivate()
{
    forgetKey();
    deleteHandlesBelow();
    if (node)
        node->handle = nullptr;
    else if (parent)
        parent->dropPlaceholder(this);
}

void ModuleObjectPrivate::deleteHandlesBelow()
{
    const auto end = [](ModuleObjectPrivate *handle) {
        handle->parent = nullptr;
        delete handle->q;
    };
    const int count = node ? node->childCount() : 0;
    for (int i = 0; i < count; ++i) {
        if (ModuleObjectPrivate *handle = node->childAt(i)->handle)
            end(handle);
    }
    for (ModuleObjectPrivate *handle : std::exchange(placeholders, {}))
        end(handle);
}

void ModuleObjectPrivate::dropPlaceholder(ModuleObjectPrivate *handle)
{
    const auto place = std::find(placeholders.begin(), placeholders.end(), handle);
    if (place != placeholders.end())
        placeholders.erase(place);
}

ModuleObjectPrivate *ModuleObjectPrivate::below(QStringView step)
{
    const Node *child = node ? node->descend(step) : nullptr;
    return child ? handleOf(*child) : placeholder(step);
}

ModuleObjectPrivate *ModuleObjectPrivate::handleOf(const Node &child)
{
    if (!child.handle) {
        child.handle = (new ModuleObject(this, child.name()))->d.get();
        child.handle->node = &child;
    }
    return child.handle;
}

ModuleObjectPrivate *ModuleObjectPrivate::placeholder(QStringView step)
{
    const Name wanted(step);
    for (ModuleObjectPrivate *handle : placeholders) {
        if (handle->name.id() == wanted.id())
            return handle;
    }
    if (depth() >= maxDepth) {
        qWarning("ModuleObject: a path of more than %d levels leads out of the tree", maxDepth);
        ModuleObjectPrivate *outside = (new ModuleObject(nullptr, wanted.id()))->d.get();
        outside->retire();
        return outside;
    }
    placeholders.push_back((new ModuleObject(this, wanted.id()))->d.get());
    return placeholders.back();
}

Node *ModuleObjectPrivate::ensureNode()
{
    if (!node && parent) {
        makeStep(*parent->ensureNode(), name.text());
    } else if (!node) {
        node = &own;
        own.handle = this;
    }
    for (const ModuleObjectPrivate *at = this; at && at->node; at = at->parent)
        at->node->dropKeptJson();
    return const_cast<Node *>(node);
}

int ModuleObjectPrivate::depth() const
{
    int levels = 0;
    for (const ModuleObjectPrivate *above = parent; above; above = above->parent)
        ++levels;
    return levels;
}

bool ModuleObjectPrivate::isWatched() const
{
    static const QMetaMethod signal = QMetaMethod::fromSignal(&ModuleObject::changed);
    return q->isSignalConnected(signal);
}

void ModuleObjectPrivate::letGo(bool element)
{
    for (const Node &child : *node) {
        if (child.handle)
            child.handle->letGo(element || node->isList());
    }
    node->handle = nullptr;
    node = nullptr;
    if (element)
        retire();
    else
        parent->placeholders.push_back(this);
}

void ModuleObjectPrivate::retire()
{
    forgetKey();
    for (ModuleObjectPrivate *handle : std::exchange(placeholders, {}))
        handle->retire();
    parent = nullptr;
    q->setParent(retiredHandles());
    q->deleteLater();
}

void ModuleObjectPrivate::attachPlaceholders()
{
    for (size_t i = 0; i < placeholders.size();) {
        ModuleObjectPrivate *handle = placeholders[i];
        const Node *found = node->descend(handle->name.text());
        if (!found) {
            ++i;
            continue;
        }
        placeholders.erase(placeholders.begin() + std::ptrdiff_t(i));
        handle->attachTo(*found);
    }
}

// An element may have been awaited by name and by place: the first handle has it, and as two can't
// stand for one node, the other goes.
void ModuleObjectPrivate::attachTo(const Node &found)
{
    if (found.handle) {
        retire();
        return;
    }
    found.handle = this;
    node = &found;
    attachPlaceholders();
}

void ModuleObjectPrivate::takeContent(Node &source)
{
    Node *changing = ensureNode();
    resetContent(*changing, Node::Kind::Empty);
    changing->takeContent(source);
    attachPlaceholders();
}

void ModuleObjectPrivate::replaceContent(ModuleObject &object, Node &source, QObject *origin,
                                         bool notify)
{
    ChangeReport report(object.d.get(), notify);
    object.d->takeContent(source);
    report.emitChanges(origin);
}

void ModuleObjectPrivate::removeNode()
{
    if (parent) {
        Node &above = *parent->ensureNode();
        removeChildAt(above, int(node - std::as_const(above).begin()));
        return;
    }
    resetContent(*ensureNode(), Node::Kind::Empty);
    node->handle = nullptr;
    node = nullptr;
}

ModuleObjectPrivate *ModuleObjectPrivate::moveBelow(ModuleObjectPrivate *above)
{
    ensureNode();
    Node *place = appendChild(*above->ensureNode(), name.id());
    if (ModuleObjectPrivate *waiting = place->handle) {
        waiting->takeContentOf(*this);
        return waiting;
    }
    place->takeContent(own);
    own.handle = nullptr;
    place->handle = this;
    node = place;
    parent = above;
    q->setParent(nullptr);
    return this;
}

void ModuleObjectPrivate::takeContentOf(ModuleObjectPrivate &other)
{
    Node content;
    content.copyContent(other.own);
    other.letGo(true);
    takeContent(content);
}

ModuleObject &ModuleObjectPrivate::store()
{
    static ModuleObject *const root = [] {
        auto *object = new ModuleObject;
        object->d->cache = std::make_unique<KeyCache>();
        return object;
    }();
    return *root;
}

QPointer<const ModuleObject> &ModuleObjectPrivate::lastExported()
{
    static auto *const list = new QPointer<const ModuleObject>;
    return *list;
}

const Node *ModuleObjectPrivate::lastExportedNode()
{
    const ModuleObject *list = lastExported();
    return list ? list->d->node : nullptr;
}

void ModuleObjectPrivate::remember(const QString &path, ModuleObjectPrivate *handle)
{
    if (!cache)
        return;
    handle->key.reset(Name(QStringView(path)).id());
    if (cache->size() <= handle->key.id())
        cache->resize(NameTable::instance().end());
    (*cache)[handle->key.id()] = handle->q;
}

void ModuleObjectPrivate::forgetKey()
{
    if (!key.id())
        return;
    const ModuleObjectPrivate *root = this;
    while (root->parent)
        root = root->parent;
    if (root->cache)
        (*root->cache)[key.id()] = nullptr;
    key.reset();
}

ChangeReport::ChangeReport(ModuleObjectPrivate *from, bool notify)
{
    if (!notify)
        return;
    m_first = from->q;
    remember(from);
}

void ChangeReport::remember(ModuleObjectPrivate *handle)
{
    const int count = handle->node ? handle->node->childCount() : 0;
    for (int i = 0; i < count; ++i) {
        if (ModuleObjectPrivate *below = handle->node->childAt(i)->handle)
            remember(below);
    }
    for (ModuleObjectPrivate *below : handle->placeholders)
        remember(below);
    if (handle->isWatched())
        m_watched.push_back({handle->q, handle->q->value(), handle->q->isNull(), {}});
}

void ChangeReport::emitChanges(QObject *origin)
{
    for (Watched &watched : m_watched)
        watched.after = watched.object->value();
    for (const Watched &watched : m_watched) {
        ModuleObject *object = watched.object;
        if (!object)
            continue;
        const bool differs
            = watched.before != watched.after || watched.wasNull != watched.object->isNull();
        if (differs || object == m_first)
            tell(object, watched, origin);
    }
    if (m_thrown)
        std::rethrow_exception(m_thrown);
}

// What one receiver throws reaches the caller only after the other nodes have told theirs.
void ChangeReport::tell(ModuleObject *object, const Watched &watched, QObject *origin)
{
    try {
        Q_EMIT object->changed(watched.after, watched.before, origin);
    } catch (...) {
        if (!m_thrown)
            m_thrown = std::current_exception();
    }
}

} // namespace ostrel
