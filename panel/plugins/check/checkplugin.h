#pragma once

#include "checkscript.h"
#include "checksession.h"

#include <zeplet/plugin/pluginbase.h>

/**
 * Plays a session on the panel as a person would, and ends the panel: with 0 where every step
 * passed. The line about detach comes last; only a panel that detaches its modules prints it.
 */
class CheckPlugin : public zeplet::PluginBase
{
    Q_OBJECT

public:
    explicit CheckPlugin(QObject *parent);

    void init() override;
    void afterInit() override;
    void render() override;
    void idle() override;
    void detach() override;

private:
    void subscribe();

    CheckSession m_session;
    CheckScript m_script;
    bool m_passed = false;
    int m_stepCount = 0;
};
