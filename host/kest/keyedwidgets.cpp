#include "kest/keyedwidgets_p.h"

namespace kest
{

KeyedWidgets::KeyedWidgets(QWidget *container)
    : QObject(container)
    , m_container(container)
{
}

bool KeyedWidgets::add(QObject *module, const QString &key, QWidget *widget)
{
    if (!widget || key.isEmpty() || m_entries.contains(key) || !keyOf(widget).isEmpty())
        return false;
    m_entries.insert(key, Entry {widget, module});
    connect(widget, &QObject::destroyed, this, &KeyedWidgets::forget, Qt::UniqueConnection);
    watch(module);
    return true;
}

bool KeyedWidgets::remove(QObject *module, const QString &key, bool destroy)
{
    const auto it = m_entries.constFind(key);
    if (it == m_entries.constEnd() || (module && it->owner != module))
        return false;
    QWidget *const widget = it->widget;
    m_entries.erase(it);
    disconnect(widget, &QObject::destroyed, this, &KeyedWidgets::forget);
    putAway(widget, destroy);
    return true;
}

QWidget *KeyedWidgets::widget(const QString &key) const
{
    return m_entries.value(key).widget;
}

QObject *KeyedWidgets::owner(const QString &key) const
{
    return m_entries.value(key).owner;
}

QString KeyedWidgets::keyOf(const QWidget *widget) const
{
    for (auto it = m_entries.cbegin(); widget && it != m_entries.cend(); ++it) {
        if (it->widget == widget)
            return it.key();
    }
    return {};
}

QStringList KeyedWidgets::keys() const
{
    return m_entries.keys();
}

void KeyedWidgets::watch(QObject *module)
{
    if (module)
        connect(module, &QObject::destroyed, this, &KeyedWidgets::removeOwnedBy,
                Qt::UniqueConnection);
}

void KeyedWidgets::removeOwnedBy(QObject *module)
{
    QStringList keys;
    for (auto it = m_entries.cbegin(); it != m_entries.cend(); ++it) {
        if (it->owner == module)
            keys.append(it.key());
    }
    for (const QString &key : qAsConst(keys))
        remove(module, key, true);
}

void KeyedWidgets::forget(QObject *widget)
{
    m_entries.remove(keyOf(static_cast<QWidget *>(widget)));
}

// Deletion is deferred: a plugin whose destructor deletes its own widget then finds it alive, and
// the pending deletion ends with the widget.
void KeyedWidgets::putAway(QWidget *widget, bool destroy)
{
    if (!m_container->isAncestorOf(widget))
        return;
    widget->hide();
    widget->setParent(nullptr);
    if (destroy)
        widget->deleteLater();
}

} // namespace kest
