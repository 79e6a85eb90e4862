#pragma once

#include "refusal.h"

#include <QHash>
#include <QJsonObject>
#include <QObject>
#include <functional>

namespace simulator
{

/** The service hub's keys: a JSON tree addressed along dots. Lives on the simulator's thread. */
class HubData : public QObject
{
    Q_OBJECT

public:
    explicit HubData(const QJsonObject &values, QObject *parent = nullptr);

    /** Undefined where the key does not exist. */
    QJsonValue value(const QString &key) const;
    /** Sets a key and makes its parents. Refused for a key with an empty step or more than 32 of
     *  them, and for one below a key that holds a plain value: a tree cannot show both. */
    Refusal set(const QString &key, const QJsonValue &value);

    /** Says why a key can't be set to a value; nothing where it can. */
    using Guard = std::function<Refusal(const QJsonValue &value)>;
    /** From now on set() asks the guard about this key. */
    void addGuard(const QString &key, const Guard &guard) { m_guards.insert(key, guard); }

    const QJsonObject &snapshot() const { return m_values; }

    /** Why a text is no key; nothing where it is one. */
    static Refusal checkKey(const QString &key);

signals:
    /** The key was set to a value that differs from its former one. */
    void changed(const QString &key, const QJsonValue &value);

private:
    QJsonObject m_values;
    QHash<QString, Guard> m_guards;
};

} // namespace simulator
