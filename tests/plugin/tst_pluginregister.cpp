#include "logcapture.h"
#include "recordingplugin.h"

#include <ostrel/moduleobject.h>
#include <ostrel/pluginmanager.h>

#include <QSignalSpy>
#include <QTest>

using namespace zeplet;

namespace
{

PluginRegister::Factory recording(const QString &label = QString())
{
    return [label](QObject *parent) { return new RecordingPlugin(parent, label); };
}

kest::BModule *make(const QString &name, QObject *parent)
{
    return bfactory().makers.value(name)(parent);
}

} // namespace

class TestPluginRegister : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesAreEnteredInTheHostsTables()
    {
        const QList<ostrel::ModuleObject *> tables {bfactory().mobj(),
                                                    ostrel::pluginManager().mobj()};
        for (ostrel::ModuleObject *table : tables) {
            const QString name = QStringLiteral("entered") + table->name();
            QSignalSpy changed(table->r(name), &ostrel::ModuleObject::changed);
            QVERIFY(table->r(name)->isNull());

            zepletFactory().regist(name, recording());

            QVERIFY(!table->r(name)->isNull());
            QCOMPARE(changed.count(), 1);
            QVERIFY(!changed.at(0).at(0).value<QVariant>().isValid());
            QCOMPARE(changed.at(0).at(2).value<QObject *>(), table);
        }
        QCOMPARE(ostrel::pluginManager().plugins.value("enteredplugins", [] { return 0; })(), -1);
    }

    void theFirstRegistrationWins()
    {
        const QString name = "twice";
        zepletFactory().regist(name, recording("first"));
        QSignalSpy modules(bfactory().mobj()->r(name), &ostrel::ModuleObject::changed);
        QSignalSpy plugins(ostrel::pluginManager().mobj()->r(name), &ostrel::ModuleObject::changed);

        zepletFactory().regist(name, recording("second"));

        QObject parent;
        QCOMPARE(zepletFactory().create(name, &parent)->getPluginLabel(), QString("first"));
        QCOMPARE(modules.count() + plugins.count(), 0);
    }

    void entriesOfTheHostAreKept()
    {
        const QString name = "theHostsOwn";
        bfactory().makers.insert(name, [](QObject *parent) { return new kest::BModule(parent); });
        ostrel::pluginManager().plugins.insert(name, [] { return 7; });

        zepletFactory().regist(name, recording());

        QObject parent;
        QVERIFY(!qobject_cast<Zeplet *>(make(name, &parent)));
        QCOMPARE(ostrel::pluginManager().plugins.value(name)(), 7);
        QVERIFY(bfactory().mobj()->r(name)->isNull());
    }

    void createNeedsAFactory()
    {
        QObject parent;
        QCOMPARE(zepletFactory().create("unknown", &parent), nullptr);

        zepletFactory().regist("Case", recording());
        QCOMPARE(zepletFactory().create("case", &parent), nullptr);
        QCOMPARE(zepletFactory().create("Case", &parent)->parent(), &parent);

        zepletFactory().regist("empty", {});
        QVERIFY_EXCEPTION_THROWN(zepletFactory().create("empty", &parent), std::bad_function_call);
    }

    void cancelLeavesTheHostsEntries()
    {
        const QString name = "cancelled";
        zepletFactory().regist(name, recording());
        zepletFactory().cancel(name);
        zepletFactory().cancel(name);

        QObject parent;
        QCOMPARE(zepletFactory().create(name, &parent), nullptr);
        QVERIFY(bfactory().makers.contains(name));
        QVERIFY(ostrel::pluginManager().plugins.contains(name));
    }

    void theHostMakesAModuleWithItsPlugin()
    {
        const QString name = "made";
        zepletFactory().regist(name, recording());
        QObject parent;
        kest::BModule *module = make(name, &parent);

        QVERIFY(qobject_cast<Zeplet *>(module));
        QCOMPARE(module->parent(), &parent);
        QCOMPARE(module->children().size(), 1);
        QVERIFY(dynamic_cast<RecordingPlugin *>(module->children().at(0)));
    }

    void aNullPluginIsReportedOnceAndHarmless()
    {
        const QString name = "null";
        zepletFactory().regist(name, [](QObject *) -> PluginBase * { return nullptr; });
        LogCapture log;
        std::unique_ptr<kest::BModule> module(make(name, nullptr));
        for (auto hook : {&kest::BModule::setup, &kest::BModule::init, &kest::BModule::afterInit,
                          &kest::BModule::render, &kest::BModule::idle, &kest::BModule::detach})
            (module.get()->*hook)();

        const QString error = "The factory of the plugin 'null' made no plugin.";
        QCOMPARE(log.ofLevel("E"), QStringList {QStringLiteral("<zeplet> ") + error});
        QCOMPARE(module->mobj()->getStr("error", QString()), error);
    }

    void aThrowingFactoryLeavesNoModule()
    {
        const QString name = "throwing";
        zepletFactory().regist(name, [](QObject *) -> PluginBase * { throw 42; });
        QObject parent;
        QVERIFY_EXCEPTION_THROWN(make(name, &parent), int);
        QVERIFY(parent.children().isEmpty());
        QCOMPARE(bModule("ostrel.zeplet.throwing"), nullptr);
    }
};

QTEST_MAIN(TestPluginRegister)
#include "tst_pluginregister.moc"
