#include "zepleteventhandleroneshot.h"

#include <utility>

namespace zeplet
{

ZepletEventHandlerOneShot::ZepletEventHandlerOneShot(ZepletEventType type, Callback callback,
                                                     const QString &name, QLatin1String suffix)
    : ZepletEventHandlerFunc(type, std::move(callback), name, suffix)
{
}

ZepletEventHandlerOneShot::~ZepletEventHandlerOneShot() = default;

void ZepletEventHandlerOneShot::handleEvent(const ZepletEvent &event)
{
    if (m_fired)
        return;
    ZepletEventHandlerFunc::handleEvent(event);
    m_fired = true;
}

bool ZepletEventHandlerOneShot::isOneShot() const
{
    return true;
}

bool ZepletEventHandlerOneShot::isValid() const
{
    return !m_fired;
}

} // namespace zeplet
