#pragma once

#include <zeplet/events/zepleteventhandler.h>

namespace zeplet
{

/// Calls a function for the events that a filter lets through. An empty filter lets every event
/// through.
class ZEPLET_EXPORT ZepletEventHandlerFiltered : public ZepletEventHandler
{
public:
    /// The name is `name` and `suffix`, put together when it is asked for.
    ZepletEventHandlerFiltered(ZepletEventType type, Filter filter, Callback callback,
                               const QString &name, QLatin1String suffix = QLatin1String());
    ~ZepletEventHandlerFiltered() override;

    void handleEvent(const ZepletEvent &event) override;
    ZepletEventType eventType() const override;
    QString handlerName() const override;

private:
    const ZepletEventType m_type;
    const Filter m_filter;
    const Callback m_callback;
    const QString m_name;
    const QLatin1String m_suffix;
};

} // namespace zeplet
