#pragma once

#include <zeplet/plugin/pluginbase.h>
#include <zeplet/plugin/pluginregister.h>
#include <zeplet/plugin/zepletmodule.h>

#include <kest/modulefactory.h>

#include <QPointer>
#include <QStringList>
#include <memory>

/** Notes the hooks that the host calls. */
class RecordingPlugin : public zeplet::PluginBase
{
public:
    explicit RecordingPlugin(QObject *parent, const QString &label = QString())
        : PluginBase(parent)
    {
        setPluginLabel(label);
    }

    void init() override { calls += QStringLiteral("init"); }
    void afterInit() override { calls += QStringLiteral("afterInit"); }
    void render() override { calls += QStringLiteral("render"); }
    void idle() override { calls += QStringLiteral("idle"); }
    void detach() override { calls += QStringLiteral("detach"); }

    QStringList calls;
};

/** A module as the host makes it: registered, made by the host's factory, set up. */
class MadeModule
{
public:
    explicit MadeModule(const QString &name, const QString &label = QString())
    {
        zeplet::zepletFactory().regist(
            name, [label](QObject *parent) { return new RecordingPlugin(parent, label); });
        module.reset(static_cast<zeplet::Zeplet *>(bfactory().makers.value(name)(nullptr)));
        plugin = dynamic_cast<RecordingPlugin *>(module->children().value(0));
        module->setup();
    }

    zeplet::Zeplet *operator->() const { return module.get(); }

    std::unique_ptr<zeplet::Zeplet> module;
    QPointer<RecordingPlugin> plugin;
};
