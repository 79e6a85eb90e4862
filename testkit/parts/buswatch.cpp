#include "buswatch.h"

#include <QMap>
#include <QStringList>
#include <QThread>

namespace zeplet
{
namespace test
{

BusWatch::BusWatch()
{
    const ZepletEventSystem *const bus = zepletEvent();
    connect(bus, &ZepletEventSystem::eventPublished, this, &BusWatch::keep, Qt::DirectConnection);
    connect(bus, &ZepletEventSystem::subscriptionAdded, this, &BusWatch::add, Qt::DirectConnection);
}

BusWatch::~BusWatch()
{
    disconnect(zepletEvent(), nullptr, this, nullptr);
    for (const Subscription &made : qAsConst(m_subscriptions))
        zepletEvent()->unsubscribe(made.id);
}

std::optional<ZepletEvent> BusWatch::last(ZepletEventType type) const
{
    const QMutexLocker lock(&m_mutex);
    for (auto event = m_events.crbegin(); event != m_events.crend(); ++event) {
        if (event->type == type)
            return *event;
    }
    return std::nullopt;
}

QString BusWatch::summary() const
{
    QMap<QString, int> counts;
    {
        const QMutexLocker lock(&m_mutex);
        for (const ZepletEvent &event : m_events) {
            const QString name = zepletEvent()->customEventTypeName(event.type);
            ++counts[name.isEmpty() ? eventTypeToString(event.type) : name];
        }
    }
    QStringList parts;
    for (auto count = counts.cbegin(); count != counts.cend(); ++count)
        parts += *count == 1 ? count.key() : QStringLiteral("%1 (%2)").arg(count.key()).arg(*count);
    return parts.isEmpty() ? QStringLiteral("nothing") : parts.join(QStringLiteral(", "));
}

void BusWatch::clear()
{
    const QMutexLocker lock(&m_mutex);
    m_events.clear();
}

void BusWatch::setStep(const QString &plugin)
{
    const QMutexLocker lock(&m_mutex);
    m_step = plugin;
}

QVector<BusWatch::Subscription> BusWatch::subscriptions() const
{
    const QMutexLocker lock(&m_mutex);
    return m_subscriptions;
}

void BusWatch::keep(const ZepletEvent &event)
{
    const QMutexLocker lock(&m_mutex);
    m_events.append(event);
}

void BusWatch::add(const QString &id, ZepletEventType type, const QString &subscriber)
{
    const bool onGuiThread = QThread::currentThread() == thread();
    const QMutexLocker lock(&m_mutex);
    m_subscriptions.append({id, type, subscriber, onGuiThread ? m_step : QString()});
}

} // namespace test
} // namespace zeplet
