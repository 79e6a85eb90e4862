#include "plugintag.h"

#include <QHash>
#include <QRegularExpression>

#include "ZepletPluginAbi.h"

namespace panel
{

namespace
{

constexpr char tagVersion[] = "zeplet-plugin-tag=1";

bool isPrintable(const QByteArray &text)
{
    for (const char c : text) {
        if (c < 0x20 || c > 0x7e)
            return false;
    }
    return !text.isEmpty();
}

} // namespace

PluginTag PluginTag::own()
{
    return {QString(), QStringLiteral(ZEPLET_VERSION), QString::fromLatin1(qVersion()),
            QStringLiteral(ZEPLET_PLUGIN_COMPILER), QStringLiteral(ZEPLET_PLUGIN_ARCHITECTURE)};
}

std::optional<PluginTag> PluginTag::parse(const QByteArray &section)
{
    const int end = section.indexOf('\0');
    const QList<QByteArray> lines = section.left(end).split('\n');
    if (lines.first() != tagVersion)
        return std::nullopt;

    QHash<QByteArray, QString> members;
    for (const QByteArray &line : lines) {
        const int equals = line.indexOf('=');
        const QByteArray value = line.mid(equals + 1);
        if (equals > 0 && isPrintable(value))
            members.insert(line.left(equals), QString::fromLatin1(value));
    }
    for (const char *member : {"name", "library", "qt", "compiler", "architecture"}) {
        if (!members.contains(member))
            return std::nullopt;
    }
    return PluginTag {members["name"], members["library"], members["qt"], members["compiler"],
                      members["architecture"]};
}

bool isPlainName(const QString &name)
{
    static const QRegularExpression plain(QStringLiteral("\\A[A-Za-z0-9][A-Za-z0-9_-]{0,63}\\z"));
    return plain.match(name).hasMatch();
}

} // namespace panel
