#include <kest/bmodule.h>
#include <kest/modulefactory.h>
#include <kest/modulerunner.h>
#include <ostrel/moduleobject.h>

#include <QEventLoop>
#include <QSignalSpy>
#include <QtTest>
#include <functional>
#include <stdexcept>

namespace
{
QStringList g_calls;

using Action = std::function<void(kest::BModule *)>;

/** Writes down each hook, then does what the test wants done in it. */
class RecordingModule : public kest::BModule
{
public:
    RecordingModule(const QString &name, const QHash<QString, Action> &actions, QObject *parent)
        : BModule(parent)
        , m_name(name)
        , m_actions(actions)
    {
        bindMobj(mName("ostrel", "zeplet", name));
    }
    ~RecordingModule() override { g_calls.append(m_name + ":destroy"); }

    void setup() override { call("setup"); }
    void afterSetup() override { call("afterSetup"); }
    void init() override { call("init"); }
    void afterInit() override { call("afterInit"); }
    void render() override { call("render"); }
    void afterRender() override { call("afterRender"); }
    void idle() override { call("idle"); }
    void afterIdle() override { call("afterIdle"); }
    void beforeDetach() override { call("beforeDetach"); }
    void detach() override { call("detach"); }

private:
    void call(const QString &hook)
    {
        g_calls.append(m_name + ':' + hook);
        if (const Action action = m_actions.value(hook))
            action(this);
    }

    QString m_name;
    QHash<QString, Action> m_actions;
};

void addModule(const QString &name, const QHash<QString, Action> &actions = {})
{
    bfactory().makers.insert(name, [name, actions](QObject *parent) {
        return new RecordingModule(name, actions, parent);
    });
}

QStringList calls(const char *text)
{
    return QString(text).split(' ', Qt::SkipEmptyParts);
}

} // namespace

class TestModuleRunner : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        bfactory().makers.clear();
        g_calls.clear();
    }

    void drivesAllModulesThroughEachStepTogether()
    {
        addModule("a");
        addModule("b");
        kest::ModuleRunner runner;
        runner.start({"a", "b"});
        QCOMPARE(g_calls,
                 calls("a:setup b:setup a:afterSetup b:afterSetup a:init b:init "
                       "a:afterInit b:afterInit"));
        QCOMPARE(runner.names(), QStringList({"a", "b"}));
        QCOMPARE(kest::ModuleRunner::state("a"), QString("running"));
        g_calls.clear();
        runner.frame();
        QCOMPARE(g_calls,
                 calls("a:render a:afterRender b:render b:afterRender "
                       "a:idle a:afterIdle b:idle b:afterIdle"));
        g_calls.clear();
        runner.shutdown();
        QCOMPARE(g_calls,
                 calls("b:beforeDetach a:beforeDetach b:detach a:detach "
                       "b:destroy a:destroy"));
        QCOMPARE(kest::ModuleRunner::state("a"), QString("detached"));
        QCOMPARE(runner.names(), QStringList());
    }

    void framesRunUntilTheyAreStoppedAndDestructionDetaches()
    {
        addModule("a");
        auto runner = std::make_unique<kest::ModuleRunner>();
        runner->start({"a", "a"});
        QCOMPARE(g_calls.count("a:setup"), 1);
        runner->startFrames(1);
        QTRY_VERIFY(g_calls.count("a:idle") > 2);
        runner->stopFrames();
        g_calls.clear();
        QCoreApplication::processEvents();
        runner->start({"a"});
        QCOMPARE(g_calls, QStringList());
        runner.reset();
        QCOMPARE(g_calls, calls("a:beforeDetach a:detach a:destroy"));
    }

    void faultyModuleIsOnlyDetached()
    {
        for (const QString hook : {"setup", "afterSetup", "init", "afterInit", "render",
                                   "afterRender", "idle", "afterIdle"}) {
            init();
            addModule("bad", {{hook, [](auto *) { throw std::runtime_error("no camera"); }}});
            addModule("good");
            kest::ModuleRunner runner;
            QSignalSpy faults(&runner, &kest::ModuleRunner::moduleFaulty);
            runner.start({"bad", "good"});
            runner.frame();
            QCOMPARE(g_calls.filter("bad:").last(), "bad:" + hook);
            QCOMPARE(g_calls.last(), QString("good:afterIdle"));
            const QString error = QString("\"bad\" failed in %1: no camera").arg(hook);
            QCOMPARE(faults, (QList<QVariantList> {{"bad", error}}));
            QCOMPARE(kest::ModuleRunner::error("bad"), error);
            g_calls.clear();
            runner.frame();
            QVERIFY(g_calls.filter("bad:").isEmpty());
            g_calls.clear();
            runner.stop("bad");
            QCOMPARE(g_calls, calls("bad:detach bad:destroy"));
            QCOMPARE(kest::ModuleRunner::state("bad"), QString("faulty"));
        }
    }

    void throwingDetachDoesNotKeepTheOthers()
    {
        for (const char *hook : {"beforeDetach", "detach"}) {
            init();
            addModule("a");
            addModule("bad", {{hook, [](auto *) { throw 42; }}});
            kest::ModuleRunner runner;
            runner.start({"a", "bad"});
            runner.shutdown();
            QVERIFY(g_calls.contains("bad:detach") && g_calls.contains("bad:destroy"));
            QVERIFY(g_calls.contains("a:destroy"));
            QVERIFY(kest::ModuleRunner::error("bad").endsWith("an unknown exception"));
        }
    }

    void moduleThatCannotBeMade()
    {
        const struct {
            kest::ModuleFactory::Maker maker;
            const char *state, *error;
        } rows[] = {
            {{}, "not loaded", "No module is registered under the name \"x\"."},
            {[](QObject *) { return nullptr; }, "faulty", "The maker of \"x\" returned no module."},
            {[](QObject *parent) -> kest::BModule * {
                 new RecordingModule("x", {}, parent);
                 throw std::runtime_error("broken");
             },
             "faulty", "\"x\" could not be made: broken"},
        };
        for (const auto &[maker, state, error] : rows) {
            bfactory().makers.insert("x", maker);
            addModule("good");
            kest::ModuleRunner runner;
            runner.start({"x", "good"});
            runner.frame();
            QCOMPARE(kest::ModuleRunner::state("x"), QString(state));
            QCOMPARE(kest::ModuleRunner::error("x"), QString(error));
            QCOMPARE(runner.module("x"), nullptr);
            QCOMPARE(bModule("ostrel.zeplet.x"), nullptr);
            QCOMPARE(kest::ModuleRunner::state("good"), QString("running"));
            runner.stop("x");
        }
    }

    void moduleThatReportsAnErrorWhileMadeIsFaulty()
    {
        bfactory().makers.insert("x", [](QObject *parent) {
            m("ostrel.zeplet.x")->set(nullptr, "error", "it has no plugin", true);
            return new RecordingModule("x", {}, parent);
        });
        kest::ModuleRunner runner;
        runner.start({"x"});
        QCOMPARE(kest::ModuleRunner::state("x"), QString("faulty"));
        QCOMPARE(kest::ModuleRunner::error("x"), QString("it has no plugin"));
        QCOMPARE(g_calls, QStringList());
    }

    void faultyModuleCanBeStartedAgain()
    {
        bool broken = true;
        addModule("x", {{"init", [&broken](auto *) {
                             if (broken)
                                 throw std::runtime_error("broken");
                         }}});
        kest::ModuleRunner runner;
        runner.start({"x"});
        runner.stop("x");
        broken = false;
        runner.start({"x"});
        QCOMPARE(kest::ModuleRunner::state("x"), QString("running"));
        QCOMPARE(kest::ModuleRunner::error("x"), QString());
    }

    void moduleMayStopItselfInAHook()
    {
        kest::ModuleRunner runner;
        addModule("a", {{"render", [&runner](auto *) {
                             runner.stop("a");
                             runner.stop("a");
                             g_calls.append("still here");
                         }}});
        addModule("b");
        runner.start({"a", "b"});
        g_calls.clear();
        runner.frame();
        QCOMPARE(g_calls,
                 calls("a:render") + QStringList {"still here"}
                     + calls("a:beforeDetach a:detach a:destroy b:render b:afterRender "
                             "b:idle b:afterIdle"));
        QCOMPARE(runner.names(), QStringList {"b"});
    }

    void moduleMayBeDeletedFromOutside()
    {
        addModule("a");
        addModule("b", {{"render", [](auto *) { delete bModule("ostrel.zeplet.a"); }}});
        kest::ModuleRunner runner;
        runner.start({"b", "a"});
        runner.frame();
        QVERIFY(!g_calls.contains("a:render"));
        runner.shutdown();
        QVERIFY(g_calls.contains("b:destroy"));
    }

    void noFrameStartsInsideAHook()
    {
        kest::ModuleRunner runner;
        addModule("a", {{"render", [&runner](auto *) {
                             runner.frame();
                             QEventLoop loop;
                             QTimer::singleShot(0, &loop, &QEventLoop::quit);
                             loop.exec();
                         }}});
        runner.start({"a"});
        runner.startFrames(0);
        QTRY_VERIFY(g_calls.contains("a:afterIdle"));
        runner.stopFrames();
        for (int i = 0; i + 1 < g_calls.size(); ++i)
            QVERIFY(g_calls.at(i) != "a:render" || g_calls.at(i + 1) == "a:afterRender");
    }

    void tellsEachStepAroundItsCall()
    {
        QStringList steps;
        addModule("a");
        kest::ModuleRunner runner;
        connect(&runner, &kest::ModuleRunner::stepStarted, this,
                [&steps](const QString &, const QString &step) { steps.append('+' + step); });
        connect(&runner, &kest::ModuleRunner::stepFinished, this,
                [&steps](const QString &, const QString &step) { steps.append('-' + step); });
        runner.start({"a"});
        runner.shutdown();
        QCOMPARE(
            steps,
            calls("+construction -construction +setup -setup +afterSetup -afterSetup +init -init "
                  "+afterInit -afterInit +beforeDetach -beforeDetach +detach -detach "
                  "+destroy -destroy"));
    }
};

QTEST_MAIN(TestModuleRunner)
#include "tst_modulerunner.moc"
