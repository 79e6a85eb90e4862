#include "livevalues.h"

#include <QJsonObject>
#include <zeplet/zeplet.h>

using zeplet::zepletInterface;

namespace
{

const QString ValuesKey = QStringLiteral("monitor.values");
constexpr int Unsupported = -240;

} // namespace

LiveValues::LiveValues(const QString &pluginName, QObject *parent)
    : QObject(parent)
    , m_pluginName(pluginName)
{
    // Connecting says only whether it worked: the id is the one that the bus did not have before.
    const QStringList before = zeplet::zepletEvent()->totalSubscriptionIds(m_pluginName);
    zepletInterface()->connectNexoData(m_pluginName, ValuesKey,
                                       [this](const QVariant &) { Q_EMIT changed(); });
    const QStringList after = zeplet::zepletEvent()->totalSubscriptionIds(m_pluginName);
    for (const QString &id : after)
        m_subscription = before.contains(id) ? m_subscription : id;
}

LiveValues::~LiveValues()
{
    if (!m_subscription.isEmpty())
        zepletInterface()->disconnectNexoData(m_pluginName, ValuesKey, m_subscription);
}

void LiveValues::select(const QStringList &names)
{
    if (m_active && names == m_selected)
        return;
    if (!std::exchange(m_active, true)) {
        m_before.clear();
        const QVector<QVariant> selected = zepletInterface()->getRegistedPERSVars();
        for (const QVariant &name : selected)
            m_before.append(name.toString());
    }
    m_selected = names;
    QStringList all = m_before + names;
    all.removeDuplicates();
    m_supported = zepletInterface()->registPERSVars(all.toVector()) != Unsupported;
}

void LiveValues::release()
{
    if (std::exchange(m_active, false) && m_supported)
        zepletInterface()->registPERSVars(m_before.toVector());
}

QString LiveValues::value(const QString &name) const
{
    const QJsonValue value = zepletInterface()->getNexoData(ValuesKey).toObject().value(name);
    return value.isString() ? value.toString() : QString();
}
