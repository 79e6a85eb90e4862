#include "offscreen.h"

#include <brisa/managerhelper.h>
#include <kest/bmodule.h>
#include <kest/centerwidget.h>
#include <kivra/navigation.h>
#include <kivra/physicalbuttonbar.h>

#include <QAbstractButton>
#include <QLabel>
#include <QMenu>
#include <QSignalSpy>
#include <QToolButton>
#include <QtTest>
#include <stdexcept>

using qo::kivra::PhysicalButtonBar;
using qo::kivra::registerPhysicalButtons;

namespace
{
QStringList g_events;

brisa::PhysicalButton key(const QString &label)
{
    return {label, QIcon(), QIcon(),
            [label](bool down) { g_events.append(label + (down ? "+" : "-")); }};
}

QAbstractButton *find(const PhysicalButtonBar &bar, const QString &label)
{
    for (auto *button : bar.findChildren<QAbstractButton *>()) {
        if (button->isVisibleTo(&bar) && button->text() == label
            && button->objectName() != "keyPageSelector")
            return button;
    }
    return nullptr;
}

} // namespace

class TestPhysicalButtons : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { ignoreOffscreenNoise(); }

    void init()
    {
        g_events.clear();
        m_centre = new kest::CenterWidget;
        m_bar = new PhysicalButtonBar(Qt::Horizontal);
        m_bar->resize(800, 150);
        QVERIFY(!m_bar->isVisible());
    }
    void cleanup()
    {
        delete m_bar;
        delete m_centre;
    }

    void pressAndReleaseReachTheCallback()
    {
        kest::BModule module;
        registerPhysicalButtons(&module, "main", {key("a"), key("b")}, {key("c")}, {});
        for (const QString label : {"a", "b", "c"}) {
            QTRY_VERIFY(find(*m_bar, label));
            QAbstractButton *button = find(*m_bar, label);
            QTest::mousePress(button, Qt::LeftButton);
            QCOMPARE(g_events, QStringList {label + "+"});
            QTest::mouseRelease(button, Qt::LeftButton);
            QCOMPARE(std::exchange(g_events, {}), (QStringList {label + "+", label + "-"}));
        }
    }

    void heldKeyIsReleasedOnce()
    {
        kest::BModule module;
        kest::BModule other;
        m_centre->addPage(&module, "module", new QLabel);
        m_centre->addPage(&other, "other", new QLabel);
        const std::function<void()> releases[] = {
            [&] { qo::kivra::enableRegisterPhysicalButtons(&module, "main", false); },
            [&] { registerPhysicalButtons(&module, "main", {key("b")}, {}, {}); },
            [&] { m_centre->switchTo(nullptr, "other"); },
            [&] { m_bar->hide(); },
            [&] { delete std::exchange(m_bar, nullptr); },
        };
        for (const auto &release : releases) {
            g_events.clear();
            m_bar->show();
            m_centre->switchTo(nullptr, "module");
            registerPhysicalButtons(&module, "main", {key("a")}, {}, {});
            registerPhysicalButtons(&other, "main", {key("x")}, {}, {});
            QTRY_VERIFY(find(*m_bar, "a") && find(*m_bar, "a")->isEnabled());
            QTest::mousePress(find(*m_bar, "a"), Qt::LeftButton);
            release();
            QTRY_COMPARE(g_events, (QStringList {"a+", "a-"}));
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QCOMPARE(g_events, (QStringList {"a+", "a-"}));
        }
    }

    void keysGoWithTheirModuleEvenWhileHeld()
    {
        auto module = std::make_unique<kest::BModule>();
        registerPhysicalButtons(module.get(), "main", {key("a")}, {}, {});
        QTRY_VERIFY(find(*m_bar, "a"));
        QAbstractButton *button = find(*m_bar, "a");
        QTest::mousePress(button, Qt::LeftButton);
        module.reset();
        QTest::mouseRelease(button, Qt::LeftButton);
        QCOMPARE(g_events, QStringList {"a+"});
        QTRY_VERIFY(!m_bar->isVisible());
        QCOMPARE(m_bar->currentPage(), QString());
    }

    void callbackMayReplaceItsPageOrDestroyItsModule()
    {
        for (const bool destroy : {false, true}) {
            g_events.clear();
            auto module = std::make_unique<kest::BModule>();
            const auto act = [&](bool down) {
                g_events.append(down ? "act+" : "act-");
                if (down && destroy)
                    module.reset();
                else if (down)
                    registerPhysicalButtons(module.get(), "main", {key("new")}, {}, {});
            };
            registerPhysicalButtons(module.get(), "main", {{"act", QIcon(), QIcon(), act}}, {}, {});
            QTRY_VERIFY(find(*m_bar, "act"));
            QTest::mouseClick(find(*m_bar, "act"), Qt::LeftButton);
            QTRY_VERIFY(destroy ? !m_bar->isVisible() : find(*m_bar, "new") != nullptr);
            QCOMPARE(g_events.join(' '), QString(destroy ? "act+" : "act+ act-"));
        }
    }

    void throwingCallbackIsReported()
    {
        kest::BModule module;
        QSignalSpy logs(brisa::ManagerHelper::instance(), &brisa::ManagerHelper::logThrown);
        const auto fail = [](bool down) {
            if (down)
                throw std::runtime_error("jammed");
            throw 1;
        };
        registerPhysicalButtons(&module, "main", {{"F1", QIcon(), QIcon(), fail}}, {}, {});
        QTRY_VERIFY(find(*m_bar, "F1"));
        QTest::mouseClick(find(*m_bar, "F1"), Qt::LeftButton);
        QStringList texts;
        for (const QVariantList &log : logs)
            texts += log.at(1).toString() + ": " + log.at(2).toString();
        QCOMPARE(texts,
                 (QStringList {"error: The key \"F1\" failed: jammed",
                               "error: The key \"F1\" failed: an unknown exception"}));
    }

    void disabledPageTakesNoPress()
    {
        kest::BModule module;
        registerPhysicalButtons(&module, "main", {key("a")}, {}, {});
        qo::kivra::enableRegisterPhysicalButtons(&module, "main", false);
        qo::kivra::enableRegisterPhysicalButtons(&module, "unknown", true);
        QTRY_VERIFY(find(*m_bar, "a"));
        QTest::mouseClick(find(*m_bar, "a"), Qt::LeftButton);
        QCOMPARE(g_events, QStringList());
        qo::kivra::enableRegisterPhysicalButtons(&module, "main", true);
        QTRY_VERIFY(find(*m_bar, "a") && find(*m_bar, "a")->isEnabled());
        QTest::mouseClick(find(*m_bar, "a"), Qt::LeftButton);
        QCOMPARE(g_events, (QStringList {"a+", "a-"}));
    }

    void pageOfKeysFollowsTheCentre()
    {
        kest::BModule a;
        kest::BModule b;
        m_centre->addPage(&a, "zeplet.a", new QLabel);
        m_centre->addPage(&b, "zeplet.b", new QLabel);
        for (const char *page : {"named", "elsewhere", "plain"})
            m_centre->addPage(nullptr, page, new QLabel);
        registerPhysicalButtons(&a, "a keys", {}, {}, {});
        registerPhysicalButtons(&a, "named", {}, {}, {});
        registerPhysicalButtons(&b, "b keys", {}, {}, {});
        registerPhysicalButtons(&b, "b extra", {}, {}, {"elsewhere"});
        const std::pair<const char *, const char *> rows[] = {{"zeplet.b", "b keys"},
                                                              {"named", "named"},
                                                              {"elsewhere", "b extra"},
                                                              {"zeplet.a", "a keys"},
                                                              {"plain", "a keys"}};
        for (const auto &[centreKey, keys] : rows) {
            m_centre->switchTo(nullptr, centreKey);
            QTRY_COMPARE(m_bar->currentPage(), QString(keys));
        }
    }

    void operatorChoosesAPage()
    {
        kest::BModule module;
        registerPhysicalButtons(&module, "one", {key("a")}, {}, {});
        registerPhysicalButtons(&module, "two", {key("b")}, {}, {});
        auto *selector = m_bar->findChild<QToolButton *>("keyPageSelector");
        QTRY_VERIFY(m_bar->isVisible() && selector->isEnabled());
        QTest::mouseClick(selector, Qt::LeftButton);
        auto *menu = m_bar->findChild<QMenu *>();
        QVERIFY(menu);
        menu->actions().at(1)->trigger();
        QCOMPARE(m_bar->currentPage(), QString("two"));
        QTRY_VERIFY(find(*m_bar, "b"));
    }

    void manyKeysDoNotWidenThePanel()
    {
        kest::BModule module;
        QList<brisa::PhysicalButton> keys;
        for (int i = 0; i < 40; ++i)
            keys.append(key(QString::number(i)));
        registerPhysicalButtons(&module, "main", keys, keys, {});
        for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
            PhysicalButtonBar bar(orientation);
            QTRY_VERIFY(find(bar, "39"));
            QVERIFY(bar.minimumSizeHint().width() < 1280);
            QVERIFY(bar.minimumSizeHint().height() < 300);
            for (const char *label : {"0", "39"})
                QVERIFY(find(bar, label)->height() >= 53 && find(bar, label)->width() >= 53);
        }
    }

private:
    kest::CenterWidget *m_centre = nullptr;
    PhysicalButtonBar *m_bar = nullptr;
};

QTEST_MAIN(TestPhysicalButtons)
#include "tst_physicalbuttons.moc"
