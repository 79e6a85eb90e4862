#include "ostrel/nametable_p.h"

#include <cstring>

namespace ostrel
{

size_t hashText(QStringView text)
{
    const auto *at = text.utf16();
    auto left = size_t(text.size());
    quint64 hash = 0x9e3779b97f4a7c15u ^ left;
    while (left >= 4) {
        quint64 chunk = 0;
        std::memcpy(&chunk, at, sizeof chunk);
        hash = (hash ^ chunk) * 0xff51afd7ed558ccdu;
        hash ^= hash >> 32;
        at += 4;
        left -= 4;
    }
    quint64 rest = 0;
    std::memcpy(&rest, at, left * sizeof *at);
    hash = (hash ^ rest) * 0xff51afd7ed558ccdu;
    return size_t(hash ^ (hash >> 29));
}

NameTable::NameTable()
    : m_entries(1)
    , m_buckets(256)
{
}

NameTable &NameTable::instance()
{
    static auto *table = new NameTable;
    return *table;
}

NameId NameTable::find(QStringView text) const
{
    return find(text, hashText(text));
}

NameId NameTable::find(QStringView text, size_t hash) const
{
    for (NameId id = m_buckets[hash & (m_buckets.size() - 1)]; id; id = m_entries[id].next) {
        const Entry &entry = m_entries[id];
        if (entry.hash == hash && QStringView(entry.text) == text)
            return id;
    }
    return 0;
}

NameId NameTable::acquire(QStringView text)
{
    const size_t hash = hashText(text);
    if (const NameId known = find(text, hash)) {
        ++m_entries[known].references;
        return known;
    }
    if (m_entries.size() >= m_buckets.size())
        grow();
    const NameId id = freshEntry();
    NameId &bucket = m_buckets[hash & (m_buckets.size() - 1)];
    m_entries[id] = {text.toString(), hash, 1, bucket};
    bucket = id;
    return id;
}

NameId NameTable::freshEntry()
{
    if (m_free.empty()) {
        m_entries.emplace_back();
        return NameId(m_entries.size() - 1);
    }
    const NameId id = m_free.back();
    m_free.pop_back();
    return id;
}

void NameTable::release(NameId name)
{
    if (!name || --m_entries[name].references)
        return;
    NameId *link = &m_buckets[m_entries[name].hash & (m_buckets.size() - 1)];
    while (*link != name)
        link = &m_entries[*link].next;
    *link = m_entries[name].next;
    m_entries[name] = {};
    m_free.push_back(name);
}

void NameTable::grow()
{
    m_buckets.assign(m_buckets.size() * 2, 0);
    for (NameId id = 1; id < m_entries.size(); ++id) {
        Entry &entry = m_entries[id];
        if (!entry.references)
            continue;
        NameId &bucket = m_buckets[entry.hash & (m_buckets.size() - 1)];
        entry.next = bucket;
        bucket = id;
    }
}

} // namespace ostrel
