#pragma once

#include "commandregistry.h"
#include "faults.h"
#include "requestlog.h"

#include <QObject>
#include <QPointer>
#include <QTcpSocket>
#include <QWebSocket>
#include <link/message.h>
#include <memory>

namespace simulator
{

/** What the connections of an endpoint share. Outlives them. */
struct EndpointContext {
    const CommandRegistry &commands;
    Faults &faults;
    RequestLog &requests;
};

/**
 * One client of an endpoint: reads its requests, lets the faults that are in force meet them, and
 * answers. Anything that is no JSON-RPC 2.0 object closes it with one line. Lives on the
 * simulator's thread; emits gone() once and is then to be deleted later.
 */
class ClientConnection : public QObject
{
    Q_OBJECT

public:
    /** Owns `socket` and `transport`, the socket below it. */
    ClientConnection(QWebSocket *socket, QTcpSocket *transport, const EndpointContext &context,
                     QObject *parent = nullptr);
    ~ClientConnection() override;

    void notify(const rpc::Message &notification);
    /** While silent nothing is read, not even pings, and nothing is sent; both are made up for
     *  afterwards. */
    void setSilent(bool silent);
    /** Cuts the connection without a word. */
    void drop();

    const QSet<QString> &watches() const { return m_session.watches; }

signals:
    void received(const QString &text);
    void problem(const QString &line);
    void gone();

private:
    void onText(const QString &text);
    void onBinary();
    void onDisconnected();
    void handle(const rpc::Message &request);
    void meet(const Fault &fault, const rpc::Message &request);
    rpc::Message answerTo(const rpc::Message &request);
    void reply(const rpc::Message &request, const rpc::Message &answer);
    void replyLater(const rpc::Message &request, int ms);
    void send(const QByteArray &frame);
    void close(QWebSocketProtocol::CloseCode code, const QString &reason);

    std::unique_ptr<QWebSocket> m_socket;
    QPointer<QTcpSocket> m_transport;
    EndpointContext m_context;
    Session m_session;
    bool m_silent = false;
    bool m_ended = false; ///< nothing is read or sent any more
    bool m_gone = false; ///< gone() was emitted
    int m_late = 0;
    QByteArrayList m_held; ///< frames that wait for the end of the silence
    qint64 m_heldBytes = 0;
};

} // namespace simulator
