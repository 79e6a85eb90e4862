#pragma once

#include "hostexport.h"

#include <QHash>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QWidget>

namespace kest
{

/**
 * The keyed widgets that modules put into one container. A widget leaves the table when it is
 * deleted or taken out, and leaves the container with its module. The container is the parent.
 */
class HOST_EXPORT KeyedWidgets : public QObject
{
    Q_OBJECT

public:
    explicit KeyedWidgets(QWidget *container);

    /** False for a null widget, one that is in the table, and an empty or taken key. */
    bool add(QObject *module, const QString &key, QWidget *widget);
    /** Takes the entry out of the table and its widget out of the container: hidden and without
     *  parent, or with destroy deleted. Only the owner and the host (null) may. */
    bool remove(QObject *module, const QString &key, bool destroy);

    QWidget *widget(const QString &key) const;
    /** The module that added the widget; null for the host's and for an unknown key. */
    QObject *owner(const QString &key) const;
    QString keyOf(const QWidget *widget) const;
    /** In no particular order. */
    QStringList keys() const;

private:
    struct Entry {
        QWidget *widget = nullptr;
        QObject *owner = nullptr;
    };

    void watch(QObject *module);
    void removeOwnedBy(QObject *module);
    void forget(QObject *widget);
    void putAway(QWidget *widget, bool destroy);

    QWidget *m_container;
    QHash<QString, Entry> m_entries;
};

} // namespace kest
