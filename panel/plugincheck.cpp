#include "plugincheck.h"

#include "elfsection.h"

#include <QCoreApplication>
#include <QFile>
#include <QRegularExpression>
#include <QVersionNumber>
#include <cstdlib>
#include <cxxabi.h>
#include <memory>

namespace panel
{

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(panel)
};

QString fileSentence(const QString &file, const ElfSection &section)
{
    switch (section.status) {
    case ElfSection::Found:
        return QString();
    case ElfSection::NotElf:
        return Texts::
            tr("%1 is not a library: put the file there that the plugin's build made, or remove "
               "this one.")
                .arg(file);
    case ElfSection::NotShared:
        return Texts::tr(
                   "%1 is a program, not a plugin library: put the library there, or remove it.")
            .arg(file);
    case ElfSection::Truncated:
        return Texts::tr("%1 is cut short: copy the whole file to the panel again.").arg(file);
    case ElfSection::OtherMachine:
        return Texts::tr("%1 was built for %2 and this panel is %3: build it for %3.")
            .arg(file, section.machine, ownMachine());
    case ElfSection::Missing:
        return Texts::tr(
                   "%1 has no plugin tag, so nobody knows what it was built against: build it with "
                   "zeplet_add_plugin().")
            .arg(file);
    }
    return QString();
}

/** Versions of the library agree in the first two numbers; the third one marks corrections. */
bool isLibraryCompatible(const QString &plugin, const QString &panel)
{
    const auto theirs = QVersionNumber::fromString(plugin);
    const auto ours = QVersionNumber::fromString(panel);
    return theirs.majorVersion() == ours.majorVersion()
        && theirs.minorVersion() == ours.minorVersion() && !theirs.isNull();
}

/** Qt runs what was built against an earlier minor version of the same major one. */
bool isQtCompatible(const QString &plugin, const QString &panel)
{
    const auto theirs = QVersionNumber::fromString(plugin);
    const auto ours = QVersionNumber::fromString(panel);
    return theirs.majorVersion() == ours.majorVersion()
        && theirs.minorVersion() <= ours.minorVersion() && !theirs.isNull();
}

/** Empty where the tag agrees with the panel's. */
QString tagSentence(const QString &file, const PluginTag &tag, const PluginTag &own)
{
    if (!isPlainName(tag.name))
        return Texts::tr("%1 has a name in its tag that is not a plain word: name it with letters, "
                         "digits, "
                         "\"_\" and \"-\" in zeplet_add_plugin().")
            .arg(file);
    if (tag.architecture != own.architecture)
        return Texts::tr("%1 was built for %2 and this panel is %3: build it for %3.")
            .arg(file, tag.architecture, own.architecture);
    if (!isLibraryCompatible(tag.library, own.library))
        return Texts::tr(
                   "%1 was built against version %2 of the plugin library and this panel has %3: "
                   "build it against %3.")
            .arg(file, tag.library, own.library);
    if (!isQtCompatible(tag.qt, own.qt))
        return Texts::tr(
                   "%1 was built against Qt %2 and this panel has Qt %3: build it against Qt %3.")
            .arg(file, tag.qt, own.qt);
    if (tag.compiler != own.compiler)
        return Texts::tr(
                   "%1 was built with the compiler interface %2 and this panel uses %3: build it "
                   "with %3.")
            .arg(file, tag.compiler, own.compiler);
    return QString();
}

PluginRecord refused(PluginRecord record, const QString &sentence)
{
    record.state = PluginRecord::Refused;
    record.sentence = sentence;
    return record;
}

/** The name that a person wrote in the source; the symbol itself where it is no C++ name. */
QString demangled(const QString &symbol)
{
    int status = -1;
    const std::unique_ptr<char, decltype(&std::free)> name(
        abi::__cxa_demangle(symbol.toLatin1().constData(), nullptr, nullptr, &status), &std::free);
    return status == 0 ? QString::fromLatin1(name.get()) : symbol;
}

QString firstMatch(const QString &text, const char *pattern)
{
    return QRegularExpression(QString::fromLatin1(pattern)).match(text).captured(1);
}

} // namespace

PluginRecord checkPlugin(const QFileInfo &info)
{
    PluginRecord record;
    record.file = info;
    const QString name = info.fileName();
    QFile file(info.absoluteFilePath());
    if (info.isDir())
        return refused(
            record,
            Texts::tr("%1 is a directory: put the plugin library itself there, or remove it.")
                .arg(name));
    // Opening anything but a plain file may wait for ever.
    if (!info.isFile())
        return refused(
            record,
            Texts::tr("%1 is not a plain file: put a plugin library there, or remove it.")
                .arg(name));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return refused(record,
                       Texts::tr("%1 can't be read (%2): check the file's permissions.")
                           .arg(name, file.errorString()));

    const ElfSection section = readElfSection(file, pluginTagSection);
    if (section.status != ElfSection::Found)
        return refused(record, fileSentence(name, section));
    const auto tag = PluginTag::parse(section.content);
    if (!tag)
        return refused(record,
                       Texts::tr("%1 has a damaged plugin tag: build it again with "
                                 "zeplet_add_plugin().")
                           .arg(name));
    record.tag = *tag;
    const QString sentence = tagSentence(name, *tag, PluginTag::own());
    return sentence.isEmpty() ? record : refused(record, sentence);
}

QString linkerSentence(const QString &fileName, const QString &linkerMessage)
{
    const QString symbol = firstMatch(linkerMessage, "undefined symbol: ([^\\s,)]+)");
    if (!symbol.isEmpty())
        return Texts::tr(
                   "%1 uses %2, which no library of this panel has: link the library that defines "
                   "it.")
            .arg(fileName, demangled(symbol));
    const QString library
        = firstMatch(linkerMessage, "([^\\s(]+): cannot open shared object file: No such file");
    if (!library.isEmpty())
        return Texts::tr("%1 needs the library %2, which this panel lacks: install %2.")
            .arg(fileName, library);
    const QString version = firstMatch(linkerMessage, "version `([^']+)' not found");
    if (!version.isEmpty())
        return Texts::tr(
                   "%1 needs %2, which is newer than this panel's: build it on the panel's system.")
            .arg(fileName, version);
    return Texts::tr("%1 can't be opened (%2): build it again for this panel.")
        .arg(fileName, linkerMessage.simplified());
}

} // namespace panel
