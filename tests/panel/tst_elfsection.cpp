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

    void header_data()
    {
        QTest::addColumn<int>("offset");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<int>("status");
        const auto row = [](const char *name, size_t offset, auto value,
                            ElfSection::Status status) {
            QTest::newRow(name) << int(offset)
                                << QByteArray(reinterpret_cast<const char *>(&value), sizeof value)
                                << int(status);
        };
        const quint64 huge = std::numeric_limits<quint64>::max();
        row("no magic", 0, 'x', ElfSection::NotElf);
        row("other machine", offsetof(Elf64_Ehdr, e_machine), Elf64_Half(EM_RISCV),
            ElfSection::OtherMachine);
        row("32 bit", EI_CLASS, char(ELFCLASS32), ElfSection::OtherMachine);
        row("other byte order", EI_DATA, char(ELFDATA2MSB), ElfSection::OtherMachine);
        row("program", offsetof(Elf64_Ehdr, e_type), Elf64_Half(ET_EXEC), ElfSection::NotShared);
        row("object file", offsetof(Elf64_Ehdr, e_type), Elf64_Half(ET_REL), ElfSection::NotShared);
        row("sections at the end of the world", offsetof(Elf64_Ehdr, e_shoff), huge,
            ElfSection::Truncated);
        row("sections overflow", offsetof(Elf64_Ehdr, e_shoff), huge - 64, ElfSection::Truncated);
        row("segments behind the end", offsetof(Elf64_Ehdr, e_phoff), huge / 2,
            ElfSection::Truncated);
        row("too many sections", offsetof(Elf64_Ehdr, e_shnum), Elf64_Half(0xffff),
            ElfSection::Truncated);
        row("no sections", offsetof(Elf64_Ehdr, e_shnum), Elf64_Half(0), ElfSection::Missing);
        row("names in no section", offsetof(Elf64_Ehdr, e_shstrndx), Elf64_Half(0xffff),
            ElfSection::Missing);
    }

    void header()
    {
        QFETCH(int, offset);
        QFETCH(QByteArray, bytes);
        QFETCH(int, status);
        QByteArray file = m_sound;
        file.replace(offset, bytes.size(), bytes);
        QCOMPARE(int(read(file).status), status);
    }

    void sectionHeaders_data()
    {
        QTest::addColumn<int>("member");
        QTest::addColumn<quint64>("value");
        for (const quint64 value :
             {quint64(0), quint64(0xffffffff), quint64(1) << 63, ~quint64(0)}) {
            QTest::addRow("name %llx", value) << int(offsetof(Elf64_Shdr, sh_name)) << value;
            QTest::addRow("type %llx", value) << int(offsetof(Elf64_Shdr, sh_type)) << value;
            QTest::addRow("offset %llx", value) << int(offsetof(Elf64_Shdr, sh_offset)) << value;
            QTest::addRow("size %llx", value) << int(offsetof(Elf64_Shdr, sh_size)) << value;
        }
    }

    // Every section header in turn gets the extreme value: nothing but the content or its absence
    // may come of it. Sanitizers see the rest.
    void sectionHeaders()
    {
        QFETCH(int, member);
        QFETCH(quint64, value);
        Elf64_Ehdr header;
        memcpy(&header, m_sound.constData(), sizeof header);
        const bool narrow = member <= int(offsetof(Elf64_Shdr, sh_type));
        const size_t width = narrow ? sizeof(Elf64_Word) : sizeof value;
        for (int i = 0; i < header.e_shnum; ++i) {
            QByteArray file = m_sound;
            memcpy(file.data() + header.e_shoff + i * sizeof(Elf64_Shdr) + member, &value, width);
            const ElfSection section = read(file);
            QVERIFY(section.status == ElfSection::Found || section.content.isEmpty());
            QVERIFY(section.content.size() <= 4096);
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
