#include <zeplet/plugin/pluginbase.h>

#include <zeplet/plugin/pluginbase_p.h>

namespace zeplet
{

PluginBase::PluginBase(QObject *parent)
    : QObject(parent)
    , d(std::make_unique<PluginBasePrivate>(this))
{
}

PluginBase::~PluginBase() = default;

void PluginBase::setDefaultGlobalSheet(bool enabled)
{
    d->defaultGlobalSheet = enabled;
}

bool PluginBase::getDefaultGlobalSheet() const
{
    return d->defaultGlobalSheet;
}

void PluginBase::setPluginLabel(const QString &label)
{
    d->label = label;
}

QString PluginBase::getPluginLabel() const
{
    return d->label;
}

// The hooks stay empty for good: the host module calls all of them, so that a hook which a plugin
// does not override must do nothing.
void PluginBase::init() { }
void PluginBase::afterInit() { }
void PluginBase::render() { }
void PluginBase::idle() { }
void PluginBase::detach() { }

} // namespace zeplet
