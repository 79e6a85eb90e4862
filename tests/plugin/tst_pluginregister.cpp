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
    void aNewPluginHasDefaults();
    void namesAreEnteredInTheHostsTables();
    void theFirstRegistrationWins();
    void entriesOfTheHostAreKept();
    void createNeedsAFactory();
    void cancelLeavesTheHostsEntries();
    void theHostMakesAModuleWithItsPlugin();
    void aNullPluginIsReportedOnceAndHarmless();
    void aThrowingFactoryLeavesNoModule();
};

void TestPluginRegister::aNewPluginHasDefaults()
{
    PluginBase plugin(nullptr);
    QVERIFY(plugin.getDefaultGlobalSheet());
    QVERIFY(plugin.getPluginLabel().isEmpty());
}

void TestPluginRegister::namesAreEnteredInTheHostsTables()
{
    const QList<ostrel::ModuleObject *> tables {bfactory().mobj(), ostrel::pluginManager().mobj()};
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
    QCOMPARE(
        ostrel::pluginManager().plugins.value(QStringLiteral("enteredplugins"), [] { return 0; })(),
        -1);
}

void TestPluginRegister::theFirstRegistrationWins()
{
    const QString name = QStringLiteral("twice");
    zepletFactory().regist(name, recording(QStringLiteral("first")));
    QSignalSpy modules(bfactory().mobj()->r(name), &ostrel::ModuleObject::changed);
    QSignalSpy plugins(ostrel::pluginManager().mobj()->r(name), &ostrel::ModuleObject::changed);

    zepletFactory().regist(name, recording(QStringLiteral("second")));

    QObject parent;
    QCOMPARE(zepletFactory().create(name, &parent)->getPluginLabel(), QStringLiteral("first"));
    QCOMPARE(modules.count() + plugins.count(), 0);
}

void TestPluginRegister::entriesOfTheHostAreKept()
{
    const QString name = QStringLiteral("theHostsOwn");
    bfactory().makers.insert(name, [](QObject *parent) { return new kest::BModule(parent); });
    ostrel::pluginManager().plugins.insert(name, [] { return 7; });

    zepletFactory().regist(name, recording());

    QObject parent;
    QVERIFY(!qobject_cast<Zeplet *>(make(name, &parent)));
    QCOMPARE(ostrel::pluginManager().plugins.value(name)(), 7);
    QVERIFY(bfactory().mobj()->r(name)->isNull());
}

void TestPluginRegister::createNeedsAFactory()
{
    QObject parent;
    QCOMPARE(zepletFactory().create(QStringLiteral("unknown"), &parent), nullptr);

    zepletFactory().regist(QStringLiteral("Case"), recording());
    QCOMPARE(zepletFactory().create(QStringLiteral("case"), &parent), nullptr);
    QCOMPARE(zepletFactory().create(QStringLiteral("Case"), &parent)->parent(), &parent);

    zepletFactory().regist(QStringLiteral("empty"), {});
    QVERIFY_EXCEPTION_THROWN(zepletFactory().create(QStringLiteral("empty"), &parent),
                             std::bad_function_call);
}

void TestPluginRegister::cancelLeavesTheHostsEntries()
{
    const QString name = QStringLiteral("cancelled");
    zepletFactory().regist(name, recording());
    zepletFactory().cancel(name);
    zepletFactory().cancel(name);

    QObject parent;
    QCOMPARE(zepletFactory().create(name, &parent), nullptr);
    QVERIFY(bfactory().makers.contains(name));
    QVERIFY(ostrel::pluginManager().plugins.contains(name));
}

void TestPluginRegister::theHostMakesAModuleWithItsPlugin()
{
    const QString name = QStringLiteral("made");
    zepletFactory().regist(name, recording());
    QObject parent;
    kest::BModule *module = make(name, &parent);

    QVERIFY(qobject_cast<Zeplet *>(module));
    QCOMPARE(module->parent(), &parent);
    QCOMPARE(module->children().size(), 1);
    QVERIFY(dynamic_cast<RecordingPlugin *>(module->children().at(0)));
}

void TestPluginRegister::aNullPluginIsReportedOnceAndHarmless()
{
    const QString name = QStringLiteral("null");
    zepletFactory().regist(name, [](QObject *) -> PluginBase * { return nullptr; });
    LogCapture log;
    std::unique_ptr<kest::BModule> module(make(name, nullptr));
    for (auto hook : {&kest::BModule::setup, &kest::BModule::init, &kest::BModule::afterInit,
                      &kest::BModule::render, &kest::BModule::idle, &kest::BModule::detach})
        (module.get()->*hook)();

    const QString error = QStringLiteral("The factory of the plugin 'null' made no plugin.");
    QCOMPARE(log.ofLevel(QStringLiteral("E")), QStringList {QStringLiteral("<zeplet> ") + error});
    QCOMPARE(module->mobj()->getStr(QStringLiteral("error"), QString()), error);
}

void TestPluginRegister::aThrowingFactoryLeavesNoModule()
{
    const QString name = QStringLiteral("throwing");
    zepletFactory().regist(name, [](QObject *) -> PluginBase * { throw 42; });
    QObject parent;
    QVERIFY_EXCEPTION_THROWN(make(name, &parent), int);
    QVERIFY(parent.children().isEmpty());
    QCOMPARE(bModule(QStringLiteral("ostrel.zeplet.throwing")), nullptr);
}

QTEST_MAIN(TestPluginRegister)
#include "tst_pluginregister.moc"
