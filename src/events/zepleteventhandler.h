#pragma once

#include <QString>

#include <functional>

#include <zeplet/events/zepletevent.h>
#include <zeplet/export.h>

namespace zeplet
{

/// What a subscription calls. Handlers hold no locks: one handler must not run on two threads at
/// the same time. What the wrapped callable throws passes through.
class ZEPLET_EXPORT ZepletEventHandler
{
public:
    /// What is called with an event.
    using Callback = std::function<void(const ZepletEvent &)>;
    /// Says whether an event is let through.
    using Filter = std::function<bool(const ZepletEvent &)>;

    ZepletEventHandler() = default;
    Q_DISABLE_COPY(ZepletEventHandler)
    virtual ~ZepletEventHandler();

    /// Handles one event, on the thread that publishes it. The bus holds no lock meanwhile.
    virtual void handleEvent(const ZepletEvent &event) = 0;
    /// The type of the events that it is made for.
    virtual ZepletEventType eventType() const = 0;
    /// A name for logs.
    virtual QString handlerName() const = 0;
    /// Whether the subscription ends with the first call. False here.
    virtual bool isOneShot() const;
    /// Whether the handler may still be called. True here.
    virtual bool isValid() const;
};

} // namespace zeplet
