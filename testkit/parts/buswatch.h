#pragma once

#include <QMutex>
#include <QString>
#include <QVector>
#include <optional>
#include <zeplet/events/zepleteventsystem.h>

namespace zeplet
{
namespace test
{

/** Follows the event bus: keeps its events, and who subscribed to what. Its slots run on the thread
 *  of whoever publishes or subscribes, the latter under the bus's lock. */
class BusWatch : public QObject
{
    Q_OBJECT

public:
    struct Subscription {
        QString id;
        ZepletEventType type = None;
        QString subscriber; ///< its name on the bus
        QString madeIn; ///< the plugin in whose step it was made; empty: in none
    };

    BusWatch();
    /** Ends what is left of those subscriptions. */
    ~BusWatch() override;

    /** The last event of the type since clear(). */
    std::optional<ZepletEvent> last(ZepletEventType type) const;
    /** What came since clear(), for a person: "RCRunStart (2), RCRunStop". */
    QString summary() const;
    void clear();

    /** Names the plugin whose steps run on the GUI thread from now on; empty: none. */
    void setStep(const QString &plugin);
    /** The subscriptions made in this object's life, whether or not they are still there. */
    QVector<Subscription> subscriptions() const;

private:
    void keep(const ZepletEvent &event);
    void add(const QString &id, ZepletEventType type, const QString &subscriber);

    mutable QMutex m_mutex;
    QVector<ZepletEvent> m_events;
    QVector<Subscription> m_subscriptions;
    QString m_step;
};

} // namespace test
} // namespace zeplet
