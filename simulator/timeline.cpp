#include "timeline.h"

#include <QTimer>

namespace simulator
{

Timeline::Timeline(const QVector<TimelineStep> &steps, QObject *parent)
    : QObject(parent)
    , m_steps(steps)
{
}

void Timeline::start()
{
    if (m_started)
        return;
    m_started = true;
    for (const TimelineStep &step : qAsConst(m_steps)) {
        QTimer::singleShot(step.after, this, [this, step] {
            if (step.every > 0) {
                repeat(step);
                return;
            }
            for (const QString &line : step.lines)
                emit due(line);
        });
    }
}

void Timeline::repeat(const TimelineStep &step)
{
    auto emitNext = [this, lines = step.lines, index = 0]() mutable {
        emit due(lines.at(index));
        index = (index + 1) % lines.size();
    };
    emitNext();
    auto *timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this, emitNext);
    timer->start(step.every);
}

} // namespace simulator
