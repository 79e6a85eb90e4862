#include "nexo/watches_p.h"

Watches::Watches(QObject *parent)
    : QObject(parent)
{
}

bool Watches::set(QObject *origin, const QString &key, bool on)
{
    if (!on) {
        const auto it = m_origins.find(key);
        if (it == m_origins.end() || !it->remove(origin) || !it->isEmpty())
            return false;
        m_origins.erase(it);
        return true;
    }
    if (origin && !m_known.contains(origin)) {
        m_known.insert(origin);
        connect(origin, &QObject::destroyed, this, &Watches::forget);
    }
    const bool first = !m_origins.contains(key);
    m_origins[key].insert(origin);
    return first;
}

void Watches::forget(QObject *origin)
{
    m_known.remove(origin);
    const QStringList watched = keys();
    for (const QString &key : watched) {
        if (set(origin, key, false))
            Q_EMIT ended(key);
    }
}
