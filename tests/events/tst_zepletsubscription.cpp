#include <QTest>
#include <QUuid>

#include <stdexcept>
#include <utility>

#include <zeplet/events/zepleteventhandlerfiltered.h>
#include <zeplet/events/zepleteventhandlerfunc.h>
#include <zeplet/events/zepleteventhandleroneshot.h>
#include <zeplet/events/zepleteventhandlerwithcontext.h>
#include <zeplet/events/zepleteventsubscription.h>

#include "testcolumns.h"

using namespace zeplet;

using HandlerPointer = QSharedPointer<ZepletEventHandler>;
using Callback = ZepletEventHandler::Callback;
using Maker = std::function<HandlerPointer(const Callback &)>;
Q_DECLARE_METATYPE(Maker)

class TestZepletSubscription : public QObject
{
    Q_OBJECT

private slots:
    void handlers_data()
    {
        const auto row = testcolumns<Maker, bool, bool, int, int>(
            "maker", "validBefore", "validAfter", "callbackCalls", "invokeCount");
        const auto filtered = [](const ZepletEventHandler::Filter &filter) -> Maker {
            return [filter](const Callback &callback) -> HandlerPointer {
                return QSharedPointer<ZepletEventHandlerFiltered>::create(RCRunStart, filter,
                                                                          callback, "name");
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
        row("func", func, true, true, 2, 2);
        row("empty filter", filtered({}), true, true, 2, 2);
        row("filter that accepts", filtered([](const ZepletEvent &) { return true; }), true, true,
            2, 2);
        row("filter that refuses: counted as delivered",
            filtered([](const ZepletEvent &) { return false; }), true, true, 0, 2);
        row("one-shot", oneShot, true, false, 1, 1);
        row("context", withContext(&m_context), true, true, 2, 2);
        row("no context", withContext(nullptr), false, false, 0, 0);
    }

    void handlers()
    {
        QFETCH(Maker, maker);
        QFETCH(bool, validAfter);
        QFETCH(int, invokeCount);
        int calls = 0;
        const HandlerPointer handler = maker([&calls](const ZepletEvent &) { ++calls; });
        QCOMPARE(handler->eventType(), RCRunStart);
        QCOMPARE(handler->handlerName(), QString("name"));
        QCOMPARE(handler->isOneShot(), QTest::currentDataTag() == QString("one-shot"));
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

    void times()
    {
        const QDateTime before = QDateTime::currentDateTimeUtc();
        ZepletEventSubscription subscription;
        QCOMPARE(subscription.createdTime.timeSpec(), Qt::UTC);
        QVERIFY(subscription.createdTime >= before);
        QCOMPARE(subscription.lastInvokedTime, subscription.createdTime);

        subscription.lastInvokedTime = QDateTime();
        subscription.incrementInvokeCount();
        QCOMPARE(subscription.lastInvokedTime.timeSpec(), Qt::UTC);
        QVERIFY(subscription.lastInvokedTime >= subscription.createdTime);
    }

    void ids()
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

    void copiesShareTheHandler()
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

    void withoutHandler()
    {
        ZepletEventSubscription subscription;
        QVERIFY(!subscription.isValid());
        QVERIFY(!subscription.isOneShot());
        QVERIFY(subscription.handlerName().isEmpty());
        subscription.handleEvent(ZepletEvent());
        QCOMPARE(subscription.invokeCount, quint64(0));
    }

    void throwingHandlerIsNotCounted()
    {
        const auto handler = QSharedPointer<ZepletEventHandlerOneShot>::create(
            RCRunStart, [](const ZepletEvent &) { throw std::runtime_error("plugin"); }, "n");
        ZepletEventSubscription subscription(QString(), "p", RCRunStart, handler);
        QVERIFY_EXCEPTION_THROWN(subscription.handleEvent(ZepletEvent()), std::runtime_error);
        QCOMPARE(subscription.invokeCount, quint64(0));
        QVERIFY(subscription.isValid());
    }

    void text()
    {
        const struct {
            int type;
            const char *plugin, *start;
        } rows[] = {
            {0x4021, "p", "Subscription{id='i', plugin='p', type=4021, handler='"},
            {0xABCD, "p", "Subscription{id='i', plugin='p', type=abcd, handler='"},
            {0, "%3%6", "Subscription{id='i', plugin='%3%6', type=0, handler='"},
        };
        for (const auto &row : rows) {
            const auto type = static_cast<ZepletEventType>(row.type);
            ZepletEventSubscription subscription(
                "i", row.plugin, type,
                QSharedPointer<ZepletEventHandlerFunc>::create(type, Callback(), "h"));
            subscription.handleEvent(ZepletEvent());
            QCOMPARE(subscription.toString(), row.start + QString("h', valid=true, invokes=1}"));
            subscription.handler.reset();
            QCOMPARE(subscription.toString(), row.start + QString("', valid=false, invokes=1}"));
        }
    }

private:
    QObject m_context;
};

QTEST_GUILESS_MAIN(TestZepletSubscription)
#include "tst_zepletsubscription.moc"
