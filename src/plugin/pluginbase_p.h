#pragma once

#include <zeplet/plugin/pluginbase.h>

namespace zeplet
{

class PluginBase::PluginBasePrivate
{
public:
    explicit PluginBasePrivate(PluginBase *plugin)
        : q(plugin)
    {
    }
    virtual ~PluginBasePrivate() = default;

    PluginBase *q;
    bool defaultGlobalSheet = true;
    QString label;
};

} // namespace zeplet
