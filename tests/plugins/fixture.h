#pragma once

#include <zeplet/plugin/pluginbase.h>
#include <zeplet/plugin/pluginregister.h>

/** Registers a plugin while its library is opened. */
struct Registration {
    template <typename Factory>
    Registration(const char *name, Factory factory)
    {
        zeplet::zepletFactory().regist(QLatin1String(name), factory);
    }
};
