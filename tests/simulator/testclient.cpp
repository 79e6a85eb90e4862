#include "testclient.h"

#include <QJsonDocument>
#include <QtTest>

TestClient::TestClient(quint16 port)
{
    connect(&socket, &QWebSocket::textMessageReceived, this, &TestClient::read);
    socket.open(QUrl(QStringLiteral("ws://127.0.0.1:%1").arg(port)));
}

bool TestClient::waitConnected()
{
    return waitFor([this] {
               return socket.state() == QAbstractSocket::ConnectedState
                   || socket.state() == QAbstractSocket::UnconnectedState;
           })
        && isConnected();
}

int TestClient::send(const QString &method, const QJsonValue &params)
{
    const int id = ++m_lastId;
    QJsonObject request {
        {"jsonrpc", "2.0"},
        {"id", id},
        {"method", method},
    };
    if (!params.isUndefined())
        request.insert("params", params);
    socket.sendTextMessage(
        QString::fromUtf8(QJsonDocument(request).toJson(QJsonDocument::Compact)));
    return id;
}

QJsonObject TestClient::call(const QString &method, const QJsonValue &params)
{
    const int id = send(method, params);
    QJsonObject found;
    const auto arrived = [this, id, &found] {
        for (const QJsonObject &answer : qAsConst(answers)) {
            if (found.isEmpty() && answer["id"].toInt() == id)
                found = answer;
        }
        return !found.isEmpty();
    };
    return waitFor(arrived) ? found : QJsonObject();
}

// Client and simulator share this thread: QTest::qWaitFor() would sleep between any two steps.
bool TestClient::waitFor(const std::function<bool()> &arrived)
{
    QTimer limit;
    limit.setSingleShot(true);
    limit.start(5000);
    while (!arrived() && limit.isActive())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return arrived();
}

void TestClient::read(const QString &text)
{
    const QJsonObject object = QJsonDocument::fromJson(text.toUtf8()).object();
    if (object.isEmpty())
        garbage += text;
    else if (object.contains("id"))
        answers += object;
    else
        notifications += object;
}

ConnectedClient::ConnectedClient(quint16 port)
    : TestClient(port)
{
    if (!waitConnected())
        qFatal("%s", qPrintable(socket.errorString()));
}

QJsonObject json(const QByteArray &text)
{
    return QJsonDocument::fromJson(text).object();
}
