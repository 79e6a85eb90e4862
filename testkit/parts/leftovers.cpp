#include "leftovers.h"

#include <kest/bmodule.h>
#include <ostrel/moduleobject.h>

namespace zeplet
{
namespace test
{

namespace
{

int modalCount()
{
    return m(mName(QStringLiteral("brisa.msg"), QStringLiteral("_")))->getInt(0);
}

/** Whose a subscription is: the name on the bus counts first, then in whose step it was made. What
 *  neither tells is anybody's. */
bool isOf(const BusWatch::Subscription &subscription, const QString &plugin,
          const QStringList &plugins)
{
    for (const QString &name : {subscription.subscriber, subscription.madeIn}) {
        if (plugins.contains(name))
            return name == plugin;
    }
    return true;
}

} // namespace

Leftovers::Leftovers(const BusWatch &bus)
    : m_bus(bus)
    , m_modalWindows(modalCount())
{
}

QStringList Leftovers::of(const QString &plugin, const QStringList &plugins)
{
    return subscriptions(plugin, plugins) + modalWindows();
}

QStringList Leftovers::subscriptions(const QString &plugin, const QStringList &plugins)
{
    QStringList sentences;
    for (const BusWatch::Subscription &left : m_bus.subscriptions()) {
        if (m_told.contains(left.id) || !isOf(left, plugin, plugins))
            continue;
        m_told.append(left.id);
        sentences += QStringLiteral(
                         "A subscription to %1 in the name \"%2\" is left: end it in detach().")
                         .arg(eventTypeToString(left.type), left.subscriber);
    }
    return sentences;
}

QStringList Leftovers::modalWindows()
{
    const int more = modalCount() - std::exchange(m_modalWindows, modalCount());
    if (more == 0)
        return {};
    return {QStringLiteral("The count of modal windows is off by %1: call "
                           "ChangeModelWindowStatus() once when a window opens and once when it "
                           "closes.")
                .arg(more)};
}

} // namespace test
} // namespace zeplet
