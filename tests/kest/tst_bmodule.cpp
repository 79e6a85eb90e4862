#include <kest/bmodule.h>
#include <ostrel/moduleobject.h>

#include <QtTest>

namespace
{

class BoundModule : public kest::BModule
{
public:
    explicit BoundModule(const QString &key) { bindMobj(key); }
    using BModule::bindMobj;
};

} // namespace

class TestBModule : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void joinsKeys()
    {
        QCOMPARE(mName("brisa.msg", "_"), QString("brisa.msg._"));
        QCOMPARE(mName("ostrel", "zeplet", "demo"), QString("ostrel.zeplet.demo"));
    }

    void isFoundUnderItsKeyOnly()
    {
        BoundModule module("ostrel.zeplet.demo");
        QCOMPARE(bModule("ostrel.zeplet.demo"), &module);
        QCOMPARE(bModule("ostrel.zeplet.Demo"), nullptr);
        QCOMPARE(bModule(""), nullptr);
        QCOMPARE(module.mobj(), m("ostrel.zeplet.demo"));
    }

    void hasNoNodeBeforeItIsBound()
    {
        kest::BModule module;
        QCOMPARE(module.mobj(), nullptr);
    }

    void leavesItsOldKeyWhenBoundAgain()
    {
        BoundModule module("first");
        module.bindMobj("second");
        QCOMPARE(bModule("first"), nullptr);
        QCOMPARE(bModule("second"), &module);
    }

    void theLastBoundOfAKeyIsFoundAndGivesWayToTheEarlier()
    {
        BoundModule first("twice");
        auto second = std::make_unique<BoundModule>("twice");
        QCOMPARE(bModule("twice"), second.get());
        second.reset();
        QCOMPARE(bModule("twice"), &first);
    }
};

QTEST_MAIN(TestBModule)
#include "tst_bmodule.moc"
