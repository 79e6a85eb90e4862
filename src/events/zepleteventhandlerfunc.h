#pragma once

#include <zeplet/events/zepleteventhandler.h>

namespace zeplet
{

/// Calls a function for every event. An empty function is accepted and does nothing.
class ZEPLET_EXPORT ZepletEventHandlerFunc : public ZepletEventHandler
{
public:
    ZepletEventHandlerFunc(ZepletEventType type, Callback callback, const QString &name);
    ~ZepletEventHandlerFunc() override;

    void handleEvent(const ZepletEvent &event) override;
    ZepletEventType eventType() const override;
    QString handlerName() const override;

private:
    const ZepletEventType m_type;
    const Callback m_callback;
    const QString m_name;
};

} // namespace zeplet
