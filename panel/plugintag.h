#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

namespace panel
{

/** What zeplet_add_plugin() writes into a plugin library, to be read before the library is opened.
 */
struct PluginTag {
    QString name; ///< the name that the plugin registers; a plain word, see isPlainName()
    QString library; ///< version of the plugin library's SDK, "1.0.2"
    QString qt; ///< version of Qt, "5.15.8"
    QString compiler; ///< the compiler's interface
    QString architecture; ///< as the compiler names it

    /** The tag of this panel: what a plugin has to agree with. The name is empty. */
    static PluginTag own();
    /** The tag in a section's bytes; nothing where a member is missing or not printable. */
    static std::optional<PluginTag> parse(const QByteArray &section);
};

/** Name of the section that holds the tag. */
inline constexpr char pluginTagSection[] = ".zeplet_plugin";

/** A letter or digit, then letters, digits, "_" and "-", 64 at most: never a path. */
bool isPlainName(const QString &name);

} // namespace panel
