#include "checkscript.h"

#include <cstdio>

namespace
{
constexpr int lookEveryMs = 20;
constexpr int stepLimitMs = 20000; // after the action: an edit alone may block for longer
} // namespace

CheckScript::CheckScript(QObject *parent)
    : QObject(parent)
{
    m_timer.setInterval(lookEveryMs);
    connect(&m_timer, &QTimer::timeout, this, &CheckScript::look);
}

void CheckScript::start(const QList<CheckStep> &steps)
{
    m_steps = steps;
    m_timer.start();
    enterStep();
}

void CheckScript::report(bool passed, int number, const QString &text)
{
    std::printf("%s %3d  %s\n", passed ? "ok    " : "FAILED", number, qPrintable(text));
    std::fflush(stdout);
}

void CheckScript::enterStep()
{
    const CheckStep &step = m_steps.at(m_current);
    if (step.action)
        step.action();
    m_since.start();
}

void CheckScript::look()
{
    const CheckStep &step = m_steps.at(m_current);
    const bool passed = step.expected();
    if (!passed && step.waits && m_since.elapsed() < stepLimitMs)
        return;
    const QString seen
        = passed || !step.seen ? QString() : QStringLiteral("; seen: ") + step.seen();
    report(passed, m_current + 1, step.title + seen);
    if (!passed || ++m_current == m_steps.size()) {
        m_timer.stop();
        emit finished(passed, m_current);
        return;
    }
    enterStep();
}
