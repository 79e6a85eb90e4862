#pragma once

#include "hostexport.h"

#include <QByteArray>
#include <QJsonValue>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <memory>

namespace ostrel
{

class ModuleObjectPrivate;

/**
 * A handle to one place of a tree: of the global data store, see m(), or of a tree of its own.
 *
 * A node has a value or children; children are named (an object) or in a row (a list). The tree
 * itself is compact; a handle exists only for places that someone asked for, and can be watched
 * whether or not something is there. Where nothing is, it is a placeholder: isNull() is true, and
 * neither iteration nor export shows it. It becomes a node as soon as something is set there, and a
 * placeholder again when that is removed.
 *
 * Paths are names joined by dots. Below a list the step "#n" is the element at place n; any other
 * step is the name of a child, taken literally. An empty path is the node itself. Names that come
 * from JSON are child names as they stand and may hold dots and "#"; child() and setChild() reach
 * them. Trees are at most 1024 levels deep.
 *
 * Lifetime: a handle belongs to its tree; never delete it. It lives as long as its root, unless it
 * stands for a list element, or lies below one: when that element is removed, the handle becomes
 * an empty node apart from the tree and is deleted when control returns to the event loop. A node
 * may be set again or removed inside its own changed().
 *
 * Notification: set() tells the node that was set and no other. importFromJson(), fromJsonText(),
 * copyFrom() and remove() tell, once the whole change has been made, each watched node below whose
 * content has become different, from the leaves up, and then the node itself in any case. Nodes
 * above are never told.
 *
 * GUI thread only. No operation blocks, or throws anything but what a receiver of changed() threw:
 * that reaches the caller once all nodes have told their change.
 */
class HOST_EXPORT ModuleObject : public QObject
{
    Q_OBJECT

public:
    /** An empty node that is the root of a tree of its own. parent only owns the object. */
    explicit ModuleObject(const QString &name = QString(), QObject *parent = nullptr);
    /** Ends the tree of a root with all its handles. */
    ~ModuleObject() override;

    /** The child's name; of a list element without one its list step ("#3"). */
    QString name() const;
    /** True for a placeholder: a node that is watched or was looked up, but has no content. */
    bool isNull() const;
    /** Whether its children are in a row. */
    bool isList() const;

    /**
     * The descendant at the dotted path ("a.b.#0"); a placeholder where there is none yet. Never
     * null: a path beyond the depth limit gives an empty node apart from the tree, and a warning.
     */
    ModuleObject *r(const QString &path);
    /** True where the path leads to a node that is no placeholder. */
    bool contains(const QString &path) const;

    /**
     * The value under the type that it was set with; what came from JSON holds bool, qlonglong,
     * double or QString. A container gives its JSON as QVariantMap or QVariantList. Invalid for a
     * placeholder and an empty value.
     */
    QVariant value() const;
    /**
     * The value as a bool, as all typed getters read it: converted, defaultValue where there is
     * none or where it can't be converted: a text that is no number, a number outside int, a
     * container. Numbers are rounded to int. As bool, the texts "", "0" and "false" are false and
     * all others true. Getters with a path make no handles.
     */
    bool getBool(bool defaultValue) const;
    /** The value as a whole number, likewise. */
    int getInt(int defaultValue) const;
    /** The value as a number, likewise. */
    double getDouble(double defaultValue) const;
    /** The value as a text, likewise. */
    QString getStr(const QString &defaultValue) const;
    /** The value of the descendant at the dotted path, likewise. */
    bool getBool(const QString &path, bool defaultValue) const;
    /** A descendant's value as a whole number. */
    int getInt(const QString &path, int defaultValue) const;
    /** A descendant's value as a number. */
    double getDouble(const QString &path, double defaultValue) const;
    /** A descendant's value as a text. */
    QString getStr(const QString &path, const QString &defaultValue) const;

    /**
     * Sets this node's value; with notify always emits changed(), also when the value is equal.
     * Makes a placeholder a node, even with an empty value. An empty value leaves children as they
     * are: it only tells the watchers of this node. Any other value takes their place. Maps, lists
     * and JSON containers become children, as importFromJson() with replace and create does it.
     */
    void set(QObject *origin, const QVariant &value, bool notify = true);
    /**
     * Sets the descendant at the dotted path, which is made where it is missing: "#n" makes a node
     * without children a list and fills it with empty elements up to place n (at most 999999).
     */
    void set(QObject *origin, const QString &path, const QVariant &value, bool notify);

    /** Number of children; placeholders do not count. */
    int childCount() const;
    /** The child at that place; null outside. */
    ModuleObject *childAt(int index);
    /** The names of the children, in order, as name() gives them. */
    QStringList childNames() const;
    /** The child of exactly that name, which is no path; null where there is none. */
    ModuleObject *child(const QString &name);
    /** Sets the child of exactly that name, which is no path; made where it is missing. */
    ModuleObject *setChild(QObject *origin, const QString &name, const QVariant &value,
                           bool notify = true);
    /**
     * The place of the first child whose member field reads as the given text; -1 where there is
     * none. A member is read as getStr("") does it: a number as its digits, a missing one as "".
     * Neither field nor text is a path.
     */
    int indexOf(const QString &field, const QString &text,
                Qt::CaseSensitivity sensitivity = Qt::CaseSensitive) const;

    /**
     * Puts child, the root of a tree of its own, at the end of this list: its handles stay valid
     * and belong to this tree from then on. A node without children becomes a list. With notify
     * emits this node's changed(). Returns the element: child itself, unless a placeholder had
     * waited for that place, which then gets the content, and child goes like a removed element.
     * Null, with child gone and nothing changed, where this node is an object with children.
     */
    ModuleObject *append(QObject *origin, std::unique_ptr<ModuleObject> child, bool notify = true);
    /** Removes all children, or the value; the node stays, and stays a list or an object. */
    void clear(QObject *origin, bool notify = true);
    /** Removes this node from its parent; a root becomes a placeholder. */
    void remove(QObject *origin, bool notify = true);
    /** Removes the child at that place, and tells both; false where there is none. */
    bool removeAt(QObject *origin, int index, bool notify = true);
    /** Replaces the content by a deep copy of source, which may lie in this tree. */
    void copyFrom(QObject *origin, const ModuleObject &source, bool notify = true);
    /** A name for a record that no other record has: a UUID without braces. */
    static QString generateId();

    /**
     * The node as JSON; with children, all its descendants, without, an empty container. Null for a
     * placeholder. A whole number is an integer in JSON, whichever type it was set with.
     */
    QJsonValue exportToJson(bool children = true) const;
    /**
     * Fills the node from JSON. Members are children by name, elements by position. replace:
     * children that json lacks go; create: new ones come, and a node changes between value, object
     * and list as json says; without create, a node that json gives children stays as it is if it
     * is no such container. Values are set in any case. Returns false, with nothing changed, where
     * json is undefined, and false where it is too deep: what is below the limit is left out.
     */
    bool importFromJson(QObject *origin, const QJsonValue &json, bool replace, bool create,
                        bool notify);

    /**
     * The node as JSON text in UTF-8, in the order of the children: faster than the way through
     * QJsonValue, with the same layout. indented: one member a line, four blanks a level. Numbers
     * read back as the same doubles; those that are not finite become null.
     */
    QByteArray toJsonText(bool indented) const;
    /**
     * Replaces the content by the JSON text, whose top may be any value; of members of the same
     * name the last counts. Returns false, with nothing changed, where the text is no JSON
     * (RFC 8259), no UTF-8 or nested deeper than 512; error, if given, says why, with line, column
     * and byte offset.
     */
    bool fromJsonText(QObject *origin, const QByteArray &text, QString *error = nullptr,
                      bool notify = true);

Q_SIGNALS:
    /**
     * The node was set, or its content has changed: see Notification. A removed node tells an
     * invalid new value. A container that was touched, or whose element was appended or removed
     * by place, tells two invalid values.
     */
    void changed(const QVariant &newValue, const QVariant &oldValue, QObject *origin);

private:
    friend class ModuleObjectPrivate;
    friend class ChangeReport;
    ModuleObject(ModuleObjectPrivate *above, quint32 name);

    void setContainer(QObject *origin, const QVariant &value, bool notify);

    std::unique_ptr<ModuleObjectPrivate> d;
};

} // namespace ostrel

/**
 * The host data store's lookup: the node at the dotted key below root (null: the whole store).
 * Never null; a key without content gives a placeholder that can be watched. The store lives as
 * long as the process: objects with static storage may use it to the end. GUI thread.
 */
HOST_EXPORT ostrel::ModuleObject *m(const QString &key, ostrel::ModuleObject *root = nullptr);
