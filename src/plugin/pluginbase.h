#pragma once

#include <zeplet/export.h>

#include <QObject>
#include <QString>
#include <memory>

namespace zeplet
{

/**
 * What every plugin derives from. The host module of the plugin owns it and calls its hooks on the
 * GUI thread, in the order init, afterInit, render and idle again and again, detach. None of them
 * needs a call of the base.
 */
class ZEPLET_EXPORT PluginBase : public QObject
{
    Q_OBJECT

public:
    /** The parent is the plugin's module, which the factory is given; it owns the plugin. */
    explicit PluginBase(QObject *parent);
    ~PluginBase() override;

    /** Whether the host's style sheet is applied to the plugin's page before each render(). */
    void setDefaultGlobalSheet(bool enabled);
    /** What was set; true at first. */
    bool getDefaultGlobalSheet() const;

    /** The title of the plugin's navigation entry; empty: the plugin's name. Read once, before
     *  init(): set it in the constructor. */
    void setPluginLabel(const QString &label);
    /** What was set; empty at first. */
    QString getPluginLabel() const;

    /** The page and the navigation entry stand: build the UI, subscribe. */
    virtual void init();
    /** Every module of the host has been through its init. */
    virtual void afterInit();
    /** Once per frame of the host. Return quickly. */
    virtual void render();
    /** When the host has nothing else to do. Return quickly. */
    virtual void idle();
    /** The last call before destruction: everything of the host is still there. */
    virtual void detach();

private:
    class PluginBasePrivate;
    std::unique_ptr<PluginBasePrivate> d;
};

} // namespace zeplet
