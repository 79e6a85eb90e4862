#include "zepleteventhandlerfunc.h"

#include <utility>

namespace zeplet
{

ZepletEventHandlerFunc::ZepletEventHandlerFunc(ZepletEventType type, Callback callback,
                                               const QString &name, QLatin1String suffix)
    : m_type(type)
    , m_callback(std::move(callback))
    , m_name(name)
    , m_suffix(suffix)
{
}

ZepletEventHandlerFunc::~ZepletEventHandlerFunc() = default;

void ZepletEventHandlerFunc::handleEvent(const ZepletEvent &event)
{
    if (m_callback)
        m_callback(event);
}

ZepletEventType ZepletEventHandlerFunc::eventType() const
{
    return m_type;
}

QString ZepletEventHandlerFunc::handlerName() const
{
    return m_name + m_suffix;
}

} // namespace zeplet
