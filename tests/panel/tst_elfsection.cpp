#include "elfsection.h"
#include "pluginfiles.h"
#include "plugintag.h"

#include <QBuffer>
#include <QRandomGenerator>
#include <QTest>
#include <elf.h>
#include <limits>

using panel::ElfSection;

/** Reading a section from sound, cut and hostile files. */
class TestElfSection : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_sound = pluginfiles::bytes(QStringLiteral("sound"));
        QVERIFY(m_sound.size() > int(sizeof(Elf64_Ehdr)));
    }

    void soundLibrary()
    {
        const ElfSection section = read(m_sound);
        QCOMPARE(section.status, ElfSection::Found);
        const auto tag = panel::PluginTag::parse(section.content);
        QVERIFY(tag);
        QCOMPARE(tag->name, QStringLiteral("sound"));
        QCOMPARE(tag->qt, QStringLiteral(QT_VERSION_STR));
        QCOMPARE(tag->architecture, panel::PluginTag::own().architecture);
        QCOMPARE(tag->library, panel::PluginTag::own().library);
        QCOMPARE(tag->compiler, panel::PluginTag::own().compiler);
    }

    void cutAnywhere()
    {
        // The section headers come last, so that every cut is noticed.
        for (int size = 0; size < m_sound.size(); size += 1 + size / 16) {
            const ElfSection section = read(m_sound.left(size));
            QCOMPARE(section.status, size < SELFMAG ? ElfSection::NotElf : ElfSection::Truncated);
            QVERIFY(section.content.isEmpty());
        }
    }

    void header()
    {
        struct Patch {
            size_t offset;
            int width;
            quint64 value;
            ElfSection::Status status;
        };
        const quint64 huge = std::numeric_limits<quint64>::max();
        const Patch patches[] = {
            {0, 1, 'x', ElfSection::NotElf},
            {offsetof(Elf64_Ehdr, e_machine), 2, EM_RISCV, ElfSection::OtherMachine},
            {EI_CLASS, 1, ELFCLASS32, ElfSection::OtherMachine},
            {EI_DATA, 1, ELFDATA2MSB, ElfSection::OtherMachine},
            {offsetof(Elf64_Ehdr, e_type), 2, ET_EXEC, ElfSection::NotShared},
            {offsetof(Elf64_Ehdr, e_type), 2, ET_REL, ElfSection::NotShared},
            {offsetof(Elf64_Ehdr, e_shoff), 8, huge, ElfSection::Truncated},
            {offsetof(Elf64_Ehdr, e_shoff), 8, huge - 64, ElfSection::Truncated},
            {offsetof(Elf64_Ehdr, e_phoff), 8, huge / 2, ElfSection::Truncated},
            {offsetof(Elf64_Ehdr, e_shnum), 2, 0xffff, ElfSection::Truncated},
            {offsetof(Elf64_Ehdr, e_shnum), 2, 0, ElfSection::Missing},
            {offsetof(Elf64_Ehdr, e_shstrndx), 2, 0xffff, ElfSection::Missing},
        };
        for (const Patch &patch : patches) {
            QByteArray file = m_sound;
            memcpy(file.data() + patch.offset, &patch.value, size_t(patch.width));
            const QByteArray what = QByteArray::number(int(patch.offset));
            QVERIFY2(read(file).status == patch.status, what.constData());
        }
    }

    // Every section header in turn gets the extreme value: nothing but the content or its absence
    // may come of it. Sanitizers see the rest.
    void sectionHeaders()
    {
        Elf64_Ehdr header;
        memcpy(&header, m_sound.constData(), sizeof header);
        const std::pair<size_t, size_t> members[] = {{offsetof(Elf64_Shdr, sh_name), 4},
                                                     {offsetof(Elf64_Shdr, sh_type), 4},
                                                     {offsetof(Elf64_Shdr, sh_offset), 8},
                                                     {offsetof(Elf64_Shdr, sh_size), 8}};
        for (const quint64 value :
             {quint64(0), quint64(0xffffffff), quint64(1) << 63, ~quint64(0)}) {
            for (const auto &[member, width] : members) {
                for (int i = 0; i < header.e_shnum; ++i) {
                    QByteArray file = m_sound;
                    memcpy(file.data() + header.e_shoff + i * sizeof(Elf64_Shdr) + member, &value,
                           width);
                    const ElfSection section = read(file);
                    QVERIFY(section.status == ElfSection::Found || section.content.isEmpty());
                    QVERIFY(section.content.size() <= 4096);
                }
            }
        }
    }

    void randomDamage()
    {
        QRandomGenerator random(20240506);
        Elf64_Ehdr header;
        memcpy(&header, m_sound.constData(), sizeof header);
        const int tables = int(header.e_shoff);
        for (int round = 0; round < 3000; ++round) {
            QByteArray file = m_sound;
            for (int i = 0; i < 8; ++i) {
                const bool inTables = random.bounded(2);
                const int at = inTables ? random.bounded(tables, file.size())
                                        : random.bounded(int(sizeof(Elf64_Ehdr)));
                file[at] = char(random.bounded(256));
            }
            QVERIFY(read(file).content.size() <= 4096);
        }
    }

    void largeSectionIsNotRead()
    {
        QBuffer device(&m_sound);
        QVERIFY(device.open(QIODevice::ReadOnly));
        QCOMPARE(panel::readElfSection(device, ".text", 4).status, ElfSection::Missing);
    }

private:
    static ElfSection read(QByteArray file)
    {
        QBuffer device(&file);
        device.open(QIODevice::ReadOnly);
        return panel::readElfSection(device, panel::pluginTagSection);
    }

    QByteArray m_sound;
};

QTEST_GUILESS_MAIN(TestElfSection)
#include "tst_elfsection.moc"
