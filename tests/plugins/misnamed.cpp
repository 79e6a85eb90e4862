// Registers another name than its tag says.
#include <zeplet/plugin/pluginbase.h>
#include <zeplet/plugin/pluginregister.h>

namespace
{

[[maybe_unused]] const bool registered = [] {
    zeplet::zepletFactory().regist(QStringLiteral("anothername"),
                                   [](QObject *parent) { return new zeplet::PluginBase(parent); });
    return true;
}();

} // namespace
