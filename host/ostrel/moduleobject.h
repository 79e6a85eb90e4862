#pragma once

#include "hostexport.h"

#include <QJsonValue>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>

namespace ostrel
{

/**
 * Contract sketch: the operations other subsystems rely on. See docs/host-contract.md.
 */
class HOST_EXPORT ModuleObject : public QObject
{
    Q_OBJECT

public:
    explicit ModuleObject(const QString &name = QString(), ModuleObject *parent = nullptr);
    ~ModuleObject() override;

    QString name() const;
    /** True for a placeholder: a node that is watched or was looked up, but has no content. */
    bool isNull() const;

    /** The descendant at the dotted path ("a.b.#0"); a placeholder where there is none yet. */
    ModuleObject *r(const QString &path);

    QVariant value() const;
    bool getBool(bool defaultValue) const;
    int getInt(int defaultValue) const;
    double getDouble(double defaultValue) const;
    QString getStr(const QString &defaultValue) const;
    bool getBool(const QString &path, bool defaultValue) const;
    int getInt(const QString &path, int defaultValue) const;
    double getDouble(const QString &path, double defaultValue) const;
    QString getStr(const QString &path, const QString &defaultValue) const;

    /** Sets this node's value; with notify always emits changed(), also when the value is equal. */
    void set(QObject *origin, const QVariant &value, bool notify = true);
    /** Sets the descendant at the dotted path. */
    void set(QObject *origin, const QString &path, const QVariant &value, bool notify);

    /** The node as JSON; with children, all its descendants. Placeholders do not appear. */
    QJsonValue exportToJson(bool children = true) const;
    /** Fills the node from JSON. replace: children that json lacks go; create: new ones come. */
    bool importFromJson(QObject *origin, const QJsonValue &json, bool replace, bool create,
                        bool notify);

Q_SIGNALS:
    void changed(const QVariant &newValue, const QVariant &oldValue, QObject *origin);
};

} // namespace ostrel

/**
 * The host data store's lookup: the node at the dotted key below root (null: the whole store).
 * Never null; a key without content gives a placeholder that can be watched. GUI thread.
 */
HOST_EXPORT ostrel::ModuleObject *m(const QString &key, ostrel::ModuleObject *root = nullptr);
