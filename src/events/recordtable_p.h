#pragma once

#include <QtGlobal>

#include <cstddef>
#include <utility>
#include <vector>

namespace zeplet
{

/// A hash table of pointers whose keys are in what they point to. The hash stands beside the
/// pointer, and all in one block: finding one among thousands touches one line of memory besides
/// the record itself, where a node for each entry would add two.
///
/// Open addressing with linear probing; removing moves the followers up, so no gaps are left over.
template <typename Pointer>
class RecordTable
{
public:
    /// The record with this hash for which `matches(record)` is true, or null.
    template <typename Matches>
    Pointer find(uint hash, Matches matches) const
    {
        if (m_slots.empty())
            return Pointer();
        for (std::size_t i = home(hash); m_slots[i].record; i = next(i)) {
            if (m_slots[i].hash == hash && matches(*m_slots[i].record))
                return m_slots[i].record;
        }
        return Pointer();
    }

    /// Adds a record that is not in the table.
    void insert(uint hash, Pointer record)
    {
        if (4 * (m_size + 1) > 3 * m_slots.size())
            grow();
        ++m_size;
        place({hash, std::move(record)});
    }

    /// Removes a record that is in the table under this hash.
    void remove(uint hash, const Pointer &record)
    {
        std::size_t gap = home(hash);
        while (m_slots[gap].record != record)
            gap = next(gap);
        for (std::size_t i = next(gap); m_slots[i].record; i = next(i)) {
            // Its probing starts behind the gap: it stays reachable where it is.
            if (distance(home(m_slots[i].hash), i) < distance(gap, i))
                continue;
            m_slots[gap] = std::move(m_slots[i]);
            gap = i;
        }
        m_slots[gap].record = Pointer();
        --m_size;
    }

    void clear()
    {
        m_slots.clear();
        m_size = 0;
        m_shift = 32;
    }

    std::size_t size() const { return m_size; }

    template <typename Visit>
    void forEach(Visit visit) const
    {
        for (const Slot &slot : m_slots) {
            if (slot.record)
                visit(slot.record);
        }
    }

private:
    struct Slot {
        uint hash = 0;
        Pointer record {};
    };

    static constexpr std::size_t FirstSize = 16;
    static constexpr uint FirstShift = 28;

    // Fibonacci hashing: also hashes that differ in few bits, as those of pointers, spread.
    std::size_t home(uint hash) const { return (hash * 2654435769U) >> m_shift; }
    std::size_t next(std::size_t i) const { return (i + 1) & (m_slots.size() - 1); }
    std::size_t distance(std::size_t from, std::size_t to) const
    {
        return (to - from) & (m_slots.size() - 1);
    }

    void place(Slot slot)
    {
        std::size_t i = home(slot.hash);
        while (m_slots[i].record)
            i = next(i);
        m_slots[i] = std::move(slot);
    }

    void grow()
    {
        std::vector<Slot> old(m_slots.empty() ? FirstSize : 2 * m_slots.size());
        m_shift = m_slots.empty() ? FirstShift : m_shift - 1;
        old.swap(m_slots);
        for (Slot &slot : old) {
            if (slot.record)
                place(std::move(slot));
        }
    }

    std::vector<Slot> m_slots;
    std::size_t m_size = 0;
    uint m_shift = 32;
};

} // namespace zeplet
