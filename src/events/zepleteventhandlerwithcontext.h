#pragma once

#include <QObject>

#include <zeplet/events/zepleteventhandler.h>

namespace zeplet
{

/// Calls a function as long as it was given a context object; without one it is never valid. The
/// pointer is neither owned nor watched here: the event system ends the subscription when the
/// object dies.
class ZEPLET_EXPORT ZepletEventHandlerWithContext : public ZepletEventHandler
{
public:
    /// The name is `name` and `suffix`, put together when it is asked for.
    ZepletEventHandlerWithContext(ZepletEventType type, QObject *context, Callback callback,
                                  const QString &name, QLatin1String suffix = QLatin1String());
    ~ZepletEventHandlerWithContext() override;

    void handleEvent(const ZepletEvent &event) override;
    ZepletEventType eventType() const override;
    QString handlerName() const override;
    /// Whether there is a context pointer.
    bool isValid() const override;

private:
    const ZepletEventType m_type;
    QObject *const m_context;
    const Callback m_callback;
    const QString m_name;
    const QLatin1String m_suffix;
};

} // namespace zeplet
