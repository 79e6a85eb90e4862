#include "ostrel/node_p.h"

#include "ostrel/jsonexchange_p.h"
#include "ostrel/moduleobject_p.h"

#include <QHash>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <memory>
#include <new>

namespace ostrel
{

/** What few containers have. */
struct Extras {
    std::unique_ptr<QHash<NameId, quint32>> index; // places by name, for a lookup among many
    QJsonValue json {QJsonValue::Undefined}; // what the container was exported as
};

/** The block of a container's children: this header, then the nodes. */
struct Children {
    Node *nodes() { return reinterpret_cast<Node *>(this + 1); }
    Extras &extras()
    {
        if (!extra)
            extra = new Extras;
        return *extra;
    }

    quint32 count;
    quint32 capacity;
    Extras *extra; // null until it is needed
};

namespace
{
constexpr quint32 indexedFrom = 32; // below, comparing numbers one by one is faster than hashing

void followMoves(const Node *from, const Node *to)
{
    for (const Node *node = from; node != to; ++node) {
        if (node->handle)
            node->handle->node = node;
    }
}

// Nodes are moved as bytes: nothing in them points into them, and handles are told.
void moveBytes(Node *to, const Node *from, quint32 count)
{
    std::memmove(static_cast<void *>(to), static_cast<const void *>(from), count * sizeof(Node));
}

void buildIndex(Children &children)
{
    auto index = std::make_unique<QHash<NameId, quint32>>();
    index->reserve(int(children.count));
    for (quint32 i = children.count; i-- > 0;)
        index->insert(children.nodes()[i].name(), i);
    children.extras().index = std::move(index);
}

int roundedInt(double number, int defaultValue)
{
    const double rounded = std::round(number);
    const bool fits
        = rounded >= std::numeric_limits<int>::min() && rounded <= std::numeric_limits<int>::max();
    return fits ? int(rounded) : defaultValue;
}

bool textMeansTrue(const QString &text)
{
    return !text.isEmpty() && text != QLatin1String("0")
        && text.compare(QLatin1String("false"), Qt::CaseInsensitive) != 0;
}
} // namespace

int listIndex(QStringView step)
{
    constexpr int maxDigits = 6;
    if (step.size() < 2 || step.size() > maxDigits + 1 || step[0] != QLatin1Char('#'))
        return -1;
    if (step[1] == QLatin1Char('0') && step.size() > 2)
        return -1;
    int index = 0;
    for (const QChar digit : step.mid(1)) {
        if (digit < QLatin1Char('0') || digit > QLatin1Char('9'))
            return -1;
        index = index * 10 + (digit.unicode() - '0');
    }
    return index;
}

void Node::reset(Kind kind)
{
    destroyContent();
    m_kind = kind;
    m_payload.integer = 0;
    if (kind == Kind::String)
        new (&m_payload.string) QString;
}

void Node::destroyContent()
{
    if (m_kind == Kind::String)
        m_payload.string.~QString();
    else if (m_kind == Kind::Variant)
        delete m_payload.variant;
    else if (isContainer())
        destroyChildren();
}

void Node::destroyChildren()
{
    Children *block = m_payload.children;
    if (!block)
        return;
    for (Node *node = block->nodes(); node != block->nodes() + block->count; ++node)
        node->~Node();
    delete block->extra;
    std::free(block);
}

void Node::setBool(bool on)
{
    reset(Kind::Bool);
    m_payload.boolean = on;
}

void Node::setLongLong(qint64 number)
{
    reset(Kind::LongLong);
    m_payload.integer = number;
}

void Node::setNumber(double number)
{
    reset(Kind::Double);
    m_payload.real = number;
}

void Node::setString(const QString &text)
{
    reset(Kind::String);
    m_payload.string = text;
}

void Node::setVariant(const QVariant &value)
{
    reset(Kind::Variant);
    m_payload.variant = new QVariant(value);
}

void Node::setValue(const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::UnknownType:
    case QMetaType::Nullptr:
        reset();
        return;
    case QMetaType::Bool:
        setBool(value.toBool());
        return;
    case QMetaType::Int:
        setLongLong(value.toInt());
        m_kind = Kind::Int;
        return;
    case QMetaType::LongLong:
        setLongLong(value.toLongLong());
        return;
    case QMetaType::Double:
        setNumber(value.toDouble());
        return;
    case QMetaType::QString:
        setString(value.toString());
        return;
    default:
        setVariant(value);
    }
}

QVariant Node::value() const
{
    switch (m_kind) {
    case Kind::Empty:
        return {};
    case Kind::Bool:
        return boolean();
    case Kind::Int:
        return int(integer());
    case Kind::LongLong:
        return integer();
    case Kind::Double:
        return real();
    case Kind::String:
        return string();
    case Kind::Variant:
        return variant();
    case Kind::Object:
    case Kind::List:
        break;
    }
    return toJson(*this).toVariant();
}

bool Node::toBool(bool defaultValue) const
{
    switch (m_kind) {
    case Kind::Bool:
        return boolean();
    case Kind::Int:
    case Kind::LongLong:
        return integer() != 0;
    case Kind::Double:
        return real() != 0.0;
    case Kind::String:
        return textMeansTrue(string());
    case Kind::Variant:
        return variant().canConvert<bool>() ? variant().toBool() : defaultValue;
    default:
        return defaultValue;
    }
}

int Node::toInt(int defaultValue) const
{
    bool ok = false;
    switch (m_kind) {
    case Kind::Bool:
        return boolean();
    case Kind::Int:
    case Kind::LongLong:
        ok = integer() == int(integer());
        return ok ? int(integer()) : defaultValue;
    case Kind::Double:
        return roundedInt(real(), defaultValue);
    case Kind::String: {
        const int number = string().toInt(&ok);
        return ok ? number : defaultValue;
    }
    case Kind::Variant: {
        const double number = variant().toDouble(&ok);
        return ok ? roundedInt(number, defaultValue) : defaultValue;
    }
    default:
        return defaultValue;
    }
}

double Node::toDouble(double defaultValue) const
{
    bool ok = false;
    switch (m_kind) {
    case Kind::Bool:
        return boolean();
    case Kind::Int:
    case Kind::LongLong:
        return double(integer());
    case Kind::Double:
        return real();
    case Kind::String: {
        const double number = string().toDouble(&ok);
        return ok ? number : defaultValue;
    }
    case Kind::Variant: {
        const double number = variant().toDouble(&ok);
        return ok ? number : defaultValue;
    }
    default:
        return defaultValue;
    }
}

QString Node::toStr(const QString &defaultValue) const
{
    switch (m_kind) {
    case Kind::String:
        return string();
    case Kind::Empty:
    case Kind::Object:
    case Kind::List:
        return defaultValue;
    case Kind::Variant:
        return variant().canConvert<QString>() ? variant().toString() : defaultValue;
    default:
        return value().toString();
    }
}

int Node::childCount() const
{
    const Children *block = children();
    return block ? int(block->count) : 0;
}

const Node *Node::begin() const
{
    Children *block = children();
    return block ? block->nodes() : nullptr;
}

const Node *Node::childAt(int index) const
{
    return index >= 0 && index < childCount() ? begin() + index : nullptr;
}

const Node *Node::child(NameId name) const
{
    Children *block = children();
    if (!block || !name)
        return nullptr;
    if (block->count >= indexedFrom) {
        if (!block->extras().index)
            buildIndex(*block);
        const auto &index = *block->extra->index;
        const auto place = index.constFind(name);
        return place == index.constEnd() ? nullptr : block->nodes() + *place;
    }
    const Node *const last = block->nodes() + block->count;
    for (const Node *node = block->nodes(); node != last; ++node) {
        if (node->m_name == name)
            return node;
    }
    return nullptr;
}

void Node::prefetchChildren() const
{
    constexpr int line = 64;
    const auto *block = reinterpret_cast<const char *>(children());
    for (int i = 0; block && i < 3; ++i)
        __builtin_prefetch(block + i * line);
}

const Node *Node::descend(QStringView step) const
{
    const int index = isList() ? listIndex(step) : -1;
    return index >= 0 ? childAt(index) : child(NameTable::instance().find(step));
}

Children *Node::resize(quint32 capacity)
{
    Children *old = m_payload.children;
    const size_t bytes = sizeof(Children) + capacity * sizeof(Node);
    auto *block = static_cast<Children *>(std::realloc(old, bytes));
    if (!block)
        throw std::bad_alloc();
    if (!old)
        *block = {0, 0, nullptr};
    block->capacity = capacity;
    m_payload.children = block;
    if (block != old)
        followMoves(block->nodes(), block->nodes() + block->count);
    return block;
}

void Node::reserve(int count)
{
    if (count > childCount())
        resize(quint32(count));
}

Node *Node::append(NameId name)
{
    Q_ASSERT(isContainer());
    dropKeptJson();
    Children *block = m_payload.children;
    if (!block || block->count == block->capacity)
        block = resize(block ? block->count + block->count / 2 + 1 : 2);
    Node *node = new (block->nodes() + block->count) Node(name);
    if (block->extra && block->extra->index && !block->extra->index->contains(name))
        block->extra->index->insert(name, block->count);
    ++block->count;
    return node;
}

void Node::removeAt(int index)
{
    Children *block = m_payload.children;
    delete block->extra;
    block->extra = nullptr;
    Node *node = block->nodes() + index;
    node->~Node();
    --block->count;
    moveBytes(node, node + 1, block->count - quint32(index));
    followMoves(node, end());
}

void Node::adopt(Kind kind, Node *raw, int count)
{
    reset(kind);
    if (!count)
        return;
    Children *block = resize(quint32(count));
    moveBytes(block->nodes(), raw, quint32(count));
    block->count = quint32(count);
    followMoves(begin(), end());
}

void Node::copyContent(const Node &source)
{
    if (!source.isContainer()) {
        source.m_kind == Kind::Variant ? setVariant(source.variant()) : setValue(source.value());
        return;
    }
    reset(source.m_kind);
    reserve(source.childCount());
    for (const Node &child : source) {
        NameTable::instance().acquire(child.m_name);
        append(child.m_name)->copyContent(child);
    }
}

void Node::takeContent(Node &source)
{
    destroyContent();
    std::memcpy(static_cast<void *>(&m_payload), static_cast<void *>(&source.m_payload),
                sizeof m_payload);
    m_kind = source.m_kind;
    source.m_kind = Kind::Empty;
    source.m_payload.integer = 0;
}

QJsonValue Node::keptJson() const
{
    const Children *block = children();
    return block && block->extra ? block->extra->json : QJsonValue(QJsonValue::Undefined);
}

void Node::keepJson(const QJsonValue &json) const
{
    if (Children *block = children())
        block->extras().json = json;
}

void Node::dropKeptJson() const
{
    const Children *block = children();
    if (block && block->extra)
        block->extra->json = QJsonValue::Undefined;
}

} // namespace ostrel
