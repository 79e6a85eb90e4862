#include "nexo/hubmirror_p.h"

#include "link/client.h"
#include "ostrel/moduleobject.h"

#include <QJsonObject>

HubMirror::HubMirror(ostrel::ModuleObject *root, const IsWatched &isWatched, QObject *parent)
    : QObject(parent)
    , m_root(root)
    , m_isWatched(isWatched)
{
}

bool HubMirror::isKey(const QString &key)
{
    const QLatin1Char dot('.');
    return !key.isEmpty() && !key.startsWith(dot) && !key.endsWith(dot)
        && !key.contains(QLatin1String(".."));
}

void HubMirror::replace(const QJsonObject &snapshot)
{
    m_root->importFromJson(this, snapshot, true, true, false);
    const auto followers = m_followers; // a receiver may ask for another one
    for (auto it = followers.begin(); it != followers.end(); ++it)
        follow(it.key(), it.value());
}

void HubMirror::set(const QString &key, const QJsonValue &value)
{
    m_root->set(this, key, QVariant::fromValue(value), false);
    followAbove(key);
    followBelow(key);
}

ostrel::ModuleObject *HubMirror::node(const QString &key)
{
    return m_root->r(key);
}

ostrel::ModuleObject *HubMirror::follower(const QString &key)
{
    ostrel::ModuleObject *&follower = m_followers[key];
    if (follower)
        return follower;
    follower = new ostrel::ModuleObject(key, this);
    if (!node(key)->isNull())
        follower->importFromJson(this, node(key)->exportToJson(), true, true, false);
    return follower;
}

void HubMirror::follow(const QString &key, ostrel::ModuleObject *follower)
{
    const QJsonValue now = node(key)->exportToJson();
    if (now == follower->exportToJson())
        return;
    const bool watched = m_isWatched(key);
    rpc::deliver(key, [&] { follower->importFromJson(this, now, true, true, watched); });
}

// The key itself, and those whose values hold its value; the empty key is the whole.
void HubMirror::followAbove(const QString &key)
{
    int length = key.size();
    while (length >= 0) {
        const QString above = key.left(length);
        if (ostrel::ModuleObject *follower = m_followers.value(above))
            follow(above, follower);
        length = length == 0 ? -1 : qMax(0, key.lastIndexOf(QLatin1Char('.'), length - 1));
    }
}

void HubMirror::followBelow(const QString &key)
{
    const QString prefix = key + QLatin1Char('.');
    const auto followers = m_followers;
    for (auto it = followers.lowerBound(prefix);
         it != followers.end() && it.key().startsWith(prefix); ++it)
        follow(it.key(), it.value());
}
