// Registers a function object without a function.
#include "fixture.h"

static const Registration registration("emptyfactory",
                                       std::function<zeplet::PluginBase *(QObject *)>());
