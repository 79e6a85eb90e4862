#include "zepleteventhandlerfunc.h"

#include <utility>

namespace zeplet
{

ZepletEventHandlerFunc::ZepletEventHandlerFunc(ZepletEventType type, Callback callback,
                                               const QString &name)
    : m_type(type)
    , m_callback(std::move(callback))
    , m_name(name)
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
    return m_name;
}

} // namespace zeplet
