#include <link/limits.h>
#include <link/message.h>
#include <testcolumns.h>

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
    void encodes_data()
    {
        const auto row = testcolumns<Message, QByteArray>("message", "frame");
        const QJsonValue none(QJsonValue::Undefined);
        row("request", Message::request(7, "io.get", QJsonObject {{"a", 1}}),
            R"({"id":7,"jsonrpc":"2.0","method":"io.get","params":{"a":1}})");
        row("no argument", Message::request(7, "x", QJsonValue()),
            R"({"id":7,"jsonrpc":"2.0","method":"x"})");
        row("a scalar is wrapped", Message::request(7, "x", false),
            R"({"id":7,"jsonrpc":"2.0","method":"x","params":[false]})");
        row("notification", Message::notification("notify", QJsonArray {1, "b"}),
            R"({"jsonrpc":"2.0","method":"notify","params":[1,"b"]})");
        row("null result", Message::answer("t-1", none),
            R"({"id":"t-1","jsonrpc":"2.0","result":null})");
        row("refusal without id", Message::refusal(none, -32700, QString::fromUtf8("nö \"x\"\n")),
            "{\"error\":{\"code\":-32700,\"message\":\"nö "
            "\\\"x\\\"\\n\"},\"id\":null,\"jsonrpc\":\"2.0\"}");
    }

    void encodes()
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

    void decodes_data()
    {
        const auto row = testcolumns<QByteArray, int>("frame", "kind");
        row("spaces and unknown members",
            "\n { \"jsonrpc\": \"2.0\", \"extra\": [], \"method\": \"m\" } ",
            int(Message::Kind::Notification));
        row("large id", R"({"jsonrpc":"2.0","id":9007199254740991,"result":{}})",
            int(Message::Kind::Answer));
        row("false is a result", R"({"jsonrpc":"2.0","id":1,"result":false})",
            int(Message::Kind::Answer));
        row("error with data",
            R"({"jsonrpc":"2.0","id":1,"error":{"code":-1,"message":"","data":[1]}})",
            int(Message::Kind::Refusal));
    }

    void decodes()
    {
        QFETCH(QByteArray, frame);
        Message message;
        QString problem;
        QVERIFY2(rpc::decode(frame, &message, &problem), qPrintable(problem));
        QTEST(int(message.kind), "kind");
        QVERIFY(problem.isEmpty());
    }

    void refuses_data()
    {
        const auto row = testcolumns<QByteArray, QString>("frame", "problem");
        row("empty", "", "not JSON");
        row("two objects", R"({"jsonrpc":"2.0","method":"a"}{})", "not JSON");
        row("broken UTF-8", "{\"jsonrpc\":\"2.0\",\"method\":\"\xff\xfe\"}", "not JSON");
        row("batch", R"([{"jsonrpc":"2.0","method":"a"}])", "not a JSON object");
        row("no version", R"({"method":"a"})", "not JSON-RPC 2.0");
        row("number as version", R"({"jsonrpc":2.0,"method":"a"})", "not JSON-RPC 2.0");
        row("nothing in it", R"({"jsonrpc":"2.0","id":1})", "neither a method");
        row("empty method", R"({"jsonrpc":"2.0","method":""})", "the method is not a name");
        row("scalar params", R"({"jsonrpc":"2.0","method":"a","params":5})", "the params");
        row("method and result", R"({"jsonrpc":"2.0","method":"a","id":1,"result":1})", "together");
        row("request with null id", R"({"jsonrpc":"2.0","method":"a","id":null})", "is null");
        row("fractional id", R"({"jsonrpc":"2.0","method":"a","id":1.5})", "the id is");
        row("result and error",
            R"({"jsonrpc":"2.0","id":1,"result":1,"error":{"code":1,"message":""}})",
            "together with an error");
        row("result without id", R"({"jsonrpc":"2.0","result":1})", "without id");
        row("error without id", R"({"jsonrpc":"2.0","error":{"code":1,"message":""}})",
            "without id");
        row("error without message", R"({"jsonrpc":"2.0","id":1,"error":{"code":1}})",
            "without code");
        row("nested too deeply", QByteArray(100000, '['), "not JSON");
    }

    void refuses()
    {
        QFETCH(QByteArray, frame);
        QFETCH(QString, problem);
        Message message;
        QString text;
        QVERIFY(!rpc::decode(frame, &message, &text));
        QVERIFY2(text.contains(problem), qPrintable(text));
        QVERIFY(!text.contains('\n'));
    }

    // Each frame is a good one with some bytes overwritten: whatever comes out, a refusal has a
    // reason, and what is accepted can be encoded and decoded again.
    void damagedFramesAreSurvived()
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

    void frameAtTheLimit()
    {
        const QByteArray head("{\"jsonrpc\":\"2.0\",\"id\":1,\"result\":\"");
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
};

QTEST_GUILESS_MAIN(TestMessage)
#include "tst_message.moc"
