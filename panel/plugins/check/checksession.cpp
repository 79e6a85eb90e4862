#include "checksession.h"

#include <brisa/managerhelper.h>

#include <algorithm>

using namespace zeplet;

CheckSession::CheckSession()
{
    connect(brisa::ManagerHelper::instance(), &brisa::ManagerHelper::logThrown, this,
            [this](QObject *, const QString &, const QString &message) { m_messages << message; });
}

void CheckSession::see(const QString &hook)
{
    if (!m_hooks.contains(hook))
        m_hooks << hook;
}

void CheckSession::forgetNews()
{
    m_events.clear();
    m_messages.clear();
}

void CheckSession::record(const ZepletEvent &event)
{
    m_events.append(event);
}

QList<int> CheckSession::eventTypes() const
{
    QList<int> types;
    for (const ZepletEvent &event : m_events) {
        if (event.type != NexoDataChange && event.type != RCNotifyDataChange)
            types << event.type;
    }
    return types;
}

bool CheckSession::sawData(int type, const QString &source, const QVariant &data) const
{
    return std::any_of(m_events.begin(), m_events.end(), [&](const ZepletEvent &event) {
        return event.type == type && event.source == source && event.data == data;
    });
}

QVariant CheckSession::lastHubValue(const QString &key) const
{
    const auto found
        = std::find_if(m_events.rbegin(), m_events.rend(), [&](const ZepletEvent &event) {
              return event.type == NexoDataChange && event.source == key;
          });
    return found == m_events.rend() ? QVariant() : found->data;
}

bool CheckSession::sawMessage(const QString &part) const
{
    return std::any_of(m_messages.begin(), m_messages.end(),
                       [&](const QString &message) { return message.contains(part); });
}
