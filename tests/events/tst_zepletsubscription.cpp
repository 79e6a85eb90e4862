#include <QTest>
#include <QUuid>

#include <stdexcept>
#include <utility>

#include <zeplet/events/zepleteventhandlerfiltered.h>
#include <zeplet/events/zepleteventhandlerfunc.h>
#include <zeplet/events/zepleteventhandleroneshot.h>
#include <zeplet/events/zepleteventhandlerwithcontext.h>
#include <zeplet/events/zepleteventsubscription.h>

using namespace zeplet;

using HandlerPointer = QSharedPointer<ZepletEventHandler>;
using Callback = ZepletEventHandler::Callback;
using Maker = std::function<HandlerPointer(const Callback &)>;
Q_DECLARE_METATYPE(Maker)

class TestZepletSubscription : public QObject
{
    Q_OBJECT

private slots:
    void handlers_data();
    void handlers();
    void defaults();
    void ids();
    void copiesShareTheHandler();
    void withoutHandler();
    void throwingHandlerIsNotCounted();
    void text_data();
    void text();

private:
    QObject m_context;
};

void TestZepletSubscription::handlers_data()
{
    QTest::addColumn<Maker>("maker");
    QTest::addColumn<bool>("oneShot");
    QTest::addColumn<bool>("validBefore");
    QTest::addColumn<bool>("validAfter");
    QTest::addColumn<int>("callbackCalls");
    QTest::addColumn<int>("invokeCount");

    const auto filtered = [](const ZepletEventHandler::Filter &filter) -> Maker {
        return [filter](const Callback &callback) -> HandlerPointer {
            return QSharedPointer<ZepletEventHandlerFiltered>::create(RCRunStart, filter, callback,
                                                                      "name");
        };
    };
    const auto withContext = [](QObject *context) -> Maker {
        return [context](const Callback &callback) -> HandlerPointer {
            return QSharedPointer<ZepletEventHandlerWithContext>::create(RCRunStart, context,
                                                                         callback, "name");
        };
    };
    const Maker func = [](const Callback &callback) -> HandlerPointer {
        return QSharedPointer<ZepletEventHandlerFunc>::create(RCRunStart, callback, "name");
    };
    const Maker oneShot = [](const Callback &callback) -> HandlerPointer {
        return QSharedPointer<ZepletEventHandlerOneShot>::create(RCRunStart, callback, "name");
    };

    // Each gets two events.
    QTest::newRow("func") << func << false << true << true << 2 << 2;
    QTest::newRow("empty filter") << filtered({}) << false << true << true << 2 << 2;
    QTest::newRow("filter that accepts")
        << filtered([](const ZepletEvent &) { return true; }) << false << true << true << 2 << 2;
    QTest::newRow("filter that refuses: counted as delivered")
        << filtered([](const ZepletEvent &) { return false; }) << false << true << true << 0 << 2;
    QTest::newRow("one-shot") << oneShot << true << true << false << 1 << 1;
    QTest::newRow("context") << withContext(&m_context) << false << true << true << 2 << 2;
    QTest::newRow("no context") << withContext(nullptr) << false << false << false << 0 << 0;
}

void TestZepletSubscription::handlers()
{
    QFETCH(Maker, maker);
    QFETCH(bool, validAfter);
    QFETCH(int, invokeCount);
    int calls = 0;
    const HandlerPointer handler = maker([&calls](const ZepletEvent &) { ++calls; });
    QCOMPARE(handler->eventType(), RCRunStart);
    QCOMPARE(handler->handlerName(), QString("name"));
    QTEST(handler->isOneShot(), "oneShot");
    QTEST(handler->isValid(), "validBefore");

    ZepletEventSubscription subscription("id", "plugin", RCRunStart, handler);
    subscription.handleEvent(ZepletEvent());
    subscription.handleEvent(ZepletEvent());
    QTEST(calls, "callbackCalls");
    QCOMPARE(subscription.invokeCount, quint64(invokeCount));
    QCOMPARE(subscription.isValid(), validAfter);

    // The handler guards itself too, and an empty callback counts like any other.
    handler->handleEvent(ZepletEvent());
    QCOMPARE(calls > 2, validAfter && calls != 0);
    const HandlerPointer silent = maker({});
    silent->handleEvent(ZepletEvent());
    QCOMPARE(silent->isValid(), validAfter);
}

void TestZepletSubscription::defaults()
{
    const QDateTime before = QDateTime::currentDateTimeUtc();
    ZepletEventSubscription subscription;
    QVERIFY(subscription.pluginName.isEmpty());
    QCOMPARE(subscription.eventType, None);
    QVERIFY(subscription.handler.isNull());
    QCOMPARE(subscription.invokeCount, quint64(0));
    QCOMPARE(subscription.createdTime.timeSpec(), Qt::UTC);
    QVERIFY(subscription.createdTime >= before);
    QCOMPARE(subscription.lastInvokedTime, subscription.createdTime);

    subscription.lastInvokedTime = QDateTime();
    subscription.incrementInvokeCount();
    QCOMPARE(subscription.invokeCount, quint64(1));
    QCOMPARE(subscription.lastInvokedTime.timeSpec(), Qt::UTC);
    QVERIFY(subscription.lastInvokedTime >= subscription.createdTime);
}

void TestZepletSubscription::ids()
{
    QCOMPARE(ZepletEventSubscription("given", "p", None, {}).id, QString("given"));
    const QString generated = ZepletEventSubscription(QString(), "p", None, {}).id;
    for (const QString &id : {generated, ZepletEventSubscription().id,
                              ZepletEventSubscription::generateSubscriptionId()}) {
        QCOMPARE(QUuid(id).version(), QUuid::Random);
        QCOMPARE(id.size(), 36);
    }
    QVERIFY(ZepletEventSubscription().id != ZepletEventSubscription().id);
}

void TestZepletSubscription::copiesShareTheHandler()
{
    const auto handler
        = QSharedPointer<ZepletEventHandlerOneShot>::create(RCRunStart, Callback(), "n");
    ZepletEventSubscription original(QString(), "p", RCRunStart, handler);
    ZepletEventSubscription copy = original;
    copy.handleEvent(ZepletEvent());
    QCOMPARE(copy.invokeCount, quint64(1));
    QCOMPARE(original.invokeCount, quint64(0));
    QVERIFY(!original.isValid());

    const ZepletEventSubscription moved = std::move(copy);
    QCOMPARE(moved.id, original.id);
    QCOMPARE(moved.createdTime, original.createdTime);
    QCOMPARE(moved.handler, original.handler);
}

void TestZepletSubscription::withoutHandler()
{
    ZepletEventSubscription subscription;
    QVERIFY(!subscription.isValid());
    QVERIFY(!subscription.isOneShot());
    QVERIFY(subscription.handlerName().isEmpty());
    subscription.handleEvent(ZepletEvent());
    QCOMPARE(subscription.invokeCount, quint64(0));
}

void TestZepletSubscription::throwingHandlerIsNotCounted()
{
    const auto handler = QSharedPointer<ZepletEventHandlerOneShot>::create(
        RCRunStart, [](const ZepletEvent &) { throw std::runtime_error("plugin"); }, "n");
    ZepletEventSubscription subscription(QString(), "p", RCRunStart, handler);
    QVERIFY_EXCEPTION_THROWN(subscription.handleEvent(ZepletEvent()), std::runtime_error);
    QCOMPARE(subscription.invokeCount, quint64(0));
    QVERIFY(subscription.isValid());
}

void TestZepletSubscription::text_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("plugin");
    QTest::addColumn<QString>("expected");
    QTest::newRow("named type") << int(RCRunStart) << "p"
                                << "Subscription{id='i', plugin='p', type=4021, handler='h', "
                                   "valid=true, invokes=1}";
    QTest::newRow("custom type") << 0x8001 << "p"
                                 << "Subscription{id='i', plugin='p', type=8001, handler='h', "
                                    "valid=true, invokes=1}";
    QTest::newRow("letters") << 0xABCD << "p"
                             << "Subscription{id='i', plugin='p', type=abcd, handler='h', "
                                "valid=true, invokes=1}";
    QTest::newRow("no type, a plugin that looks like a place")
        << 0 << "%3%6"
        << "Subscription{id='i', plugin='%3%6', type=0, handler='h', valid=true, invokes=1}";
}

void TestZepletSubscription::text()
{
    QFETCH(int, type);
    QFETCH(QString, plugin);
    const auto eventType = static_cast<ZepletEventType>(type);
    ZepletEventSubscription subscription(
        "i", plugin, eventType,
        QSharedPointer<ZepletEventHandlerFunc>::create(eventType, Callback(), "h"));
    subscription.handleEvent(ZepletEvent());
    QTEST(subscription.toString(), "expected");

    subscription.handler.reset();
    QVERIFY(subscription.toString().endsWith("handler='', valid=false, invokes=1}"));
}

QTEST_GUILESS_MAIN(TestZepletSubscription)
#include "tst_zepletsubscription.moc"
