#include "ostrel/moduleobject.h"

#include "ostrel/jsonexchange_p.h"
#include "ostrel/jsontext_p.h"
#include "ostrel/moduleobject_p.h"
#include "ostrel/treeedit_p.h"

#include <QThread>
#include <QUuid>

namespace ostrel
{

namespace
{
bool isStructured(const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::QVariantMap:
    case QMetaType::QVariantHash:
    case QMetaType::QVariantList:
    case QMetaType::QStringList:
    case QMetaType::QJsonValue:
    case QMetaType::QJsonObject:
    case QMetaType::QJsonArray:
    case QMetaType::QJsonDocument:
        return true;
    default:
        return false;
    }
}

void assign(Node &node, const QVariant &value)
{
    if (isStructured(value)) {
        fromJson(node, QJsonValue::fromVariant(value), true, true);
        return;
    }
    if (node.isContainer() && !value.isValid())
        return;
    resetContent(node, Node::Kind::Empty);
    node.setValue(value);
}

// Most are texts, and most of another length, which folding of case does not change.
bool reads(const Node *node, const QString &text, Qt::CaseSensitivity sensitivity)
{
    if (!node)
        return text.isEmpty();
    if (node->kind() == Node::Kind::String)
        return node->string().size() == text.size()
            && node->string().compare(text, sensitivity) == 0;
    return node->toStr(QString()).compare(text, sensitivity) == 0;
}

QString nameOf(const Node &parent, int index)
{
    const NameId name = parent.childAt(index)->name();
    return name ? NameTable::instance().text(name) : QLatin1Char('#') + QString::number(index);
}
} // namespace

ModuleObject::ModuleObject(const QString &name, QObject *parent)
    : QObject(parent)
    , d(std::make_unique<ModuleObjectPrivate>(this, nullptr,
                                              name.isEmpty() ? 0 : Name(QStringView(name)).id()))
{
}

ModuleObject::ModuleObject(ModuleObjectPrivate *above, quint32 name)
    : d(std::make_unique<ModuleObjectPrivate>(this, above, name))
{
}

ModuleObject::~ModuleObject() = default;

QString ModuleObject::name() const
{
    if (!d->isListElement() || !d->node)
        return d->name.text();
    return nameOf(*d->parent->node, int(d->node - d->parent->node->begin()));
}

bool ModuleObject::isNull() const
{
    return !d->node;
}

bool ModuleObject::isList() const
{
    return d->node && d->node->isList();
}

ModuleObject *ModuleObject::r(const QString &path)
{
    Q_ASSERT(QThread::currentThread() == thread());
    if (ModuleObject *known = d->cached(path))
        return known;
    ModuleObjectPrivate *at = d.get();
    bool keyed = true;
    forEachStep(path, [&](QStringView step) {
        at = at->below(step);
        keyed = keyed && at->parent && !at->isListElement();
        return true;
    });
    if (keyed)
        d->remember(path, at);
    return at->q;
}

bool ModuleObject::contains(const QString &path) const
{
    return findPath(d->node, path) != nullptr;
}

QVariant ModuleObject::value() const
{
    return d->node ? d->node->value() : QVariant();
}

bool ModuleObject::getBool(bool defaultValue) const
{
    return d->node ? d->node->toBool(defaultValue) : defaultValue;
}

int ModuleObject::getInt(int defaultValue) const
{
    return d->node ? d->node->toInt(defaultValue) : defaultValue;
}

double ModuleObject::getDouble(double defaultValue) const
{
    return d->node ? d->node->toDouble(defaultValue) : defaultValue;
}

QString ModuleObject::getStr(const QString &defaultValue) const
{
    return d->node ? d->node->toStr(defaultValue) : defaultValue;
}

bool ModuleObject::getBool(const QString &path, bool defaultValue) const
{
    const Node *node = findPath(d->node, path);
    return node ? node->toBool(defaultValue) : defaultValue;
}

int ModuleObject::getInt(const QString &path, int defaultValue) const
{
    const Node *node = findPath(d->node, path);
    return node ? node->toInt(defaultValue) : defaultValue;
}

double ModuleObject::getDouble(const QString &path, double defaultValue) const
{
    const Node *node = findPath(d->node, path);
    return node ? node->toDouble(defaultValue) : defaultValue;
}

QString ModuleObject::getStr(const QString &path, const QString &defaultValue) const
{
    const Node *node = findPath(d->node, path);
    return node ? node->toStr(defaultValue) : defaultValue;
}

void ModuleObject::set(QObject *origin, const QVariant &value, bool notify)
{
    Q_ASSERT(QThread::currentThread() == thread());
    Node *node = d->ensureNode();
    if (node->isContainer() || isStructured(value)) {
        setContainer(origin, value, notify);
        return;
    }
    const QVariant before = notify ? node->value() : QVariant();
    node->setValue(value);
    if (notify)
        Q_EMIT changed(value, before, origin);
}

void ModuleObject::setContainer(QObject *origin, const QVariant &value, bool notify)
{
    if (!value.isValid()) {
        if (notify)
            Q_EMIT changed(QVariant(), QVariant(), origin);
        return;
    }
    ChangeReport report(d.get(), notify);
    assign(*d->ensureNode(), value);
    report.emitChanges(origin);
}

void ModuleObject::set(QObject *origin, const QString &path, const QVariant &value, bool notify)
{
    Q_ASSERT(QThread::currentThread() == thread());
    Node *node = makePath(*d->ensureNode(), path, maxDepth - d->depth());
    if (!node) {
        qWarning("ModuleObject: a path of more than %d levels is not set", maxDepth);
        return;
    }
    // Without a handle nobody watches the node, nor anything below it.
    if (node->handle)
        node->handle->q->set(origin, value, notify);
    else
        assign(*node, value);
}

int ModuleObject::childCount() const
{
    return d->node ? d->node->childCount() : 0;
}

ModuleObject *ModuleObject::childAt(int index)
{
    const Node *node = d->node ? d->node->childAt(index) : nullptr;
    return node ? d->handleOf(*node)->q : nullptr;
}

QStringList ModuleObject::childNames() const
{
    QStringList names;
    const int count = childCount();
    names.reserve(count);
    for (int i = 0; i < count; ++i)
        names.append(nameOf(*d->node, i));
    return names;
}

ModuleObject *ModuleObject::child(const QString &name)
{
    const Node *node = d->node ? d->node->child(NameTable::instance().find(name)) : nullptr;
    return node ? d->handleOf(*node)->q : nullptr;
}

ModuleObject *ModuleObject::setChild(QObject *origin, const QString &name, const QVariant &value,
                                     bool notify)
{
    const Name id {QStringView(name)};
    Node *node = d->ensureNode();
    if (!node->isContainer())
        resetContent(*node, Node::Kind::Object);
    Node *there = node->child(id.id());
    ModuleObject *object = d->handleOf(there ? *there : *appendChild(*node, id.id()))->q;
    object->set(origin, value, notify);
    return object;
}

int ModuleObject::indexOf(const QString &field, const QString &text,
                          Qt::CaseSensitivity sensitivity) const
{
    const NameId name = NameTable::instance().find(field);
    const int count = childCount();
    constexpr int ahead = 8; // records come from memory while those before them are compared
    for (int i = 0; i < count; ++i) {
        if (i + ahead < count)
            d->node->childAt(i + ahead)->prefetchChildren();
        if (reads(d->node->childAt(i)->child(name), text, sensitivity))
            return i;
    }
    return -1;
}

ModuleObject *ModuleObject::append(QObject *origin, std::unique_ptr<ModuleObject> child,
                                   bool notify)
{
    Q_ASSERT(!child->d->parent);
    Node *node = d->ensureNode();
    if (node->childCount() && !node->isList())
        return nullptr;
    if (!node->isList())
        resetContent(*node, Node::Kind::List);
    ModuleObject *object = child.release()->d->moveBelow(d.get())->q;
    if (notify)
        Q_EMIT changed(QVariant(), QVariant(), origin);
    return object;
}

void ModuleObject::clear(QObject *origin, bool notify)
{
    if (!d->node)
        return;
    ChangeReport report(d.get(), notify);
    resetContent(*d->ensureNode(), d->node->isContainer() ? d->node->kind() : Node::Kind::Empty);
    report.emitChanges(origin);
}

void ModuleObject::remove(QObject *origin, bool notify)
{
    if (!d->node)
        return;
    ChangeReport report(d.get(), notify);
    d->removeNode();
    report.emitChanges(origin);
}

bool ModuleObject::removeAt(QObject *origin, int index, bool notify)
{
    const Node *node = d->node ? d->node->childAt(index) : nullptr;
    if (!node)
        return false;
    const QPointer<ModuleObject> alive(this);
    if (node->handle)
        node->handle->q->remove(origin, notify);
    else
        removeChildAt(*d->ensureNode(), index);
    if (alive && notify)
        Q_EMIT changed(QVariant(), QVariant(), origin);
    return true;
}

void ModuleObject::copyFrom(QObject *origin, const ModuleObject &source, bool notify)
{
    Node copy;
    if (source.d->node)
        copy.copyContent(*source.d->node);
    d->replaceContent(*this, copy, origin, notify);
}

QString ModuleObject::generateId()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces);
}

QJsonValue ModuleObject::exportToJson(bool children) const
{
    if (!d->node || !children)
        return d->node ? toJson(*d->node, false) : QJsonValue(QJsonValue::Null);
    if (isRecordList(*d->node))
        ModuleObjectPrivate::lastExported() = this;
    return toJsonKeeping(*d->node);
}

bool ModuleObject::importFromJson(QObject *origin, const QJsonValue &json, bool replace,
                                  bool create, bool notify)
{
    if (json.isUndefined())
        return false;
    ChangeReport report(d.get(), notify);
    const bool complete = fromJson(*d->ensureNode(), json, replace, create, maxDepth - d->depth());
    report.emitChanges(origin);
    return complete;
}

QByteArray ModuleObject::toJsonText(bool indented) const
{
    return d->node ? writeJsonText(*d->node, indented) : writeJsonText(Node(), indented);
}

bool ModuleObject::fromJsonText(QObject *origin, const QByteArray &text, QString *error,
                                bool notify)
{
    Node parsed;
    if (!parseJsonText(text, &parsed, error))
        return false;
    d->replaceContent(*this, parsed, origin, notify);
    return true;
}

} // namespace ostrel

ostrel::ModuleObject *m(const QString &key, ostrel::ModuleObject *root)
{
    return (root ? *root : ostrel::ModuleObjectPrivate::store()).r(key);
}
