#include "watchlist.h"

#include <zeplet/zeplet.h>

WatchList::WatchList(const QString &pluginName, QObject *parent)
    : QObject(parent)
    , m_pluginName(pluginName)
{
}

WatchList::~WatchList()
{
    const auto watches = m_subscriptions.keys();
    for (const auto &watch : watches)
        remove(watch.first, watch.second);
}

bool WatchList::add(Kind kind, const QString &name)
{
    if (name.isEmpty() || m_subscriptions.contains({kind, name}))
        return false;
    const QString id = connectWatch(kind, name);
    if (id.isEmpty())
        return false;
    m_subscriptions.insert({kind, name}, id);
    return true;
}

void WatchList::remove(Kind kind, const QString &name)
{
    const QString id = m_subscriptions.take({kind, name});
    if (id.isEmpty())
        return; // an empty id would end the watches of all other plugins too
    if (kind == HubKey)
        zeplet::zepletInterface()->disconnectNexoData(m_pluginName, name, id);
    else
        zeplet::zepletInterface()->disconnectRcNotify(m_pluginName, name, id);
}

// The connect operations report success only; the id of the new subscription is the one that the
// bus did not know before.
QString WatchList::connectWatch(Kind kind, const QString &name)
{
    const QStringList before = zeplet::zepletEvent()->totalSubscriptionIds(m_pluginName);
    const bool connected = kind == HubKey
        ? zeplet::zepletInterface()->connectNexoData(m_pluginName, name, {})
        : zeplet::zepletInterface()->connectRcNotify(m_pluginName, name, {});
    if (!connected)
        return QString();
    QStringList ids = zeplet::zepletEvent()->totalSubscriptionIds(m_pluginName);
    for (const QString &id : before)
        ids.removeOne(id);
    return ids.value(0);
}
