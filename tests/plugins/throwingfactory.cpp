#include "fixture.h"

#include <stdexcept>

static const Registration registration("throwingfactory", [](QObject *) -> zeplet::PluginBase * {
    throw std::runtime_error("no camera on this machine");
});
