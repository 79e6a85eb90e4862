#include "zepleteventhandlerfiltered.h"

#include <utility>

namespace zeplet
{

ZepletEventHandlerFiltered::ZepletEventHandlerFiltered(ZepletEventType type, Filter filter,
                                                       Callback callback, const QString &name,
                                                       QLatin1String suffix)
    : m_type(type)
    , m_filter(std::move(filter))
    , m_callback(std::move(callback))
    , m_name(name)
    , m_suffix(suffix)
{
}

ZepletEventHandlerFiltered::~ZepletEventHandlerFiltered() = default;

void ZepletEventHandlerFiltered::handleEvent(const ZepletEvent &event)
{
    if (m_filter && !m_filter(event))
        return;
    if (m_callback)
        m_callback(event);
}

ZepletEventType ZepletEventHandlerFiltered::eventType() const
{
    return m_type;
}

QString ZepletEventHandlerFiltered::handlerName() const
{
    return m_name + m_suffix;
}

} // namespace zeplet
