#pragma once

#include <zeplet/events/zepleteventhandler.h>

namespace zeplet
{

/// Calls a function for every event. An empty function is accepted and does nothing.
class ZEPLET_EXPORT ZepletEventHandlerFunc : public ZepletEventHandler
{
public:
    /// The name is `name` and `suffix`, put together when it is asked for.
    ZepletEventHandlerFunc(ZepletEventType type, Callback callback, const QString &name,
                           QLatin1String suffix = QLatin1String());
    ~ZepletEventHandlerFunc() override;

    void handleEvent(const ZepletEvent &event) override;
    ZepletEventType eventType() const override;
    QString handlerName() const override;

private:
    const ZepletEventType m_type;
    const Callback m_callback;
    const QString m_name;
    const QLatin1String m_suffix;
};

} // namespace zeplet
