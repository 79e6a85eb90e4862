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
    void isFoundUnderItsKeyOnly()
    {
        BoundModule module("first");
        QCOMPARE(bModule("first"), &module);
        QCOMPARE(bModule("First"), nullptr);
        QCOMPARE(bModule(""), nullptr);
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
