#pragma once

#include "ostrel/moduleobject.h"
#include "ostrel/node_p.h"

#include <QPointer>
#include <exception>
#include <memory>
#include <vector>

namespace ostrel
{

/** Handles of the global store by the number of their whole key: the usual lookup is one probe. */
using KeyCache = std::vector<ModuleObject *>;

/**
 * What a handle knows. A handle stands for a place of a tree: attached to the node there, or, as a
 * placeholder, kept by the handle above until such a node comes.
 */
class ModuleObjectPrivate
{
public:
    ModuleObjectPrivate(ModuleObject *object, ModuleObjectPrivate *above, NameId ownName);
    ~ModuleObjectPrivate();
    Q_DISABLE_COPY(ModuleObjectPrivate)

    /** The root of the global store; never destroyed. */
    static ModuleObject &store();
    /** The last list of many records that was exported whole, as long as it lives. */
    static QPointer<const ModuleObject> &lastExported();
    /** The node of that list, or null. */
    static const Node *lastExportedNode();

    /** The handle one step below, made where it is missing. */
    ModuleObjectPrivate *below(QStringView step);
    ModuleObjectPrivate *handleOf(const Node &child);
    /**
     * The node of this handle, to be changed, made where it is a placeholder. What JSON it and the
     * nodes above keep is dropped: ask anew for each change, and after everything that may export.
     */
    Node *ensureNode();
    int depth() const;
    bool isListElement() const { return parent && parent->node && parent->node->isList(); }
    bool isWatched() const;

    /** The node goes, and all below it: become a placeholder, or retire as a list element. */
    void letGo(bool element);
    /** Gives placeholders below their nodes, where such have come. */
    void attachPlaceholders();
    /** Takes over the content of a node without handles. */
    void takeContent(Node &source);
    /** The same for any object, which with notify tells its changes. */
    static void replaceContent(ModuleObject &object, Node &source, QObject *origin, bool notify);
    /** Removes the node that this handle is attached to. */
    void removeNode();
    /**
     * Appends this root, with its content and its handles, to the list at above. Returns the
     * element's handle: a placeholder that had waited for the place, and then this one retires.
     */
    ModuleObjectPrivate *moveBelow(ModuleObjectPrivate *above);

    ModuleObject *cached(const QString &path) const
    {
        if (!cache)
            return nullptr;
        const NameId id = NameTable::instance().find(path);
        return id < cache->size() ? (*cache)[id] : nullptr;
    }
    void remember(const QString &path, ModuleObjectPrivate *handle);

    ModuleObject *const q;
    ModuleObjectPrivate *parent;
    Name name;
    const Node *node = nullptr; // null: a placeholder
    Node own; // the root node of a tree
    std::vector<ModuleObjectPrivate *> placeholders;
    std::unique_ptr<KeyCache> cache; // of the global store's root
    Name key; // under which the cache has this handle

private:
    void attachTo(const Node &found);
    void takeContentOf(ModuleObjectPrivate &other);
    ModuleObjectPrivate *placeholder(QStringView step);
    void dropPlaceholder(ModuleObjectPrivate *handle);
    void retire();
    void forgetKey();
    void deleteHandlesBelow();
};

/**
 * Remembers what the watched nodes from a handle on held, so that after a change of any shape those
 * whose content differs can tell. Nothing is emitted before the whole change has been made.
 */
class ChangeReport
{
public:
    /** Without notify, it remembers and emits nothing. */
    ChangeReport(ModuleObjectPrivate *from, bool notify);
    /** Emits changed(): the innermost nodes first, the node itself last and in any case. */
    void emitChanges(QObject *origin);

private:
    struct Watched {
        QPointer<ModuleObject> object;
        QVariant before;
        bool wasNull;
        QVariant after;
    };

    void remember(ModuleObjectPrivate *handle);
    void tell(ModuleObject *object, const Watched &watched, QObject *origin);

    QPointer<ModuleObject> m_first;
    std::exception_ptr m_thrown;
    std::vector<Watched> m_watched;
};

} // namespace ostrel
