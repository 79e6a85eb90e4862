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
constexpr std::size_t UuidCharacters = 36;

// One system call for 64 ids: a call for each of them would cost more than all the rest of an
// event.
struct RandomPool {
    alignas(8) std::array<unsigned char, 64 * UuidBytes> bytes;
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
    std::array<quint32, 64 * UuidBytes / sizeof(quint32)> words;
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

} // namespace

QString randomUuid()
{
    static constexpr char digits[] = "0123456789abcdef";
    unsigned char bytes[UuidBytes];
    std::memcpy(bytes, drawBytes(), UuidBytes);
    bytes[6] = static_cast<unsigned char>((bytes[6] & 0x0F) | 0x40); // version 4
    bytes[8] = static_cast<unsigned char>((bytes[8] & 0x3F) | 0x80); // variant of RFC 4122

    QString text(UuidCharacters, Qt::Uninitialized);
    QChar *out = text.data();
    for (std::size_t i = 0; i < UuidBytes; ++i) {
        if (i == 4 || i == 6 || i == 8 || i == 10)
            *out++ = QLatin1Char('-');
        *out++ = QLatin1Char(digits[bytes[i] >> 4]);
        *out++ = QLatin1Char(digits[bytes[i] & 0x0F]);
    }
    return text;
}

} // namespace zeplet
