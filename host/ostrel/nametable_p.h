#pragma once

#include <QString>
#include <QStringView>
#include <utility>
#include <vector>

namespace ostrel
{

/** A shared name: 0 is "no name of its own", every other number is an entry of the NameTable. */
using NameId = quint32;

/**
 * The child names and the whole keys of all trees of the process, each kept once: ten thousand
 * records of the same shape share theirs, and comparing two names compares two numbers. Counted by
 * reference. GUI thread. Never destroyed: trees with static storage may outlive any order of
 * destruction.
 */
class NameTable
{
public:
    static NameTable &instance()
    {
        if (!s_instance)
            s_instance = new NameTable;
        return *s_instance;
    }

    /** The name's number, 0 where nobody uses that name. */
    NameId find(QStringView text) const;
    /** The name's number with one more reference. */
    NameId acquire(QStringView text);
    void acquire(NameId name)
    {
        if (name)
            ++m_entries[name].references;
    }
    void release(NameId name);

    const QString &text(NameId name) const { return m_entries[name].text; }
    /** One more than the highest number in use. */
    NameId end() const { return NameId(m_entries.size()); }

private:
    struct Entry {
        QString text;
        size_t hash = 0;
        quint32 references = 0;
        NameId next = 0;
    };

    NameTable();
    NameId find(QStringView text, size_t hash) const;
    NameId freshEntry();
    void grow();

    static NameTable *s_instance;
    std::vector<Entry> m_entries;
    std::vector<NameId> m_buckets;
    std::vector<NameId> m_free;
};

/** Holds one reference to a name. */
class Name
{
public:
    Name() = default;
    explicit Name(QStringView text)
        : m_id(NameTable::instance().acquire(text))
    {
    }
    explicit Name(NameId id)
        : m_id(id)
    {
        NameTable::instance().acquire(id);
    }
    ~Name() { NameTable::instance().release(m_id); }
    Q_DISABLE_COPY(Name)

    void reset(NameId id = 0)
    {
        NameTable::instance().acquire(id);
        NameTable::instance().release(std::exchange(m_id, id));
    }
    NameId id() const { return m_id; }
    const QString &text() const { return NameTable::instance().text(m_id); }

private:
    NameId m_id = 0;
};

} // namespace ostrel
