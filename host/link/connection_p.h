#pragma once

#include "link/channel_p.h"
#include "link/limits.h"

#include <QAbstractSocket>
#include <QElapsedTimer>
#include <QHash>
#include <QObject>
#include <QTimer>
#include <QUrl>

class QWebSocket;

namespace rpc
{

struct Message;

/**
 * The part of a client that lives on the I/O thread: the socket, its reconnects, the watch over its
 * silence, and the requests under way. It knows its client through the channel only, and outlives
 * it for as long as the thread takes to delete it.
 */
class Connection : public QObject
{
    Q_OBJECT

public:
    Connection(const QString &name, const QUrl &url, const Liveness &liveness);
    ~Connection() override;

    /** Before the object goes to its thread; connectToPeer() is the first call on it there. */
    void setChannel(const std::shared_ptr<Channel> &channel) { m_channel = channel; }
    void connectToPeer();

    bool event(QEvent *event) override;

private:
    enum class Cause { Status, Fault };
    struct Pending {
        QDeadlineTimer deadline;
        std::shared_ptr<Waiter> waiter;
    };

    void watchTcpSocket();
    void sessionUp();
    void tick();
    void stateChanged(QAbstractSocket::SocketState state);
    void cutOff(const QString &reason, Cause cause);
    void endSession(const QString &reason, Cause cause);
    void dropPending();
    void retryLater();
    void report(const QString &reason, Cause cause);

    void sendQueued();
    void sendOne(Outgoing &outgoing);
    void watchDeadline(const QDeadlineTimer &deadline);
    void expire();

    void receive(const QString &text);
    void receiveNotification(const Message &message, qint64 bytes);
    void receiveAnswer(const Message &message, qint64 bytes);
    void logUnasked(const QString &id);

    const QString m_name;
    const QUrl m_url;
    const Liveness m_liveness;
    std::shared_ptr<Channel> m_channel;
    QWebSocket *m_socket = nullptr;
    quint64 m_session = 0; ///< the current one; 0: none
    quint64 m_sessions = 0;
    QHash<qint64, Pending> m_pending;
    QTimer *m_ticker;
    QTimer *m_retry;
    QTimer *m_expiry;
    QDeadlineTimer m_expiryDue;
    QElapsedTimer m_heard; ///< since anything came from the peer
    QElapsedTimer m_ticked;
    QElapsedTimer m_sessionAge;
    QElapsedTimer m_unaskedLogged;
    int m_unaskedSilent = 0;
    int m_pause = 0;
    QString m_reported;
};

} // namespace rpc
