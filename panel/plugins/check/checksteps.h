#pragma once

#include "checkscript.h"

#include <QList>
#include <QStringList>
#include <QVariant>
#include <zeplet/events/zepletevent.h>

class SimulatorProcess;

/** The steps of the check, and what they look at: the events and hooks that the plugin has seen. */
class CheckSteps
{
public:
    CheckSteps(SimulatorProcess *simulator, const QStringList *hooks);

    QList<CheckStep> all();
    void record(const zeplet::ZepletEvent &event);

private:
    QList<CheckStep> startSteps();
    QList<CheckStep> controllerSteps();
    QList<CheckStep> watchSteps();
    QList<CheckStep> lossSteps();
    CheckStep eventStep(const QString &title, const std::function<void()> &action,
                        const QList<int> &types);
    QList<int> seenTypes() const;
    bool sawData(int type, const QString &source, const QVariant &data) const;

    SimulatorProcess *m_simulator;
    const QStringList *m_hooks;
    QList<zeplet::ZepletEvent> m_events; ///< since the current step began
};
