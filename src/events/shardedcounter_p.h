#pragma once

#include <QtGlobal>

#include <array>
#include <atomic>

namespace zeplet
{

/// A counter that several threads raise without getting into each other's way: each adds to a cache
/// line that it shares with few others, and who asks adds them up. Callable from any thread.
class ShardedCounter
{
public:
    /// One thread's part of the counter, to be kept no longer than the counter lives.
    using Shard = std::atomic<quint64>;

    Shard &shard() { return m_shards[shardOfThread()].count; }
    quint64 total() const
    {
        quint64 sum = 0;
        for (const Line &line : m_shards)
            sum += line.count.load(std::memory_order_relaxed);
        return sum;
    }
    void reset()
    {
        for (Line &line : m_shards)
            line.count.store(0, std::memory_order_relaxed);
    }

private:
    static constexpr std::size_t Shards = 8;
    struct alignas(64) Line {
        Shard count {0};
    };

    static std::size_t shardOfThread();

    std::array<Line, Shards> m_shards;
};

} // namespace zeplet
