#include "ostrel/jsonexchange_p.h"

#include "ostrel/treeedit_p.h"

#include <QJsonArray>
#include <QJsonObject>
#include <algorithm>
#include <cmath>

namespace ostrel
{

namespace
{
struct ImportMode {
    bool replace;
    bool create;
};

bool importValue(Node &node, const QJsonValue &json, ImportMode mode, int depth);

void setNumber(Node &node, const QJsonValue &json)
{
    constexpr double exactIntegers = 9007199254740992.0; // 2^53: above, only the variant is exact
    const double number = json.toDouble();
    if (std::fabs(number) < exactIntegers) {
        const auto whole = qint64(number);
        double(whole) == number ? node.setLongLong(whole) : node.setNumber(number);
        return;
    }
    const QVariant exact = json.toVariant();
    exact.userType() == QMetaType::LongLong ? node.setLongLong(exact.toLongLong())
                                            : node.setNumber(number);
}

void setScalar(Node &node, const QJsonValue &json)
{
    resetContent(node, Node::Kind::Empty);
    if (json.isDouble())
        setNumber(node, json);
    else if (json.isString())
        node.setString(json.toString());
    else if (json.isBool())
        node.setBool(json.toBool());
}

// A container of that kind, or false where making it one is not allowed.
bool becomeContainer(Node &node, Node::Kind kind, ImportMode mode, int size)
{
    if (node.kind() == kind)
        return true;
    if (!mode.create)
        return false;
    resetContent(node, kind);
    node.reserve(size);
    return true;
}

void removeOthers(Node &node, const QJsonObject &members)
{
    const NameTable &names = NameTable::instance();
    for (int i = node.childCount(); i-- > 0;) {
        if (!members.contains(names.text(node.childAt(i)->name())))
            removeChildAt(node, i);
    }
}

bool importObject(Node &node, const QJsonObject &members, ImportMode mode, int depth)
{
    if (!becomeContainer(node, Node::Kind::Object, mode, members.size()))
        return true;
    if (mode.replace)
        removeOthers(node, members);
    bool complete = true;
    for (auto member = members.begin(); member != members.end(); ++member) {
        const Name name {QStringView(member.key())};
        Node *child = node.child(name.id());
        if (!child && mode.create)
            child = appendChild(node, name.id());
        if (child)
            complete = importValue(*child, member.value(), mode, depth - 1) && complete;
    }
    return complete;
}

bool importList(Node &node, const QJsonArray &elements, ImportMode mode, int depth)
{
    if (!becomeContainer(node, Node::Kind::List, mode, elements.size()))
        return true;
    while (mode.replace && node.childCount() > elements.size())
        removeChildAt(node, node.childCount() - 1);
    bool complete = true;
    int index = 0;
    for (const QJsonValue &element : elements) {
        Node *child = node.childAt(index++);
        if (!child && mode.create)
            child = appendChild(node, 0);
        if (child)
            complete = importValue(*child, element, mode, depth - 1) && complete;
    }
    return complete;
}

bool importValue(Node &node, const QJsonValue &json, ImportMode mode, int depth)
{
    if (depth < 0)
        return false;
    if (json.isObject())
        return importObject(node, json.toObject(), mode, depth);
    if (json.isArray())
        return importList(node, json.toArray(), mode, depth);
    setScalar(node, json);
    return true;
}

template <typename Export>
QJsonValue exportChildren(const Node &node, Export exportChild)
{
    if (node.isList()) {
        QJsonArray elements;
        for (const Node &child : node)
            elements.append(exportChild(child));
        return elements;
    }
    const NameTable &names = NameTable::instance();
    QJsonObject members;
    for (const Node &child : node)
        members.insert(names.text(child.name()), exportChild(child));
    return members;
}

QJsonValue exportContainer(const Node &node)
{
    QJsonValue kept = node.keptJson();
    if (!kept.isUndefined())
        return kept;
    return exportChildren(node, [](const Node &child) { return toJson(child); });
}

bool holdsContainers(const Node &node)
{
    const auto isContainer = [](const Node &child) { return child.isContainer(); };
    return std::any_of(node.begin(), node.end(), isContainer);
}

// What a record holds flat is made in no time, but takes memory for each record.
QJsonValue exportMember(const Node &member)
{
    if (!holdsContainers(member))
        return toJson(member);
    QJsonValue json = exportContainer(member);
    member.keepJson(json);
    return json;
}

QJsonValue exportRecord(const Node &record)
{
    return record.isContainer() ? exportChildren(record, exportMember) : toJson(record);
}
} // namespace

bool fromJson(Node &node, const QJsonValue &json, bool replace, bool create, int depth)
{
    return !json.isUndefined() && importValue(node, json, {replace, create}, depth);
}

QJsonValue toJson(const Node &node, bool children)
{
    switch (node.kind()) {
    case Node::Kind::Empty:
        return QJsonValue::Null;
    case Node::Kind::Bool:
        return node.boolean();
    case Node::Kind::Int:
    case Node::Kind::LongLong:
        return node.integer();
    case Node::Kind::Double:
        return node.real();
    case Node::Kind::String:
        return node.string();
    case Node::Kind::Variant:
        return QJsonValue::fromVariant(node.variant());
    case Node::Kind::Object:
        return children ? exportContainer(node) : QJsonObject();
    case Node::Kind::List:
        return children ? exportContainer(node) : QJsonArray();
    }
    return QJsonValue::Null;
}

bool isRecordList(const Node &node)
{
    constexpr int manyRecords = 64; // fewer are exported in no time
    return node.isList() && node.childCount() >= manyRecords;
}

QJsonValue toJsonKeeping(const Node &node)
{
    if (!node.isContainer())
        return toJson(node);
    return exportChildren(node, isRecordList(node) ? exportRecord : toJsonKeeping);
}

} // namespace ostrel
