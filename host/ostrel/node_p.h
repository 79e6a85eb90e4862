#pragma once

#include "ostrel/nametable_p.h"

#include <QJsonValue>
#include <QVariant>
#include <utility>

namespace ostrel
{

class ModuleObjectPrivate;
struct Children;

/** The index of a list step ("#0" to "#999999", no leading zeros); -1 for any other step. */
int listIndex(QStringView step);

/**
 * One place of a tree: a value, or children. 24 bytes; children lie side by side in one block, so a
 * node moves when its siblings come and go. A node that someone asked for has a handle, which
 * follows those moves. A node with a handle hangs below nodes with handles only.
 *
 * A container may keep the JSON that it was exported as. Who changes a node changes all that it
 * lies in: each change of a node drops its kept JSON, and so does each way down to a child that may
 * be changed. Reading goes through const nodes, which drop nothing. What lies above the node where
 * a change starts is ModuleObjectPrivate::ensureNode()'s business.
 */
class Node
{
public:
    enum class Kind : quint8 { Empty, Bool, Int, LongLong, Double, String, Variant, Object, List };

    Node() = default;
    /** Takes over one reference to name. */
    explicit Node(NameId name)
        : m_name(name)
    {
    }
    ~Node()
    {
        destroyContent();
        NameTable::instance().release(m_name);
    }
    Q_DISABLE_COPY(Node)

    Kind kind() const { return m_kind; }
    bool isList() const { return m_kind == Kind::List; }
    bool isContainer() const { return m_kind >= Kind::Object; }
    NameId name() const { return m_name; }

    // The value
    /** Drops the content, children included: their handles must have been let go before. */
    void reset(Kind kind = Kind::Empty);
    /** Stores anything but maps, lists and JSON containers, under the type that it came with. */
    void setValue(const QVariant &value);
    void setNumber(double number);
    void setLongLong(qint64 number);
    void setBool(bool on);
    void setString(const QString &text);
    /** The value; of a container its JSON as QVariantMap or QVariantList. */
    QVariant value() const;
    bool toBool(bool defaultValue) const;
    int toInt(int defaultValue) const;
    double toDouble(double defaultValue) const;
    QString toStr(const QString &defaultValue) const;

    // Without a check of the kind
    bool boolean() const { return m_payload.boolean; }
    qint64 integer() const { return m_payload.integer; }
    double real() const { return m_payload.real; }
    const QString &string() const { return m_payload.string; }
    const QVariant &variant() const { return *m_payload.variant; }

    // The children: valid until the next change of this node's children
    int childCount() const;
    const Node *childAt(int index) const;
    const Node *begin() const;
    const Node *end() const { return begin() + childCount(); }
    /** The first child of that name. */
    const Node *child(NameId name) const;
    /** The child at one step of a path: "#n" counts in a list, all else is a name. */
    const Node *descend(QStringView step) const;
    /** Has the processor load the first children; nothing else. */
    void prefetchChildren() const;
    // The same, to be changed
    Node *childAt(int index) { return toChange(std::as_const(*this).childAt(index)); }
    Node *child(NameId name) { return toChange(std::as_const(*this).child(name)); }
    Node *descend(QStringView step) { return toChange(std::as_const(*this).descend(step)); }
    /** Appends an empty child to a container; takes over one reference to name. */
    Node *append(NameId name);
    /** Makes room for as many children and no more. */
    void reserve(int count);
    void removeAt(int index);
    /** Makes this an Object or a List of count nodes from raw, which are moved, not copied. */
    void adopt(Kind kind, Node *raw, int count);

    /** Replaces the content by a deep copy; the source's handles stay where they are. */
    void copyContent(const Node &source);
    /** Replaces the content by that of source, which is empty then. */
    void takeContent(Node &source);

    /** The JSON that this container was exported as, if it is kept; else undefined. */
    QJsonValue keptJson() const;
    void keepJson(const QJsonValue &json) const;
    void dropKeptJson() const;

    // A handle stands beside the content: giving a node one changes nothing.
    mutable ModuleObjectPrivate *handle = nullptr;

private:
    union Payload {
        Payload()
            : integer(0)
        {
        }
        ~Payload() { }
        bool boolean;
        qint64 integer;
        double real;
        QString string;
        QVariant *variant;
        Children *children;
    };

    Children *children() const { return isContainer() ? m_payload.children : nullptr; }
    Node *toChange(const Node *child)
    {
        dropKeptJson();
        return const_cast<Node *>(child);
    }
    Children *resize(quint32 capacity);
    void destroyContent();
    void destroyChildren();
    void setVariant(const QVariant &value);

    Payload m_payload;
    NameId m_name = 0;
    Kind m_kind = Kind::Empty;
};

} // namespace ostrel
