#include "ostrel/nametable_p.h"

#include <cstring>

namespace ostrel
{

namespace
{
quint64 eightBytes(const char *from)
{
    quint64 bytes = 0;
    std::memcpy(&bytes, from, sizeof bytes);
    return bytes;
}

quint64 mix(quint64 hash, quint64 bytes)
{
    hash = (hash ^ bytes) * 0xff51afd7ed558ccdu;
    return hash ^ (hash >> 32);
}

bool isEqual(const QString &left, QStringView right)
{
    const auto bytes = size_t(right.size()) * sizeof(QChar);
    return left.size() == right.size()
        && (!bytes || !std::memcmp(left.constData(), right.data(), bytes));
}

// Two lanes of eight bytes each, which the processor mixes side by side; the last step overlaps the
// one before instead of counting single characters.
size_t hashText(QStringView text)
{
    const auto *at = reinterpret_cast<const char *>(text.data());
    const auto bytes = size_t(text.size()) * sizeof(QChar);
    const char *const end = at + bytes;
    quint64 left = 0x9e3779b97f4a7c15u ^ bytes;
    quint64 right = left;
    if (!bytes)
        return size_t(left);
    if (bytes < 8) {
        quint64 rest = 0;
        std::memcpy(&rest, at, bytes);
        return size_t(mix(left, rest));
    }
    for (; end - at > 16; at += 16) {
        left = mix(left, eightBytes(at));
        right = mix(right, eightBytes(at + 8));
    }
    left = mix(left, eightBytes(end - 8));
    right = end - at > 8 ? mix(right, eightBytes(at)) : right;
    return size_t(mix(left, right));
}
} // namespace

NameTable *NameTable::s_instance = nullptr;

NameTable::NameTable()
    : m_entries(1)
    , m_buckets(256)
{
}

NameId NameTable::find(QStringView text) const
{
    return find(text, hashText(text));
}

NameId NameTable::find(QStringView text, size_t hash) const
{
    for (NameId id = m_buckets[hash & (m_buckets.size() - 1)]; id; id = m_entries[id].next) {
        const Entry &entry = m_entries[id];
        if (entry.hash == hash && isEqual(entry.text, text))
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
