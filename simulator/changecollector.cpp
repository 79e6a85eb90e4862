#include "changecollector.h"

#include <utility>

namespace simulator
{

ChangeCollector::ChangeCollector(QObject *parent)
    : QObject(parent)
{
    m_pause.setSingleShot(true);
    m_pause.setInterval(kPauseMs);
    connect(&m_pause, &QTimer::timeout, this, &ChangeCollector::report);
}

void ChangeCollector::add(const QString &name, const QJsonValue &value)
{
    m_changes.insert(name, value);
    if (!m_pause.isActive())
        report();
}

void ChangeCollector::report()
{
    if (m_changes.isEmpty())
        return;
    m_pause.start();
    emit due(std::exchange(m_changes, {}));
}

} // namespace simulator
