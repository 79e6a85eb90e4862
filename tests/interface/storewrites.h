#pragma once

#include <ostrel/moduleobject.h>
#include <zeplet/interface/interfacemanager.h>

#include <QStringList>
#include <utility>

/** Records the writes to some keys of the data store while it lives, in order: "key=value", with
 *  " by null" or " by other" behind it where the interface manager is not their origin. */
class StoreWrites
{
public:
    explicit StoreWrites(const QStringList &keys)
    {
        for (const QString &key : keys)
            QObject::connect(m(key), &ostrel::ModuleObject::changed, &m_context,
                             [this, key](const QVariant &value, const QVariant &, QObject *origin) {
                                 m_writes.append(key.section('.', -1) + '=' + value.toString()
                                                 + by(origin));
                             });
    }

    QStringList take() { return std::exchange(m_writes, {}); }

private:
    static QString by(QObject *origin)
    {
        if (origin == zeplet::zepletInterface())
            return QString();
        return origin ? QStringLiteral(" by other") : QStringLiteral(" by null");
    }

    QObject m_context;
    QStringList m_writes;
};
