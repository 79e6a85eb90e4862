#include <fakepeer.h>
#include <link/client.h>
#include <link/iothread.h>
#include <link/limits.h>
#include <testcolumns.h>

#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonObject>
#include <QRegularExpression>
#include <QScopedPointer>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <stdexcept>

using rpc::Answer;
using rpc::Client;
using Status = rpc::Answer::Status;

namespace
{

// Long enough for a machine under load, and short enough to wait for.
constexpr rpc::Liveness shortLiveness {250, 1000};

QRegularExpression line(const char *text)
{
    return QRegularExpression(QString::fromLatin1(text));
}

void announce(const char *text)
{
    QTest::ignoreMessage(QtWarningMsg, line(text));
}

using Frames = QVector<QByteArray>;

Frames echo(const rpc::Message &request)
{
    return {rpc::encode(rpc::Message::answer(request.id, request.params))};
}

QByteArray notification(int number)
{
    return rpc::encode(rpc::Message::notification("n", QJsonArray {number}));
}

QByteArray answerTo(const rpc::Message &request)
{
    return rpc::encode(rpc::Message::answer(request.id, true));
}

} // namespace

class TestClient : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_peer.reset(new FakePeer);
        m_thread.reset(new rpc::IoThread);
        connectClient(rpc::usualLiveness);
    }

    void cleanup()
    {
        m_client.reset();
        m_thread.reset();
        m_peer.reset();
    }

    void answerReachesTheCaller()
    {
        m_peer->script("echo", echo);
        const QJsonObject argument {
            {"text", QString::fromUtf8("ä€😀\n")}, {"n", 1e300}, {"z", QJsonValue()}};
        QCOMPARE(m_client->call("echo", argument, 5000).value, QJsonValue(argument));
    }

    void answersFindTheirRequests()
    {
        Frames held;
        m_peer->script("hold", [&held](const rpc::Message &request) {
            held.prepend(rpc::encode(rpc::Message::answer(request.id, request.params)));
            return held.size() == 3 ? held : Frames();
        });
        QVector<int> order;
        for (int i = 0; i < 3; ++i) {
            m_client->send("hold", QJsonArray {i}, 5000, [&order, i](const Answer &answer) {
                QCOMPARE(answer.value.toArray().at(0).toInt(), i);
                order.append(i);
            });
        }
        QTRY_COMPARE(order, (QVector<int> {2, 1, 0}));
    }

    void blockingCallEnds()
    {
        m_peer->refuse("refused", "not in manual mode");
        m_peer->ignore("ignored");
        m_peer->script("lost", [](const rpc::Message &) { return Frames {"malformed"}; });
        const Answer refused = m_client->call("refused", {}, 5000);
        QCOMPARE(refused.status, Status::Refused);
        QCOMPARE(refused.reason, QString("not in manual mode"));
        QElapsedTimer time;
        time.start();
        QCOMPARE(m_client->call("ignored", {}, 150).status, Status::TimedOut);
        QVERIFY(time.elapsed() >= 150 && time.elapsed() < 2000);
        announce("^peer: link closed: malformed frame: not JSON");
        QCOMPARE(m_client->call("lost", {}, 20000).status, Status::Lost);
        QVERIFY(time.elapsed() < 10000);
    }

    void nothingIsDeliveredWhileACallWaits()
    {
        m_peer->script("late", [](const rpc::Message &request) {
            return Frames {notification(1), notification(2), answerTo(request), notification(3)};
        });
        m_onDelivery = [this] { QCOMPARE(thread(), QThread::currentThread()); };
        bool timerRan = false;
        QTimer::singleShot(0, this, [&] { timerRan = true; });
        QVERIFY(m_client->call("late", {}, 5000).isResult());
        QVERIFY(m_delivered.isEmpty());
        QVERIFY(!timerRan);
        QTRY_COMPARE(m_delivered, (QVector<int> {1, 2, 3}));
    }

    void callbackComesOnce_data()
    {
        const auto row = testcolumns<int>("status");
        row("answered", int(Status::Result));
        row("refused", int(Status::Refused));
        row("ignored", int(Status::TimedOut));
        row("dropped", int(Status::Lost));
        row("closed", int(Status::Lost));
    }

    void callbackComesOnce()
    {
        const QString method = QTest::currentDataTag();
        m_peer->answer("answered", 5);
        m_peer->refuse("refused", "no");
        m_peer->ignore("ignored");
        m_peer->ignore("dropped");
        QVector<int> ends;
        QVERIFY(m_client->send(method, {}, method == "ignored" ? 50 : 5000,
                               [&](const Answer &answer) { ends.append(int(answer.status)); }));
        QVERIFY(ends.isEmpty());
        if (method == "closed")
            m_client->close();
        if (method == "dropped") {
            QTRY_COMPARE(m_peer->received("dropped"), 1);
            m_peer->dropClients();
        }
        QTRY_COMPARE(ends.size(), 1);
        QTEST(ends.first(), "status");
        QCoreApplication::processEvents();
        QCOMPARE(ends.size(), 1);
    }

    void answersNobodyWaitsForAreDropped()
    {
        m_peer->script("twice", [](const rpc::Message &request) {
            return Frames {answerTo(request), answerTo(request)};
        });
        m_peer->ignore("never");
        m_peer->answer("fine", "fine");
        announce("^peer: answer \\d+ dropped: nobody waits for it$");
        QVERIFY(m_client->call("twice", {}, 5000).isResult());
        QCOMPARE(m_client->call("never", {}, 20).status, Status::TimedOut);
        const QJsonValue late = m_peer->last("never").id;
        m_peer->sendText(QString::fromUtf8(rpc::encode(rpc::Message::answer(late, "late"))));
        for (const QJsonValue &id : {QJsonValue("unasked"), QJsonValue(1e300), QJsonValue(-1e300)})
            m_peer->sendText(QString::fromUtf8(rpc::encode(rpc::Message::answer(id, 1))));
        QCOMPARE(m_client->call("fine", {}, 5000).value, QJsonValue("fine"));
    }

    void badPeerIsCutOff_data()
    {
        const auto row = testcolumns<QString, QByteArray, QByteArray>("kind", "frame", "reason");
        row("not JSON", "text", "hello", "malformed frame: not JSON");
        row("JSON, not RPC", "text", "{}", "malformed frame: not JSON-RPC 2.0");
        row("batch", "text", "[]", "malformed frame: not a JSON object");
        row("request", "text", R"({"jsonrpc":"2.0","id":1,"method":"do"})",
            "a request came from the peer: do");
        row("binary frame", "binary", {"\0\1\2", 3}, "a binary frame");
        row("reserved opcode", "raw", "\x83\x01x", ".+");
        row("masked frame of a server", "raw", {"\x81\x81\x61\x62\x63\x64x", 7}, ".+");
        row("broken UTF-8", "raw", "\x81\x02\xff\xfe", ".+");
        row("announces 2^62 bytes", "raw", {"\x81\x7f\x40\0\0\0\0\0\0\0", 10}, ".+");
        row("announces 17 MiB", "raw", {"\x81\x7f\0\0\0\0\x01\x10\0\0", 10}, ".+");
    }

    void badPeerIsCutOff()
    {
        QFETCH(QByteArray, frame);
        QFETCH(QString, kind);
        QFETCH(QByteArray, reason);
        announce(QByteArray("^peer: link closed: " + reason).constData());
        QSignalSpy down(m_client.data(), &Client::down);
        QSignalSpy up(m_client.data(), &Client::up);
        if (kind == "text")
            m_peer->sendText(QString::fromUtf8(frame));
        else if (kind == "binary")
            m_peer->sendBinary(frame);
        else
            m_peer->sendRaw(frame);
        QVERIFY(down.wait());
        QCOMPARE(down.first().first().toBool(), false);
        QVERIFY(up.wait()); // a bad moment is no reason to stay away
    }

    void oversizedRequestIsNotSent()
    {
        announce("^peer: big not sent: its frame would be larger than 16 MiB$");
        const QString text(int(rpc::maxFrameBytes), QLatin1Char('x'));
        QVERIFY(!m_client->send("big", QJsonArray {text}, 1000));
        QCOMPARE(m_peer->received("big"), 0);
        QVERIFY(m_client->isUp());
    }

    void frameOfTheGreatestSizePassesBothWays()
    {
        m_peer->script("echo", echo);
        const QByteArray around = rpc::encode(rpc::Message::request(1, "echo", QJsonArray {""}));
        const QJsonArray argument {
            QString(int(rpc::maxFrameBytes) - around.size(), QLatin1Char('x'))};
        const Answer answer = m_client->call("echo", argument, 20000);
        QCOMPARE(answer.status, Status::Result);
        QVERIFY(answer.value.toArray() == argument);
    }

    void pendingRequestsAreBounded()
    {
        m_peer->ignore("never");
        for (int i = 0; i < rpc::maxPending; ++i)
            QVERIFY(m_client->send("never", {}, 20000));
        announce("^peer: never not sent: too many requests wait");
        QVERIFY(!m_client->send("never", {}, 20000));
        announce("^peer: never not sent: too many requests wait");
        QCOMPARE(m_client->call("never", {}, 20000).status, Status::NotSent);
    }

    void unsentBytesAreBounded()
    {
        m_peer->standStill();
        const QJsonArray argument {QString(8 * 1024 * 1024, QLatin1Char('x'))};
        announce("^peer: never not sent: too much waits to be sent$");
        int accepted = 0;
        while (accepted < 100 && m_client->send("never", argument, 20000))
            ++accepted;
        m_peer->goOn();
        QVERIFY(accepted >= 2);
        QVERIFY(accepted < 12); // what the kernel buffers comes on top
        m_client->close();
    }

    void floodEndsTheLink()
    {
        QSignalSpy down(m_client.data(), &Client::down);
        m_peer->script("flood", [](const rpc::Message &) {
            return Frames(rpc::maxUndelivered + 1000, notification(1));
        });
        announce("^peer: link closed: more arrives than the panel takes in$");
        QCOMPARE(m_client->call("flood", {}, 30000).status, Status::Lost);
        QTRY_COMPARE_WITH_TIMEOUT(down.size(), 1, 20000);
        QCOMPARE(m_delivered.size(), rpc::maxUndelivered); // what had been taken in is not lost
    }

    void silentPeerIsNoticed()
    {
        connectClient(shortLiveness);
        QSignalSpy down(m_client.data(), &Client::down);
        announce("^peer: link closed: the peer has gone silent$");
        m_peer->standStill();
        QElapsedTimer time;
        time.start();
        QVERIFY(down.wait(10000));
        QVERIFY2(time.elapsed() >= shortLiveness.maxSilence / 2,
                 qPrintable(QString::number(time.elapsed())));
        QSignalSpy up(m_client.data(), &Client::up);
        m_peer->goOn();
        QVERIFY(up.wait(10000));
    }

    // One frame that takes longer than the silence allowed, while its bytes keep coming.
    void slowPeerIsKept()
    {
        connectClient(shortLiveness);
        QSignalSpy down(m_client.data(), &Client::down);
        QSignalSpy notified(m_client.data(), &Client::notified);
        const QByteArray frame = rpc::encode(rpc::Message::notification("slow", QJsonArray {1}));
        m_peer->standStill(); // no pong can come between the pieces
        m_peer->sendRaw(QByteArray("\x81") + char(frame.size()) + frame.left(10));
        QTimer trickle;
        int sent = 10;
        connect(&trickle, &QTimer::timeout, this, [&] {
            const int length = qMin(4, frame.size() - sent);
            m_peer->sendRaw(frame.mid(sent, length));
            sent += length;
        });
        trickle.start(shortLiveness.maxSilence * 3 / 2 * 4 / (frame.size() - 10));
        QVERIFY(notified.wait(10000));
        m_peer->goOn();
        QCOMPARE(down.size(), 0);
    }

    void reconnectsByItself()
    {
        m_peer->answer("ping", 1);
        for (int round = 0; round < 3; ++round) {
            QSignalSpy up(m_client.data(), &Client::up);
            QSignalSpy down(m_client.data(), &Client::down);
            m_peer->dropClients();
            QVERIFY(down.wait());
            QVERIFY(!m_client->isUp());
            QVERIFY(!m_client->send("ping", {}, 1000));
            QVERIFY(up.wait());
            QVERIFY(m_client->call("ping", {}, 5000).isResult());
        }
    }

    void peerThatIsNotThere()
    {
        QSignalSpy up(m_client.data(), &Client::up);
        QSignalSpy down(m_client.data(), &Client::down);
        m_peer->setListening(false);
        QVERIFY(down.wait());
        QCOMPARE(m_client->call("x", {}, 1000).status, Status::NotSent);
        QVERIFY(!up.wait(500)); // long enough for some attempts
        m_peer->setListening(true);
        QVERIFY(up.wait());
    }

    void closeIsExpected()
    {
        QSignalSpy down(m_client.data(), &Client::down);
        m_client->close();
        QCOMPARE(down.size(), 1);
        QCOMPARE(down.first().first().toBool(), true);
        QVERIFY(!m_client->isUp());
        m_client->close();
        QCOMPARE(down.size(), 1);
        QTRY_COMPARE(m_peer->clients(), 0);
        QCOMPARE(m_peer->closeReason(), QStringLiteral("the panel closed the link"));
    }

    // Nothing is said to a peer that was not reached yet: Qt would warn of it.
    void closeDuringAnAttempt()
    {
        QSignalSpy up(m_client.data(), &Client::up);
        for (int i = 0; i < 50; ++i) {
            m_client->open(m_peer->url());
            m_client->close();
        }
        m_client->open(m_peer->url());
        QVERIFY(up.wait());
    }

    void closeInsideADelivery()
    {
        m_onDelivery = [this] { m_client->close(); };
        m_peer->script("go", [](const rpc::Message &) {
            return Frames {notification(1), notification(2)};
        });
        m_client->send("go", {}, 1000);
        QTRY_COMPARE(m_delivered.size(), 1);
        QTRY_COMPARE(m_peer->clients(), 0);
        QCoreApplication::processEvents();
        QCOMPARE(m_delivered.size(), 1);
    }

    void throwingReceiverDoesNoHarm()
    {
        m_peer->answer("x", 1);
        m_onDelivery = [this] {
            if (m_delivered.size() == 1)
                throw std::runtime_error("plugin fault 7");
            if (m_delivered.size() == 2)
                throw 7;
        };
        announce("^peer: a receiver threw: plugin fault 7$");
        announce("^peer: a receiver threw no exception object$");
        for (int i = 0; i < 3; ++i)
            m_peer->notify("n", QJsonArray {i});
        QTRY_COMPARE(m_delivered, (QVector<int> {0, 1, 2}));
        announce("^peer: a receiver threw: in a callback$");
        QVERIFY(m_client->send("x", {}, 1000,
                               [](const Answer &) { throw std::logic_error("in a callback"); }));
        QTRY_COMPARE(m_peer->received("x"), 1);
        QVERIFY(m_client->call("x", {}, 1000).isResult());
        QCoreApplication::processEvents();
    }

    // A handler that opens a dialog runs an event loop of its own: the rest has to come in there.
    void handlerWithAnEventLoop()
    {
        m_onDelivery = [this] {
            if (m_delivered.size() == 1)
                QTRY_COMPARE(m_delivered.size(), 3);
        };
        m_peer->script("go", [](const rpc::Message &request) {
            return Frames {notification(1), notification(2), notification(3), answerTo(request)};
        });
        QVERIFY(m_client->call("go", {}, 5000).isResult());
        QTRY_COMPARE(m_delivered, (QVector<int> {1, 2, 3}));
    }

    void joinedThreadStartsAgain()
    {
        m_client->close();
        m_thread->shutdown();
        QVERIFY(!m_thread->isRunning());
        m_thread->shutdown();
        QTRY_COMPARE(m_peer->clients(), 0);
        QSignalSpy up(m_client.data(), &Client::up);
        m_client->open(m_peer->url());
        QVERIFY(up.wait());
    }

private:
    void connectClient(const rpc::Liveness &liveness)
    {
        m_client.reset(new Client(QStringLiteral("peer"), m_thread.data(), nullptr, liveness));
        m_delivered.clear();
        m_onDelivery = [] {};
        connect(m_client.data(), &Client::notified, this,
                [this](const QString &, const QJsonValue &params) {
                    m_delivered.append(params.toArray().at(0).toInt());
                    m_onDelivery();
                });
        QSignalSpy up(m_client.data(), &Client::up);
        m_client->open(m_peer->url());
        QVERIFY(up.wait());
    }

    QVector<int> m_delivered; ///< the numbers of the notifications
    std::function<void()> m_onDelivery; ///< what their receiver does besides
    QScopedPointer<FakePeer> m_peer;
    QScopedPointer<rpc::IoThread> m_thread;
    QScopedPointer<Client> m_client;
};

QTEST_GUILESS_MAIN(TestClient)
#include "tst_client.moc"
