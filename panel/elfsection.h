#pragma once

#include <QByteArray>
#include <QString>

class QIODevice;

namespace panel
{

/** What a file says about itself as a shared library of this machine. */
struct ElfSection {
    enum Status {
        Found,
        NotElf, ///< no ELF file at all
        NotShared, ///< an ELF file, but a program or an object file
        Truncated, ///< parts that the header announces lie behind the end
        OtherMachine, ///< for another architecture, or another use of it, named in machine
        Missing ///< a sound library without that section
    };

    Status status = NotElf;
    QString machine; ///< the file's architecture, empty where unknown
    QByteArray content; ///< the section's bytes, at most maximumSize
};

/** The architecture of this program, in the words that readElfSection() uses. */
QString ownMachine();

/**
 * Reads one section of a shared library without opening it as one. Nothing that the file says is
 * believed unchecked: offsets and sizes are held against the file's size, and sections larger than
 * maximumSize bytes count as missing. device must be open and seekable; blocks for the disk.
 */
ElfSection readElfSection(QIODevice &device, const QByteArray &name, qint64 maximumSize = 4096);

} // namespace panel
