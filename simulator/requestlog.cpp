#include "requestlog.h"

namespace simulator
{

namespace
{
/** A client that invents names must not fill the memory. */
constexpr int kMaxCommands = 1000;
} // namespace

void RequestLog::add(const QString &command, const QJsonValue &arguments)
{
    if (m_entries.size() >= kMaxCommands && !m_entries.contains(command))
        return;
    Entry &entry = m_entries[command];
    ++entry.count;
    entry.arguments = arguments;
}

QJsonObject RequestLog::counts() const
{
    QJsonObject counts;
    for (auto entry = m_entries.cbegin(); entry != m_entries.cend(); ++entry)
        counts.insert(entry.key(), entry->count);
    return counts;
}

} // namespace simulator
