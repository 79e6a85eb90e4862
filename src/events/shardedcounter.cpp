#include "shardedcounter_p.h"

namespace zeplet
{

std::size_t ShardedCounter::shardOfThread()
{
    static std::atomic<std::size_t> threads {0};
    static thread_local const std::size_t shard = threads.fetch_add(1) % Shards;
    return shard;
}

} // namespace zeplet
