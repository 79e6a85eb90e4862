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
#include <QJsonDocument>
#include <QJsonObject>
#include <QSignalSpy>
#include <QTest>
#include <QWidget>

using namespace zeplet;

namespace
{

ostrel::ModuleObject *entries()
{
    return m("kivra.page.robot.page.pack.page");
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
    return m("brisa.msg._")->getInt(0);
}

} // namespace

class TestZepletModule : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { ignoreOffscreenNoise(); }
    void theTemplateIsInTheLibrary()
    {
        QFile file(":/zeplet/template/zeplet.json");
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("{\n\n}\n"));
    }

    // Has to come before the tests that use the bus.
    void aModuleLeavesNoBusBehind()
    {
        {
            MadeModule made("quiet");
        }
        QCOMPARE(ZepletEventSystem::existingInstance(), nullptr);
    }

    void constructionBindsAndReports()
    {
        LogCapture log;
        Zeplet module("%2", nullptr);
        QCOMPARE(log.ofLevel("S"),
                 QStringList {"<zeplet> '%2' init. current zeplet version : [v1.0.2.7.3]"});
        QCOMPARE(module.name(), QString("zeplet"));
        QCOMPARE(module.pluginName(), QString("%2"));
        QCOMPARE(module.mobj(), m("ostrel.zeplet.%2"));
        QCOMPARE(bModule("ostrel.zeplet.%2"), &module);
    }

    void hooksReachThePluginInOrder()
    {
        MadeModule made("hooks");
        auto *page = made->findChild<PluginSettingPage *>();
        QCOMPARE(instantiatedCenterWidget()->page("zeplet.hooks"), page->wgt());
        QVERIFY(made.plugin->calls.isEmpty());

        for (auto hook :
             {&Zeplet::init, &Zeplet::afterInit, &Zeplet::render, &Zeplet::idle, &Zeplet::detach})
            (made.module.get()->*hook)();
        QCOMPARE(made.plugin->calls,
                 QStringList({"init", "afterInit", "render", "idle", "detach"}));
    }

    void hooksThatAPluginLeavesOutDoNothing()
    {
        Zeplet module("plain", nullptr);
        module.setPlugin(new PluginBase(&module));
        module.setup();
        LogCapture log;
        for (auto hook : {&Zeplet::afterInit, &Zeplet::render, &Zeplet::idle, &Zeplet::detach})
            (module.*hook)();
        QCOMPARE(log.take(), QStringList());
    }

    void theNavigationEntryLinksToThePage()
    {
        const QStringList rows[] = {{"titled", "Welding", "Welding"}, {"untitled", "", "untitled"}};
        for (const QStringList &row : rows) {
            MadeModule made(row[0], row[1]);
            LogCapture log;
            made->init();
            QCOMPARE(log.take(), QStringList({"I|Zeplet::init() begin", "I|Zeplet::end()"}));
            const QJsonObject entry = entryList().last().toObject();
            QCOMPARE(entry["title"].toString(), row[2]);
            QCOMPARE(entry["nav"].toString(), "zeplet." + row[0]);
        }
    }

    void renderStylesThePage()
    {
        MadeModule styled("styled"); // unless the plugin says otherwise
        MadeModule unstyled("unstyled");
        unstyled.plugin->setDefaultGlobalSheet(false);
        styled->render();
        unstyled->render();
        instantiatedCenterWidget()->show();
        const auto sheet = [](const MadeModule &made) {
            QWidget *const page = made->findChild<PluginSettingPage *>()->wgt();
            instantiatedCenterWidget()->setCurrentWidget(page);
            return page->styleSheet();
        };
        QVERIFY(!sheet(styled).isEmpty());
        QVERIFY(sheet(unstyled).isEmpty());
        instantiatedCenterWidget()->hide();
    }

    void widgetsGoWhereTheyBelong()
    {
        MadeModule made("widgets");
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
        QVERIFY(made->createRightExpandWidgte(named, "named"));
        side.hide();
        made->switchRightExpandWidgte("unknown");
        QVERIFY(side.isHidden());
        made->switchRightExpandWidgte("named");
        QVERIFY(side.isVisible());
        QVERIFY(named->isVisible());
        made->switchRightExpandWidgte(QString());
        QVERIFY(page->isVisible());
    }

    void aModuleCountsOneModalWindow()
    {
        MadeModule first("modal1");
        MadeModule second("modal2");
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

    void logLevelsBecomeWords()
    {
        Zeplet module("words", nullptr);
        QSignalSpy thrown(brisa::ManagerHelper::instance(), &brisa::ManagerHelper::logThrown);
        const QPair<int, QString> rows[] = {{ThrowLogInfo, "info"},
                                            {ThrowLogWarning, "warning"},
                                            {ThrowLogError, "error"},
                                            {7, "info"},
                                            {-1, "info"}};
        for (const auto &[level, word] : rows) {
            QCOMPARE(module.ThrowLog(static_cast<enThrowLogLevel>(level), "hello"), 0);
            QCOMPARE(thrown.count(), 1);
            const QVariantList seen = thrown.takeFirst();
            QCOMPARE(seen.at(0).value<QObject *>(), &module);
            QCOMPARE(seen.mid(1), QVariantList({word, "hello"}));
        }
    }

    void cancelPageRemovesTheFirstMatch()
    {
        const struct {
            const char *parent, *nav;
            bool result;
            QStringList left;
        } rows[] = {
            {"robot.pack", "a", true, {"b", "a"}}, // the first of two
            {"robot.pack", "A", true, {"a", "b", "a"}}, {"robot.pack", "c", true, {"a", "b", "a"}},
            {"robot.pac", "a", true, {"a", "b", "a"}},  {"", "a", false, {"a", "b", "a"}},
        };
        Zeplet module("cancelling", nullptr);
        const QByteArray text = R"([{"nav":"a"},{"nav":"b"},{"nav":"a"}])";
        for (const auto &row : rows) {
            entries()->importFromJson(nullptr, QJsonDocument::fromJson(text).array(), true, true,
                                      false);
            LogCapture log;

            QCOMPARE(module.cancelPage(row.parent, row.nav), row.result);

            QCOMPARE(linkedPages(), row.left);
            const QStringList written = log.ofLevel("I");
            QCOMPARE(written.size(), row.result ? 3 : 1);
            QVERIFY(written.at(0).startsWith("zeplet::Zeplet::cancelPage"));
            if (row.parent == QString("robot.pack"))
                QCOMPARE(written.at(1), "zeplet::Zeplet::cancelPage : " + text);
        }
        entries()->importFromJson(nullptr, QJsonArray(), true, true, false);
    }

    void servicesBeforeSetupAreHarmless()
    {
        Zeplet module("early", nullptr);
        LogCapture log;
        QWidget widget;
        module.createCenterWidgte(&widget);
        QVERIFY(!widget.parentWidget());
        QCOMPARE(log.ofLevel("E").size(), 1);
        QVERIFY(!module.changeFullScreen(true));
    }

    void destructionWithdrawsEverything()
    {
        const QString name = "leaving";
        auto made = std::make_unique<MadeModule>(name);
        made->module->init();
        QPointer<QWidget> centre = new QWidget;
        made->module->createCenterWidgte(centre);
        QVERIFY(made->module->changeFullScreen(true));
        QVERIFY(made->module->changeModelWindowStatus(true));
        QVERIFY(linkedPages().contains("zeplet.leaving"));
        QPointer<QObject> page = made->module->findChild<PluginSettingPage *>();
        QPointer<RecordingPlugin> plugin = made->plugin;
        LogCapture log;

        made.reset();

        QCOMPARE(log.ofLevel("E"), QStringList({"~Zeplet begin", "~Zeplet end!"}));
        QObject parent;
        QCOMPARE(zepletFactory().create(name, &parent), nullptr);
        QVERIFY(!instantiatedCenterWidget()->page("zeplet.leaving"));
        QVERIFY(!linkedPages().contains("zeplet.leaving"));
        QCOMPARE(modalWindows(), 0);
        QVERIFY(!plugin);
        QVERIFY(!page);
        QVERIFY(!centre);
    }

    void theLastModuleOfANameEndsItsSubscriptions()
    {
        const QString name = "subscriber";
        auto first = std::make_unique<MadeModule>(name);
        auto second = std::make_unique<MadeModule>(name);
        int received = 0;
        zepletEvent()->subscribeFiltered(
            NetworkError, {}, [&](const ZepletEvent &) { ++received; }, name);
        zepletEvent()->subscribeFiltered(
            NetworkError, {}, [&](const ZepletEvent &) { ++received; }, "other");

        first.reset();
        zepletEvent()->publish(NetworkError);
        QCOMPARE(received, 2);
        second.reset();
        zepletEvent()->publish(NetworkError);
        QCOMPARE(received, 3);

        QCOMPARE(zepletEvent()->subscriptionCount("other"), 1);
        ZepletEventSystem::destroyInstance();
    }
};

QTEST_MAIN(TestZepletModule)
#include "tst_zepletmodule.moc"
