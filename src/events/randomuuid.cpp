#include "randomuuid_p.h"

#include <QRandomGenerator>

#include <array>
#include <cstring>

#include <errno.h>
#include <sys/random.h>

namespace zeplet
{

namespace
{

constexpr std::size_t UuidBytes = 16;
constexpr int UuidCharacters = 36;

// One system call for 256 ids: a call for each of them would cost more than all the rest of an
// event.
constexpr std::size_t PoolBytes = 256 * UuidBytes;

struct RandomPool {
    alignas(8) std::array<unsigned char, PoolBytes> bytes;
    std::size_t used = sizeof(bytes);
};

void fillFromKernel(unsigned char *bytes, std::size_t size)
{
    std::size_t filled = 0;
    while (filled < size) {
        const ssize_t count = getrandom(bytes + filled, size - filled, 0);
        if (count < 0 && errno != EINTR)
            break;
        filled += count > 0 ? static_cast<std::size_t>(count) : 0;
    }
    if (filled == size)
        return;
    // A kernel without the call (a seccomp filter, say): Qt knows the other ways.
    std::array<quint32, PoolBytes / sizeof(quint32)> words;
    QRandomGenerator::system()->generate(words.begin(), words.end());
    std::memcpy(bytes, words.data(), size);
}

const unsigned char *drawBytes()
{
    static thread_local RandomPool pool;
    if (pool.used == pool.bytes.size()) {
        fillFromKernel(pool.bytes.data(), pool.bytes.size());
        pool.used = 0;
    }
    const unsigned char *drawn = pool.bytes.data() + pool.used;
    pool.used += UuidBytes;
    return drawn;
}

// The two UTF-16 digits of each byte.
using HexPair = std::array<char16_t, 2>;

constexpr std::array<HexPair, 256> makeHexPairs()
{
    constexpr char16_t digits[] = u"0123456789abcdef";
    std::array<HexPair, 256> pairs {};
    for (std::size_t i = 0; i < pairs.size(); ++i)
        pairs[i] = {digits[i >> 4], digits[i & 0x0F]};
    return pairs;
}

constexpr std::array<HexPair, 256> hexPairs = makeHexPairs();

} // namespace

QString randomUuid()
{
    unsigned char bytes[UuidBytes];
    std::memcpy(bytes, drawBytes(), UuidBytes);
    bytes[6] = static_cast<unsigned char>((bytes[6] & 0x0F) | 0x40); // version 4
    bytes[8] = static_cast<unsigned char>((bytes[8] & 0x3F) | 0x80); // variant of RFC 4122

    std::array<char16_t, UuidCharacters> text;
    char16_t *out = text.data();
    for (std::size_t i = 0; i < UuidBytes; ++i) {
        if (i == 4 || i == 6 || i == 8 || i == 10)
            *out++ = u'-';
        std::memcpy(out, &hexPairs[bytes[i]], sizeof(HexPair));
        out += 2;
    }
    return QString(reinterpret_cast<const QChar *>(text.data()), UuidCharacters);
}

} // namespace zeplet
