#pragma once

#include <QJsonObject>
#include <QSignalSpy>
#include <QVector>
#include <QWebSocket>
#include <functional>

/** A client that speaks the wire by hand, so that it does not share its mistakes with the codec. */
class TestClient : public QObject
{
    Q_OBJECT

public:
    explicit TestClient(quint16 port);

    /** True once connected; false where that failed. */
    bool waitConnected();
    bool isConnected() const { return socket.state() == QAbstractSocket::ConnectedState; }

    /** Sends a request and returns its id. */
    int send(const QString &method, const QJsonValue &params = QJsonValue(QJsonValue::Undefined));
    /** Sends a request and returns the first object that comes with its id; empty on a timeout. */
    QJsonObject call(const QString &method,
                     const QJsonValue &params = QJsonValue(QJsonValue::Undefined));

    QVector<QJsonObject> answers; ///< whatever has an id
    QVector<QJsonObject> notifications;
    QStringList garbage; ///< frames that are no JSON object
    QWebSocket socket;
    QSignalSpy pongs {&socket, &QWebSocket::pong};

private:
    static bool waitFor(const std::function<bool()> &arrived);
    void read(const QString &text);

    int m_lastId = 0;
};

/** A client whose connection stands; ends the test where it does not come about. */
class ConnectedClient : public TestClient
{
public:
    explicit ConnectedClient(quint16 port);
};

/** An object from its text. */
QJsonObject json(const QByteArray &text);
