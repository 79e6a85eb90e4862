// Registers another name than its tag says.
#include "fixture.h"

static const Registration registration("anothername", [](QObject *parent) {
    return new zeplet::PluginBase(parent);
});
