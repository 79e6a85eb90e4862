#include "zepleteventhandlerwithcontext.h"

#include <utility>

namespace zeplet
{

ZepletEventHandlerWithContext::ZepletEventHandlerWithContext(ZepletEventType type, QObject *context,
                                                             Callback callback, const QString &name,
                                                             QLatin1String suffix)
    : m_type(type)
    , m_context(context)
    , m_callback(std::move(callback))
    , m_name(name)
    , m_suffix(suffix)
{
}

ZepletEventHandlerWithContext::~ZepletEventHandlerWithContext() = default;

void ZepletEventHandlerWithContext::handleEvent(const ZepletEvent &event)
{
    if (m_context && m_callback)
        m_callback(event);
}

ZepletEventType ZepletEventHandlerWithContext::eventType() const
{
    return m_type;
}

QString ZepletEventHandlerWithContext::handlerName() const
{
    return m_name + m_suffix;
}

bool ZepletEventHandlerWithContext::isValid() const
{
    return m_context != nullptr;
}

} // namespace zeplet
