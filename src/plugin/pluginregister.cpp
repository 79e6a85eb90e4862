#include <zeplet/plugin/pluginregister.h>

#include <kest/modulefactory.h>
#include <ostrel/moduleobject.h>
#include <ostrel/pluginmanager.h>
#include <zeplet/plugin/zepletmodule.h>

#include <memory>

namespace zeplet
{

namespace
{

// Shows the host a new entry, still without a value, under the plugin's name.
void announce(ostrel::ModuleObject *table, const QString &name)
{
    table->set(table, name, QVariant(), true);
}

kest::BModule *makeModule(PluginRegister *plugins, const QString &name, QObject *parent)
{
    // A factory may throw; then the module that waits for its plugin goes with all it entered.
    auto module = std::make_unique<Zeplet>(name, parent);
    module->setPlugin(plugins->create(name, module.get()));
    return module.release();
}

void registerPlugin(const QString &name)
{
    ostrel::PluginManager &manager = ostrel::pluginManager();
    if (manager.plugins.contains(name))
        return;
    manager.plugins.insert(name, [] { return -1; });
    announce(manager.mobj(), name);
}

} // namespace

void PluginRegister::regist(const QString &name, Factory factory)
{
    if (m_factories.contains(name))
        return;
    m_factories.insert(name, factory);
    registerModule(name);
    registerPlugin(name);
}

void PluginRegister::registerModule(const QString &name)
{
    kest::ModuleFactory &modules = bfactory();
    if (modules.makers.contains(name))
        return;
    modules.makers.insert(name,
                          [this, name](QObject *parent) { return makeModule(this, name, parent); });
    announce(modules.mobj(), name);
}

PluginBase *PluginRegister::create(const QString &name, QObject *parent)
{
    const auto entry = m_factories.constFind(name);
    if (entry == m_factories.constEnd())
        return nullptr;
    // A copy: the factory may change the register while it runs.
    const Factory factory = *entry;
    return factory(parent);
}

void PluginRegister::cancel(const QString &name)
{
    m_factories.remove(name);
}

PluginRegister &zepletFactory()
{
    static PluginRegister plugins;
    return plugins;
}

} // namespace zeplet
