#include "testclient.h"

#include <QJsonDocument>
#include <QtTest>
#include <algorithm>

TestClient::TestClient(quint16 port)
{
    connect(&socket, &QWebSocket::textMessageReceived, this, &TestClient::read);
    socket.open(QUrl(QStringLiteral("ws://127.0.0.1:%1").arg(port)));
}

bool TestClient::waitConnected()
{
    return QTest::qWaitFor([this] {
               return socket.state() == QAbstractSocket::ConnectedState
                   || socket.state() == QAbstractSocket::UnconnectedState;
           })
        && isConnected();
}

int TestClient::send(const QString &method, const QJsonValue &params)
{
    const int id = ++m_lastId;
    QJsonObject request {
        {QStringLiteral("jsonrpc"), QStringLiteral("2.0")},
        {QStringLiteral("id"), id},
        {QStringLiteral("method"), method},
    };
    if (!params.isUndefined())
        request.insert(QStringLiteral("params"), params);
    socket.sendTextMessage(
        QString::fromUtf8(QJsonDocument(request).toJson(QJsonDocument::Compact)));
    return id;
}

QJsonObject TestClient::call(const QString &method, const QJsonValue &params)
{
    const int id = send(method, params);
    QJsonObject found;
    const auto arrived = [this, id, &found] {
        const auto match
            = std::find_if(answers.cbegin(), answers.cend(), [id](const QJsonObject &answer) {
                  return answer.value(QStringLiteral("id")).toInt() == id;
              });
        if (match != answers.cend())
            found = *match;
        return match != answers.cend();
    };
    return QTest::qWaitFor(arrived) ? found : QJsonObject();
}

void TestClient::read(const QString &text)
{
    const QJsonObject object = QJsonDocument::fromJson(text.toUtf8()).object();
    if (object.isEmpty())
        garbage += text;
    else if (object.contains(QStringLiteral("id")))
        answers += object;
    else
        notifications += object;
}

QJsonObject json(const char *text)
{
    return QJsonDocument::fromJson(text).object();
}
