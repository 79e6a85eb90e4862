#pragma once

#include <QHash>
#include <QObject>
#include <QSet>
#include <QStringList>

/** Which keys are watched, and for whom. A destroyed origin's watches go with it. GUI thread. */
class Watches : public QObject
{
    Q_OBJECT

public:
    explicit Watches(QObject *parent = nullptr);

    /** True where the key became watched, or no longer is. */
    bool set(QObject *origin, const QString &key, bool on);
    bool contains(const QString &key) const { return m_origins.contains(key); }
    QStringList keys() const { return m_origins.keys(); }

Q_SIGNALS:
    /** The last origin of the key was destroyed. */
    void ended(const QString &key);

private:
    void forget(QObject *origin);

    QHash<QString, QSet<QObject *>> m_origins; ///< of each watched key; a null origin counts
    QSet<QObject *> m_known;
};
