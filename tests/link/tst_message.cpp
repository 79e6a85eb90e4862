#include <link/limits.h>
#include <link/message.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>
#include <QTest>

using rpc::Message;

Q_DECLARE_METATYPE(Message)

class TestMessage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void encodes_data();
    void encodes();
    void decodes_data();
    void decodes();
    void refuses_data();
    void refuses();
    void damagedFramesAreSurvived();
    void frameAtTheLimit();
};

void TestMessage::encodes_data()
{
    QTest::addColumn<Message>("message");
    QTest::addColumn<QByteArray>("frame");
    const QJsonObject object {{"a", 1}};
    QTest::newRow("request") << Message::request(
        7, "io.get",
        object) << QByteArray(R"({"id":7,"jsonrpc":"2.0","method":"io.get","params":{"a":1}})");
    QTest::newRow("no argument") << Message::request(7, "x", QJsonValue())
                                 << QByteArray(R"({"id":7,"jsonrpc":"2.0","method":"x"})");
    QTest::newRow("a scalar is wrapped")
        << Message::request(7, "x", false)
        << QByteArray(R"({"id":7,"jsonrpc":"2.0","method":"x","params":[false]})");
    QTest::newRow("notification") << Message::notification("notify", QJsonArray {1, "b"})
                                  << QByteArray(
                                         R"({"jsonrpc":"2.0","method":"notify","params":[1,"b"]})");
    QTest::newRow("null result") << Message::answer("t-1", QJsonValue(QJsonValue::Undefined))
                                 << QByteArray(R"({"id":"t-1","jsonrpc":"2.0","result":null})");
    QTest::newRow("refusal without id")
        << Message::refusal(QJsonValue(QJsonValue::Undefined), -32700,
                            QString::fromUtf8("nö \"x\"\n"))
        << QByteArray("{\"error\":{\"code\":-32700,\"message\":\"nö \\\"x\\\"\\n\"},\"id\":null,"
                      "\"jsonrpc\":\"2.0\"}");
}

void TestMessage::encodes()
{
    QFETCH(Message, message);
    QFETCH(QByteArray, frame);
    QCOMPARE(rpc::encode(message), frame);
    Message again;
    QString problem;
    QVERIFY2(rpc::decode(frame, &again, &problem), qPrintable(problem));
    QCOMPARE(again.kind, message.kind);
    QCOMPARE(again.id, message.id);
    QCOMPARE(again.method, message.method);
    QCOMPARE(again.params, message.params);
    QCOMPARE(again.result, message.result);
    QCOMPARE(again.reason, message.reason);
}

void TestMessage::decodes_data()
{
    QTest::addColumn<QByteArray>("frame");
    QTest::addColumn<int>("kind");
    QTest::newRow("spaces and unknown members")
        << QByteArray("\n { \"jsonrpc\": \"2.0\", \"extra\": [], \"method\": \"m\" } ")
        << int(Message::Kind::Notification);
    QTest::newRow("large id") << QByteArray(
        R"({"jsonrpc":"2.0","id":9007199254740991,"result":{}})")
                              << int(Message::Kind::Answer);
    QTest::newRow("false is a result")
        << QByteArray(R"({"jsonrpc":"2.0","id":1,"result":false})") << int(Message::Kind::Answer);
    QTest::newRow("error with data")
        << QByteArray(R"({"jsonrpc":"2.0","id":1,"error":{"code":-1,"message":"","data":[1]}})")
        << int(Message::Kind::Refusal);
}

void TestMessage::decodes()
{
    QFETCH(QByteArray, frame);
    Message message;
    QString problem;
    QVERIFY2(rpc::decode(frame, &message, &problem), qPrintable(problem));
    QTEST(int(message.kind), "kind");
    QVERIFY(problem.isEmpty());
}

void TestMessage::refuses_data()
{
    QTest::addColumn<QByteArray>("frame");
    QTest::addColumn<QString>("problem");
    const auto row = [](const char *name, const char *frame, const char *problem) {
        QTest::newRow(name) << QByteArray(frame) << QString::fromLatin1(problem);
    };
    row("empty", "", "not JSON");
    row("half an object", R"({"jsonrpc":"2.0","method":)", "not JSON");
    row("two objects", R"({"jsonrpc":"2.0","method":"a"}{})", "not JSON");
    row("broken UTF-8", "{\"jsonrpc\":\"2.0\",\"method\":\"\xff\xfe\"}", "not JSON");
    row("batch", R"([{"jsonrpc":"2.0","method":"a"}])", "not a JSON object");
    row("no version", R"({"method":"a"})", "not JSON-RPC 2.0");
    row("number as version", R"({"jsonrpc":2.0,"method":"a"})", "not JSON-RPC 2.0");
    row("version 1", R"({"jsonrpc":"1.0","method":"a"})", "not JSON-RPC 2.0");
    row("nothing in it", R"({"jsonrpc":"2.0","id":1})", "neither a method");
    row("empty method", R"({"jsonrpc":"2.0","method":""})", "the method is not a name");
    row("method is a number", R"({"jsonrpc":"2.0","method":5})", "the method is not a name");
    row("scalar params", R"({"jsonrpc":"2.0","method":"a","params":5})", "the params");
    row("null params", R"({"jsonrpc":"2.0","method":"a","params":null})", "the params");
    row("method and result", R"({"jsonrpc":"2.0","method":"a","id":1,"result":1})", "together");
    row("request with null id", R"({"jsonrpc":"2.0","method":"a","id":null})", "is null");
    row("fractional id", R"({"jsonrpc":"2.0","method":"a","id":1.5})", "the id is");
    row("object as id", R"({"jsonrpc":"2.0","result":1,"id":{}})", "the id is");
    row("result and error",
        R"({"jsonrpc":"2.0","id":1,"result":1,"error":{"code":1,"message":""}})",
        "together with an error");
    row("result without id", R"({"jsonrpc":"2.0","result":1})", "without id");
    row("result with null id", R"({"jsonrpc":"2.0","id":null,"result":1})", "without id");
    row("error without id", R"({"jsonrpc":"2.0","error":{"code":1,"message":""}})", "without id");
    row("error is a text", R"({"jsonrpc":"2.0","id":1,"error":"no"})", "without code and message");
    row("error without message", R"({"jsonrpc":"2.0","id":1,"error":{"code":1}})", "without code");
    QTest::newRow("nested too deeply") << QByteArray(100000, '[') << QStringLiteral("not JSON");
}

void TestMessage::refuses()
{
    QFETCH(QByteArray, frame);
    QFETCH(QString, problem);
    Message message;
    QString text;
    QVERIFY(!rpc::decode(frame, &message, &text));
    QVERIFY2(text.contains(problem), qPrintable(text));
    QVERIFY(!text.contains('\n'));
}

// Each frame is a good one with some bytes overwritten: whatever comes out, a refusal has a reason,
// and what is accepted can be encoded and decoded again.
void TestMessage::damagedFramesAreSurvived()
{
    const QByteArray good = rpc::encode(Message::request(
        12, "a.b", QJsonObject {{"x", QJsonArray {1, 2.5, "t", QJsonValue()}}, {"y", true}}));
    QRandomGenerator random(20240506);
    const char letters[] = "{}[]\",:0123456789eE.-tfn\\u\0\xc3\x28 ";
    const QByteArray alphabet(letters, sizeof(letters) - 1);
    for (int round = 0; round < 20000; ++round) {
        QByteArray frame = good;
        for (int hit = random.bounded(1, 6); hit > 0; --hit)
            frame[random.bounded(frame.size())] = alphabet.at(random.bounded(alphabet.size()));
        Message message;
        QString problem;
        if (!rpc::decode(frame, &message, &problem)) {
            QVERIFY(!problem.isEmpty());
            continue;
        }
        Message again;
        QVERIFY(rpc::decode(rpc::encode(message), &again, &problem));
        QCOMPARE(again.params, message.params);
    }
}

void TestMessage::frameAtTheLimit()
{
    const QByteArray head(R"({"jsonrpc":"2.0","id":1,"result":")");
    const QByteArray tail("\"}");
    QByteArray frame
        = head + QByteArray(int(rpc::maxFrameBytes) - head.size() - tail.size(), 'x') + tail;
    Message message;
    QString problem;
    QVERIFY2(rpc::decode(frame, &message, &problem), qPrintable(problem));
    frame += ' ';
    QVERIFY(!rpc::decode(frame, &message, &problem));
    QVERIFY(problem.contains("16 MiB"));
}

QTEST_GUILESS_MAIN(TestMessage)
#include "tst_message.moc"
