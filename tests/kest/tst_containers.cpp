#include "offscreen.h"

#include <kest/bmodule.h>
#include <kest/centerwidget.h>
#include <kest/expandsidebar.h>
#include <kest/statusbar.h>

#include <QLabel>
#include <QPointer>
#include <QSignalSpy>
#include <QToolButton>
#include <QtTest>
#include <functional>

namespace
{

const QString Stretch = QStringLiteral("tavik.body.statuspage.wgtStrech2");

void deletePending()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/** One container behind the same three operations, so that its rules are tested once for all. */
struct Container {
    std::unique_ptr<QWidget> widget;
    std::function<bool(kest::BModule *, QString, QWidget *)> add;
    std::function<bool(kest::BModule *, QString, bool)> remove;
    std::function<QWidget *(QString)> find;
};

Container makeContainer(const QString &kind)
{
    if (kind == "centre") {
        auto *c = new kest::CenterWidget;
        return {std::unique_ptr<QWidget>(c),
                [c](auto *m, auto k, auto *w) { return c->addPage(m, k, w); },
                [c](auto *m, auto k, bool d) { return c->removeItem(m, k, d); },
                [c](auto k) { return c->page(k); }};
    }
    if (kind == "side") {
        auto *c = new kest::ExpandSideBar;
        return {std::unique_ptr<QWidget>(c),
                [c](auto *m, auto k, auto *w) { return c->addPage(m, k, w); },
                [c](auto *m, auto k, bool d) { return c->removePage(m, k, d); },
                [c](auto k) { return c->page(k); }};
    }
    auto *c = new kest::StatusBar;
    return {std::unique_ptr<QWidget>(c),
            [c](auto *m, auto k, auto *w) { return c->addBeforeItem(m, k, Stretch, w); },
            [c](auto *m, auto k, bool d) { return c->removeItem(m, k, d); },
            [c](auto k) { return c->item(k); }};
}

} // namespace

class TestContainers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { ignoreOffscreenNoise(); }

    void refusesWhatItCannotKeep_data() { kinds(); }
    void refusesWhatItCannotKeep()
    {
        QFETCH(QString, kind);
        const Container c = makeContainer(kind);
        kest::BModule module;
        auto *first = new QLabel;
        QLabel second;
        QVERIFY(!c.add(&module, "null", nullptr));
        QVERIFY(!c.add(&module, "", &second));
        QVERIFY(c.add(&module, "key", first));
        QVERIFY(!c.add(&module, "key", &second));
        QVERIFY(!c.add(&module, "other", first));
        QCOMPARE(c.find("key"), first);
        QCOMPARE(c.find("other"), nullptr);
    }

    void widgetGoesWithItsModuleOnly_data() { kinds(); }
    void widgetGoesWithItsModuleOnly()
    {
        QFETCH(QString, kind);
        const Container c = makeContainer(kind);
        auto module = std::make_unique<kest::BModule>();
        kest::BModule other;
        QPointer<QWidget> gone(new QLabel);
        QPointer<QWidget> stays(new QLabel);
        QVERIFY(c.add(module.get(), "a", gone));
        QVERIFY(c.add(&other, "b", stays));
        module.reset();
        QCOMPARE(c.find("a"), nullptr);
        QVERIFY(!gone || !gone->parentWidget());
        deletePending();
        QVERIFY(!gone);
        QCOMPARE(c.find("b"), stays.data());
        QVERIFY(c.widget->isAncestorOf(stays));
    }

    void moduleMayDeleteItsWidgetInItsDestructor_data() { kinds(); }
    void moduleMayDeleteItsWidgetInItsDestructor()
    {
        QFETCH(QString, kind);
        const Container c = makeContainer(kind);
        auto module = std::make_unique<kest::BModule>();
        // A child of the module, like a plugin, that owns the widget which the container shows.
        struct Plugin : QObject {
            explicit Plugin(QObject *parent)
                : QObject(parent)
            {
            }
            ~Plugin() override { delete label; }
            QLabel *label = new QLabel;
        };
        auto *plugin = new Plugin(module.get());
        QVERIFY(c.add(module.get(), "a", plugin->label));
        module.reset();
        deletePending();
        QCOMPARE(c.find("a"), nullptr);
    }

    void keyIsFreeAgainAfterItsWidgetDied_data() { kinds(); }
    void keyIsFreeAgainAfterItsWidgetDied()
    {
        QFETCH(QString, kind);
        const Container c = makeContainer(kind);
        kest::BModule module;
        auto *label = new QLabel;
        QVERIFY(c.add(&module, "a", label));
        delete label;
        QCOMPARE(c.find("a"), nullptr);
        QVERIFY(c.add(&module, "a", new QLabel));
    }

    void removes_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<bool>("destroy");
        for (const char *kind : {"centre", "side", "status"}) {
            QTest::addRow("%s, kept", kind) << kind << false;
            QTest::addRow("%s, destroyed", kind) << kind << true;
        }
    }
    void removes()
    {
        QFETCH(QString, kind);
        QFETCH(bool, destroy);
        const Container c = makeContainer(kind);
        kest::BModule module;
        kest::BModule other;
        QPointer<QWidget> label(new QLabel);
        QVERIFY(c.add(&module, "a", label));
        QVERIFY(!c.remove(&other, "a", destroy));
        QVERIFY(!c.remove(&module, "unknown", destroy));
        QVERIFY(c.remove(&module, "a", destroy));
        QVERIFY(!c.remove(&module, "a", destroy));
        deletePending();
        QCOMPARE(label.isNull(), destroy);
        if (label) {
            QCOMPARE(label->parentWidget(), nullptr);
            QVERIFY(!label->isVisible());
        }
        delete label;
    }

    void diesBeforeItsModules_data() { kinds(); }
    void diesBeforeItsModules()
    {
        QFETCH(QString, kind);
        Container c = makeContainer(kind);
        auto module = std::make_unique<kest::BModule>();
        QVERIFY(c.add(module.get(), "a", new QLabel));
        QVERIFY(c.add(module.get(), "b", new QLabel));
        c.widget.reset();
        module.reset();
    }

    void centreSwitchesAndTells()
    {
        kest::CenterWidget centre;
        kest::BModule module;
        QSignalSpy keys(&centre, &kest::CenterWidget::currentKeyChanged);
        centre.addPage(&module, "a", new QLabel);
        centre.addPage(nullptr, "b", new QLabel);
        QCOMPARE(centre.currentKey(), QString("a"));
        QVERIFY(centre.switchTo(nullptr, "b"));
        QVERIFY(!centre.switchTo(nullptr, "c"));
        QCOMPARE(centre.currentKey(), QString("b"));
        QCOMPARE(centre.owner("a"), &module);
        QCOMPARE(centre.owner("b"), nullptr);
        QVERIFY(centre.removeItem(nullptr, "b", true));
        QCOMPARE(keys, (QList<QVariantList> {{"a"}, {"b"}, {"a"}}));
    }

    void refusedPageDoesNotFloatAboveTheCentre()
    {
        kest::CenterWidget centre;
        centre.addPage(nullptr, "a", new QLabel);
        auto *page = new QLabel(&centre);
        QVERIFY(!centre.addPage(nullptr, "a", page));
        centre.show();
        QVERIFY(!page->isVisible());
    }

    void noPageDictatesTheSizeOfThePanel()
    {
        kest::CenterWidget centre;
        auto *page = new QLabel;
        page->setMinimumSize(5000, 5000);
        centre.addPage(nullptr, "a", page);
        QVERIFY(centre.minimumSizeHint().width() <= 0);
    }

    void pluginItemsStandLeftOfTheHostsItems()
    {
        kest::StatusBar bar;
        kest::BModule module;
        auto *host = new QLabel("host");
        auto *first = new QLabel("first");
        auto *second = new QLabel("second");
        QVERIFY(bar.addBeforeItem(nullptr, "host", "", host));
        QVERIFY(bar.addBeforeItem(&module, "zeplet.demo.0", Stretch, first));
        QVERIFY(bar.addBeforeItem(&module, "zeplet.demo.1", Stretch, second));
        bar.resize(800, bar.height());
        bar.show();
        QVERIFY(first->x() < second->x());
        QVERIFY(second->geometry().right() < bar.item(Stretch)->x());
        QVERIFY(bar.item(Stretch)->geometry().right() < host->x());
    }

    void sideBarHidesWithItsLastPage()
    {
        kest::ExpandSideBar bar;
        QVERIFY(!bar.isVisible());
        auto module = std::make_unique<kest::BModule>();
        kest::BModule other;
        QVERIFY(bar.addPage(module.get(), "a", new QLabel));
        QVERIFY(bar.addPage(&other, "b", new QLabel));
        QVERIFY(bar.switchTo(module.get(), "a"));
        QVERIFY(!bar.isVisible());
        bar.show();
        module.reset();
        QVERIFY(bar.isVisible());
        QCOMPARE(bar.currentKey(), QString("b"));
        QVERIFY(bar.removePage(&other, "b", true));
        QVERIFY(!bar.isVisible());
    }

    void sideBarClosesByItsButton()
    {
        kest::ExpandSideBar bar;
        bar.addPage(nullptr, "a", new QLabel);
        bar.show();
        auto *close = bar.findChild<QToolButton *>("close");
        QVERIFY(close->width() >= 53 && close->height() >= 53);
        QTest::mouseClick(close, Qt::LeftButton);
        QVERIFY(!bar.isVisible());
    }

    void firstContainerAliveIsTheHosts()
    {
        QCOMPARE(instantiatedRightExpandSideWidget(), nullptr);
        {
            kest::ExpandSideBar bar;
            kest::ExpandSideBar second;
            QCOMPARE(instantiatedRightExpandSideWidget(), &bar);
        }
        QCOMPARE(instantiatedRightExpandSideWidget(), nullptr);

        auto centre = std::make_unique<kest::CenterWidget>();
        QCOMPARE(instantiatedCenterWidget(), centre.get());
        centre.reset();
        QVERIFY(instantiatedCenterWidget());
        QCOMPARE(instantiatedCenterWidget(), instantiatedCenterWidget());
        QCOMPARE(instantiatedStatusBar(nullptr), instantiatedStatusBar(nullptr));
        delete instantiatedCenterWidget();
        delete instantiatedStatusBar(nullptr);
    }

private:
    static void kinds()
    {
        QTest::addColumn<QString>("kind");
        for (const char *kind : {"centre", "side", "status"})
            QTest::newRow(kind) << kind;
    }
};

QTEST_MAIN(TestContainers)
#include "tst_containers.moc"
