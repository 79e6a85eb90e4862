#pragma once

#include "keptrecords.h"
#include "simulatorprocess.h"

#include <QList>
#include <QObject>
#include <QStringList>
#include <QVariant>
#include <zeplet/events/zepletevent.h>

/** What the steps of the check share: the controller, what came from it and from the panel, and
 *  the records that may not get lost. */
class CheckSession : public QObject
{
    Q_OBJECT

public:
    CheckSession();

    SimulatorProcess *simulator() { return &m_simulator; }
    KeptRecords *kept() { return &m_kept; }

    /** The life cycle hooks of the plugin, in the order of their first calls. */
    QStringList hooks() const { return m_hooks; }
    void see(const QString &hook);

    // Events and messages since the last forgetNews().
    void forgetNews();
    void record(const zeplet::ZepletEvent &event);
    /** Without watched values, which may change by themselves. */
    QList<int> eventTypes() const;
    bool sawData(int type, const QString &source, const QVariant &data) const;
    /** The data of the last change of a watched hub key; invalid where none came. */
    QVariant lastHubValue(const QString &key) const;
    /** What the panel has told the operator. */
    QStringList messages() const { return m_messages; }
    bool sawMessage(const QString &part) const;

private:
    SimulatorProcess m_simulator;
    KeptRecords m_kept;
    QStringList m_hooks;
    QList<zeplet::ZepletEvent> m_events;
    QStringList m_messages;
};
