#include "elfsection.h"

#include <QIODevice>
#include <QtEndian>
#include <algorithm>
#include <elf.h>
#include <optional>
#include <vector>

namespace panel
{

namespace
{

#if defined(__aarch64__)
constexpr Elf64_Half ownMachineCode = EM_AARCH64;
#elif defined(__x86_64__)
constexpr Elf64_Half ownMachineCode = EM_X86_64;
#else
#error "The panel knows 64-bit Arm and x86-64: add this machine's ELF code here."
#endif

QString machineName(Elf64_Half machine)
{
    switch (machine) {
    case EM_X86_64:
        return QStringLiteral("x86_64");
    case EM_AARCH64:
        return QStringLiteral("aarch64");
    case EM_ARM:
        return QStringLiteral("arm");
    case EM_386:
        return QStringLiteral("i386");
    case EM_RISCV:
        return QStringLiteral("riscv");
    default:
        return QStringLiteral("machine %1").arg(machine);
    }
}

/** Reads parts of the file, each held against the file's size first. */
class Reader
{
public:
    explicit Reader(QIODevice &device)
        : m_device(device)
        , m_size(static_cast<quint64>(std::max<qint64>(device.size(), 0)))
    {
    }

    bool holds(quint64 offset, quint64 size) const
    {
        return offset <= m_size && size <= m_size - offset;
    }

    bool read(quint64 offset, void *target, quint64 size)
    {
        if (!holds(offset, size) || !m_device.seek(static_cast<qint64>(offset)))
            return false;
        const qint64 wanted = static_cast<qint64>(size);
        return m_device.read(static_cast<char *>(target), wanted) == wanted;
    }

    template <typename Record>
    std::optional<std::vector<Record>> records(quint64 offset, quint64 count)
    {
        if (!holds(offset, count * sizeof(Record))) // count is a 16-bit number: no overflow
            return std::nullopt;
        std::vector<Record> result(count);
        if (!read(offset, result.data(), count * sizeof(Record)))
            return std::nullopt;
        return result;
    }

private:
    QIODevice &m_device;
    quint64 m_size;
};

/** Far more than the names of all sections of any library. */
constexpr quint64 maximumStringsSize = 1 << 20;

using Segments = std::vector<Elf64_Phdr>;
using Sections = std::vector<Elf64_Shdr>;

/** The status of a file by its header alone; Found where it may go on. */
ElfSection checkHeader(const Elf64_Ehdr &header)
{
    constexpr auto ownOrder = Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? ELFDATA2LSB : ELFDATA2MSB;
    // Fields before e_entry lie at the same place in 32-bit files.
    const bool swapped = header.e_ident[EI_DATA] != ownOrder;
    const Elf64_Half machine = swapped ? qbswap(header.e_machine) : header.e_machine;
    const Elf64_Half type = swapped ? qbswap(header.e_type) : header.e_type;
    const bool narrow = header.e_ident[EI_CLASS] != ELFCLASS64;

    if (machine != ownMachineCode)
        return {ElfSection::OtherMachine, machineName(machine), {}};
    // The panel's processor, used in another way (x32): its bare name would say that all is well.
    if (swapped)
        return {ElfSection::OtherMachine, "big-endian " + machineName(machine), {}};
    if (narrow)
        return {ElfSection::OtherMachine, "32-bit " + machineName(machine), {}};
    if (type != ET_DYN)
        return {ElfSection::NotShared, machineName(machine), {}};
    return {ElfSection::Found, machineName(machine), {}};
}

bool holdsAll(const Reader &reader, const Segments &segments, const Sections &sections)
{
    const auto segmentFits = [&](const Elf64_Phdr &segment) {
        return reader.holds(segment.p_offset, segment.p_filesz);
    };
    const auto sectionFits = [&](const Elf64_Shdr &section) {
        return section.sh_type == SHT_NOBITS || section.sh_type == SHT_NULL
            || reader.holds(section.sh_offset, section.sh_size);
    };
    return std::all_of(segments.begin(), segments.end(), segmentFits)
        && std::all_of(sections.begin(), sections.end(), sectionFits);
}

/** Nothing where the section is larger than maximumSize or can't be read. */
std::optional<QByteArray> bytesOf(Reader &reader, const Elf64_Shdr &section, quint64 maximumSize)
{
    if (section.sh_size > maximumSize)
        return std::nullopt;
    QByteArray bytes(static_cast<int>(section.sh_size), Qt::Uninitialized);
    if (!reader.read(section.sh_offset, bytes.data(), section.sh_size))
        return std::nullopt;
    return bytes;
}

bool bearsName(const QByteArray &strings, const Elf64_Shdr &section, const QByteArray &name)
{
    const auto size = static_cast<quint64>(strings.size());
    const auto length = static_cast<quint64>(name.size()) + 1; // with the closing zero
    return section.sh_name <= size && length <= size - section.sh_name
        && std::equal(name.constData(), name.constData() + length,
                      strings.constData() + section.sh_name);
}

/** The bytes of the section of that name; nothing where there is none, or none of that size. */
std::optional<QByteArray> sectionContent(Reader &reader, const Sections &sections,
                                         quint16 stringsIndex, const QByteArray &name,
                                         qint64 maximumSize)
{
    if (stringsIndex >= sections.size())
        return std::nullopt;
    const auto strings = bytesOf(reader, sections[stringsIndex], maximumStringsSize);
    if (!strings)
        return std::nullopt;
    for (const Elf64_Shdr &section : sections) {
        if (section.sh_type != SHT_PROGBITS || !bearsName(*strings, section, name))
            continue;
        if (auto content = bytesOf(reader, section, static_cast<quint64>(maximumSize)))
            return content;
    }
    return std::nullopt;
}

} // namespace

QString ownMachine()
{
    return machineName(ownMachineCode);
}

ElfSection readElfSection(QIODevice &device, const QByteArray &name, qint64 maximumSize)
{
    Reader reader(device);
    unsigned char magic[SELFMAG];
    if (!reader.read(0, magic, sizeof magic) || !std::equal(magic, magic + SELFMAG, ELFMAG))
        return {};
    Elf64_Ehdr header;
    if (!reader.read(0, &header, sizeof header))
        return {ElfSection::Truncated, {}, {}};
    ElfSection result = checkHeader(header);
    if (result.status != ElfSection::Found)
        return result;

    const auto segments = reader.records<Elf64_Phdr>(header.e_phoff, header.e_phnum);
    const auto sections = reader.records<Elf64_Shdr>(header.e_shoff, header.e_shnum);
    if (!segments || !sections || !holdsAll(reader, *segments, *sections)) {
        result.status = ElfSection::Truncated;
        return result;
    }
    const auto content = sectionContent(reader, *sections, header.e_shstrndx, name, maximumSize);
    result.status = content ? ElfSection::Found : ElfSection::Missing;
    result.content = content.value_or(QByteArray());
    return result;
}

} // namespace panel
