#include "storedsubscription_p.h"

namespace zeplet
{

StoredSubscription::StoredSubscription(ZepletEventSubscription subscription)
    : ZepletEventSubscription(std::move(subscription))
    , storedId(id)
    , storedType(eventType)
    , storedPlugin(pluginName)
{
}

} // namespace zeplet
