#pragma once

#include <atomic>

#include <zeplet/events/zepleteventhandlerfunc.h>

namespace zeplet
{

/// Calls a function for the first event only. It counts as fired once the function has returned, so
/// an event of its type that the function itself publishes reaches it again.
class ZEPLET_EXPORT ZepletEventHandlerOneShot : public ZepletEventHandlerFunc
{
public:
    /// The name is `name` and `suffix`, put together when it is asked for.
    ZepletEventHandlerOneShot(ZepletEventType type, Callback callback, const QString &name,
                              QLatin1String suffix = QLatin1String());
    ~ZepletEventHandlerOneShot() override;

    void handleEvent(const ZepletEvent &event) override;
    bool isOneShot() const override;
    /// False once it has fired.
    bool isValid() const override;

private:
    // Atomic, because other threads ask isValid() when they count or clean up subscriptions.
    std::atomic<bool> m_fired {false};
};

} // namespace zeplet
