#pragma once

#include "scenario.h"

#include <QObject>

namespace simulator
{

/** Emits the control lines of a scenario's timeline when they are due. */
class Timeline : public QObject
{
    Q_OBJECT

public:
    explicit Timeline(const QVector<TimelineStep> &steps, QObject *parent = nullptr);

    /** Begins to count. A second call does nothing: what came once does not come again. */
    void start();

signals:
    void due(const QString &line);

private:
    void repeat(const TimelineStep &step);

    QVector<TimelineStep> m_steps;
    bool m_started = false;
};

} // namespace simulator
