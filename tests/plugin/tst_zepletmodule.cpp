#include "logcapture.h"
#include "offscreen.h"
#include "recordingplugin.h"

#include <brisa/managerhelper.h>
#include <kest/centerwidget.h>
#include <kest/expandsidebar.h>
#include <kest/statusbar.h>
#include <ostrel/moduleobject.h>
#include <zeplet/events/zepleteventsystem.h>
#include <zeplet/plugin/pluginsettingpage.h>
#include <zeplet/plugin/uiservices.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <QSignalSpy>
#include <QTest>
#include <QWidget>

using namespace zeplet;

namespace
{

ostrel::ModuleObject *entries()
{
    return m(QStringLiteral("kivra.page.robot.page.pack.page"));
}

QJsonArray entryList()
{
    return entries()->exportToJson(true).toArray();
}

QStringList linkedPages()
{
    QStringList linked;
    for (const QJsonValue &entry : entryList())
        linked.append(entry.toObject().value(QLatin1String("nav")).toString());
    return linked;
}

int modalWindows()
{
    return m(QStringLiteral("brisa.msg._"))->getInt(0);
}

} // namespace

class TestZepletModule : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { ignoreOffscreenNoise(); }
    void theTemplateIsInTheLibrary();
    void aModuleLeavesNoBusBehind();
    void constructionBindsAndReports();
    void hooksReachThePluginInOrder();
    void hooksThatAPluginLeavesOutDoNothing();
    void theNavigationEntryLinksToThePage_data();
    void theNavigationEntryLinksToThePage();
    void renderStylesThePage_data();
    void renderStylesThePage();
    void widgetsGoWhereTheyBelong();
    void aModuleCountsOneModalWindow();
    void logLevelsBecomeWords_data();
    void logLevelsBecomeWords();
    void cancelPageRemovesTheFirstMatch_data();
    void cancelPageRemovesTheFirstMatch();
    void servicesBeforeSetupAreHarmless();
    void destructionWithdrawsEverything();
    void theLastModuleOfANameEndsItsSubscriptions();
};

void TestZepletModule::theTemplateIsInTheLibrary()
{
    QFile file(QStringLiteral(":/zeplet/template/zeplet.json"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("{\n\n}\n"));
}

// Has to come before the tests that use the bus.
void TestZepletModule::aModuleLeavesNoBusBehind()
{
    {
        MadeModule made(QStringLiteral("quiet"));
    }
    QCOMPARE(ZepletEventSystem::existingInstance(), nullptr);
}

void TestZepletModule::constructionBindsAndReports()
{
    LogCapture log;
    Zeplet module(QStringLiteral("%2"), nullptr);
    QCOMPARE(
        log.ofLevel(QStringLiteral("S")),
        QStringList {QStringLiteral("<zeplet> '%2' init. current zeplet version : [v1.0.2.7.3]")});
    QCOMPARE(module.name(), QStringLiteral("zeplet"));
    QCOMPARE(module.pluginName(), QStringLiteral("%2"));
    QCOMPARE(module.mobj(), m(QStringLiteral("ostrel.zeplet.%2")));
    QCOMPARE(bModule(QStringLiteral("ostrel.zeplet.%2")), &module);
}

void TestZepletModule::hooksReachThePluginInOrder()
{
    MadeModule made(QStringLiteral("hooks"));
    auto *page = made->findChild<PluginSettingPage *>();
    QCOMPARE(instantiatedCenterWidget()->page(QStringLiteral("zeplet.hooks")), page->wgt());
    QVERIFY(made.plugin->calls.isEmpty());

    made->init();
    made->afterInit();
    made->render();
    made->idle();
    made->detach();
    QCOMPARE(
        made.plugin->calls,
        QStringList({QStringLiteral("init"), QStringLiteral("afterInit"), QStringLiteral("render"),
                     QStringLiteral("idle"), QStringLiteral("detach")}));
}

void TestZepletModule::hooksThatAPluginLeavesOutDoNothing()
{
    Zeplet module(QStringLiteral("plain"), nullptr);
    module.setPlugin(new PluginBase(&module));
    module.setup();
    LogCapture log;
    module.afterInit();
    module.render();
    module.idle();
    module.detach();
    QCOMPARE(log.take(), QStringList());
}

void TestZepletModule::theNavigationEntryLinksToThePage_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("title");

    QTest::newRow("label") << "titled"
                           << "Welding"
                           << "Welding";
    QTest::newRow("no label") << "untitled"
                              << ""
                              << "untitled";
}

void TestZepletModule::theNavigationEntryLinksToThePage()
{
    QFETCH(QString, name);
    QFETCH(QString, label);
    QFETCH(QString, title);
    MadeModule made(name, label);
    LogCapture log;

    made->init();

    QCOMPARE(
        log.take(),
        QStringList({QStringLiteral("I|Zeplet::init() begin"), QStringLiteral("I|Zeplet::end()")}));
    const QJsonObject entry = entryList().last().toObject();
    QCOMPARE(entry.value(QLatin1String("title")).toString(), title);
    QCOMPARE(entry.value(QLatin1String("nav")).toString(), QStringLiteral("zeplet.") + name);
}

void TestZepletModule::renderStylesThePage_data()
{
    QTest::addColumn<bool>("globalSheet");
    QTest::newRow("global style sheet") << true;
    QTest::newRow("own style") << false;
}

void TestZepletModule::renderStylesThePage()
{
    QFETCH(bool, globalSheet);
    MadeModule made(globalSheet ? QStringLiteral("styled") : QStringLiteral("unstyled"));
    made.plugin->setDefaultGlobalSheet(globalSheet);
    made->render();
    const QWidget *page = made->findChild<PluginSettingPage *>()->wgt();
    QCOMPARE(!page->styleSheet().isEmpty(), globalSheet);
}

void TestZepletModule::widgetsGoWhereTheyBelong()
{
    MadeModule made(QStringLiteral("widgets"));
    QVERIFY(!made->createStatusBar(nullptr, 0));
    QVERIFY(!made->createRightExpandWidgte(nullptr, QString()));
    made->createCenterWidgte(nullptr);

    auto *centre = new QWidget;
    made->createCenterWidgte(centre);
    QVERIFY(made->findChild<PluginSettingPage *>()->wgt()->isAncestorOf(centre));

    auto *item = new QWidget;
    QVERIFY(made->createStatusBar(item, 3));
    QVERIFY(instantiatedStatusBar(made.module.get())->isAncestorOf(item));
    QWidget sameIndex;
    QVERIFY(!made->createStatusBar(&sameIndex, 3));

    kest::ExpandSideBar side;
    auto *page = new QWidget;
    auto *named = new QWidget;
    QVERIFY(made->createRightExpandWidgte(page, QString()));
    QVERIFY(made->createRightExpandWidgte(named, QStringLiteral("named")));
    side.hide();
    made->switchRightExpandWidgte(QStringLiteral("unknown"));
    QVERIFY(side.isHidden());
    made->switchRightExpandWidgte(QStringLiteral("named"));
    QVERIFY(side.isVisible());
    QVERIFY(named->isVisible());
    made->switchRightExpandWidgte(QString());
    QVERIFY(page->isVisible());
}

void TestZepletModule::aModuleCountsOneModalWindow()
{
    MadeModule first(QStringLiteral("modal1"));
    MadeModule second(QStringLiteral("modal2"));
    struct Step {
        MadeModule &module;
        bool shown;
        bool changes;
        int count;
    };
    const QVector<Step> steps {{first, false, false, 0}, {first, true, true, 1},
                               {first, true, false, 1},  {second, true, true, 2},
                               {first, false, true, 1},  {first, false, false, 1},
                               {second, false, true, 0}};
    for (const Step &step : steps) {
        LogCapture log;
        QCOMPARE(step.module->changeModelWindowStatus(step.shown), step.changes);
        QCOMPARE(modalWindows(), step.count);
        const QStringList line {QStringLiteral("S|Current Model Count : %1").arg(step.count)};
        QCOMPARE(log.take(), step.changes ? line : QStringList());
    }
}

void TestZepletModule::logLevelsBecomeWords_data()
{
    QTest::addColumn<int>("level");
    QTest::addColumn<QString>("word");
    QTest::newRow("information") << int(ThrowLogInfo) << "info";
    QTest::newRow("warning") << int(ThrowLogWarning) << "warning";
    QTest::newRow("error") << int(ThrowLogError) << "error";
    QTest::newRow("unknown") << 7 << "info";
    QTest::newRow("negative") << -1 << "info";
}

void TestZepletModule::logLevelsBecomeWords()
{
    QFETCH(int, level);
    QFETCH(QString, word);
    Zeplet module(QStringLiteral("words"), nullptr);
    QSignalSpy thrown(brisa::ManagerHelper::instance(), &brisa::ManagerHelper::logThrown);

    QCOMPARE(module.ThrowLog(static_cast<enThrowLogLevel>(level), QStringLiteral("hello")), 0);

    QCOMPARE(thrown.count(), 1);
    QCOMPARE(thrown.at(0).at(0).value<QObject *>(), &module);
    QCOMPARE(thrown.at(0).at(1).toString(), word);
    QCOMPARE(thrown.at(0).at(2).toString(), QStringLiteral("hello"));
}

void TestZepletModule::cancelPageRemovesTheFirstMatch_data()
{
    QTest::addColumn<QString>("parent");
    QTest::addColumn<QString>("nav");
    QTest::addColumn<bool>("result");
    QTest::addColumn<QStringList>("left");
    const QString pack = QStringLiteral("robot.pack");
    const QStringList all {QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("a")};

    QTest::newRow("first of two") << pack << "a" << true
                                  << QStringList {QStringLiteral("b"), QStringLiteral("a")};
    QTest::newRow("other case") << pack << "A" << true << all;
    QTest::newRow("unknown") << pack << "c" << true << all;
    QTest::newRow("other parent") << "robot.pac"
                                  << "a" << true << all;
    QTest::newRow("no parent") << ""
                               << "a" << false << all;
}

void TestZepletModule::cancelPageRemovesTheFirstMatch()
{
    QFETCH(QString, parent);
    QFETCH(QString, nav);
    QFETCH(bool, result);
    QFETCH(QStringList, left);
    Zeplet module(QStringLiteral("cancelling"), nullptr);
    QJsonArray list;
    for (const char *linked : {"a", "b", "a"})
        list.append(QJsonObject {{QStringLiteral("nav"), QLatin1String(linked)}});
    entries()->importFromJson(nullptr, list, true, true, false);
    LogCapture log;

    QCOMPARE(module.cancelPage(parent, nav), result);

    QCOMPARE(linkedPages(), left);
    const QStringList written = log.ofLevel(QStringLiteral("I"));
    QCOMPARE(written.size(), result ? 3 : 1);
    QVERIFY(written.at(0).startsWith(QLatin1String("zeplet::Zeplet::cancelPage")));
    if (parent == QLatin1String("robot.pack"))
        QCOMPARE(written.at(1),
                 QStringLiteral("zeplet::Zeplet::cancelPage : "
                                R"([{"nav":"a"},{"nav":"b"},{"nav":"a"}])"));
    entries()->importFromJson(nullptr, QJsonArray(), true, true, false);
}

void TestZepletModule::servicesBeforeSetupAreHarmless()
{
    Zeplet module(QStringLiteral("early"), nullptr);
    LogCapture log;
    QWidget widget;
    module.createCenterWidgte(&widget);
    QVERIFY(!widget.parentWidget());
    QCOMPARE(log.ofLevel(QStringLiteral("E")).size(), 1);
    QVERIFY(!module.changeFullScreen(true));
}

void TestZepletModule::destructionWithdrawsEverything()
{
    const QString name = QStringLiteral("leaving");
    auto made = std::make_unique<MadeModule>(name);
    made->module->init();
    QPointer<QWidget> centre = new QWidget;
    made->module->createCenterWidgte(centre);
    QVERIFY(made->module->changeFullScreen(true));
    QVERIFY(made->module->changeModelWindowStatus(true));
    QVERIFY(linkedPages().contains(QStringLiteral("zeplet.leaving")));
    QPointer<QObject> page = made->module->findChild<PluginSettingPage *>();
    QPointer<RecordingPlugin> plugin = made->plugin;
    LogCapture log;

    made.reset();

    QCOMPARE(log.ofLevel(QStringLiteral("E")),
             QStringList({QStringLiteral("~Zeplet begin"), QStringLiteral("~Zeplet end!")}));
    QObject parent;
    QCOMPARE(zepletFactory().create(name, &parent), nullptr);
    QVERIFY(!instantiatedCenterWidget()->page(QStringLiteral("zeplet.leaving")));
    QVERIFY(!linkedPages().contains(QStringLiteral("zeplet.leaving")));
    QCOMPARE(modalWindows(), 0);
    QVERIFY(!plugin);
    QVERIFY(!page);
    QVERIFY(!centre);
}

void TestZepletModule::theLastModuleOfANameEndsItsSubscriptions()
{
    const QString name = QStringLiteral("subscriber");
    auto first = std::make_unique<MadeModule>(name);
    auto second = std::make_unique<MadeModule>(name);
    int received = 0;
    zepletEvent()->subscribeFiltered(
        NetworkError, {}, [&](const ZepletEvent &) { ++received; }, name);
    zepletEvent()->subscribeFiltered(
        NetworkError, {}, [&](const ZepletEvent &) { ++received; }, QStringLiteral("other"));

    first.reset();
    zepletEvent()->publish(NetworkError);
    QCOMPARE(received, 2);
    second.reset();
    zepletEvent()->publish(NetworkError);
    QCOMPARE(received, 3);

    QCOMPARE(zepletEvent()->subscriptionCount(QStringLiteral("other")), 1);
    ZepletEventSystem::destroyInstance();
}

QTEST_MAIN(TestZepletModule)
#include "tst_zepletmodule.moc"
