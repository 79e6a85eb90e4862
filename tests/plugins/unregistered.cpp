// A library that forgets to register its plugin.
#include <zeplet/plugin/pluginregister.h>

namespace
{

[[maybe_unused]] const zeplet::PluginRegister *const plugins = &zeplet::zepletFactory();

} // namespace
