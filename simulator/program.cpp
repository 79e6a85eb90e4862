#include "program.h"

namespace simulator
{

Program::Program(const Values &values, QObject *parent)
    : QObject(parent)
    , m_values(values)
{
    connect(&m_timer, &QTimer::timeout, this, &Program::next);
}

void Program::setRunning(bool running)
{
    if (m_values.lines.isEmpty() || running == m_timer.isActive())
        return;
    m_index = 0;
    if (!running) {
        m_timer.stop();
        return;
    }
    m_timer.start(m_values.every);
    // The state that has just changed goes out first.
    QTimer::singleShot(0, this, &Program::next);
}

void Program::next()
{
    if (!m_timer.isActive() || (m_mustWait && m_mustWait()))
        return;
    const QString line = m_values.lines.at(m_index);
    m_index = (m_index + 1) % m_values.lines.size();
    emit due(line);
}

} // namespace simulator
