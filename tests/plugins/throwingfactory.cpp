#include <zeplet/plugin/pluginbase.h>
#include <zeplet/plugin/pluginregister.h>

#include <stdexcept>

namespace
{

[[maybe_unused]] const bool registered = [] {
    zeplet::zepletFactory().regist(QStringLiteral("throwingfactory"),
                                   [](QObject *) -> zeplet::PluginBase * {
                                       throw std::runtime_error("no camera on this machine");
                                   });
    return true;
}();

} // namespace
