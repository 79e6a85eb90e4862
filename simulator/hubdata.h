#pragma once

#include "refusal.h"

#include <QJsonObject>
#include <QObject>

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

    const QJsonObject &snapshot() const { return m_values; }

    /** Why a text is no key; nothing where it is one. */
    static Refusal checkKey(const QString &key);

signals:
    /** The key was set to a value that differs from its former one. */
    void changed(const QString &key, const QJsonValue &value);

private:
    QJsonObject m_values;
};

} // namespace simulator
