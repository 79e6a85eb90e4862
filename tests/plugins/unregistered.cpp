// A library that forgets to register its plugin.
#include "fixture.h"

[[maybe_unused]] static const zeplet::PluginRegister *const plugins = &zeplet::zepletFactory();
