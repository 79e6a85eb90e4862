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

std::vector<Container> containers()
{
    auto *centre = new kest::CenterWidget;
    auto *side = new kest::ExpandSideBar;
    auto *status = new kest::StatusBar;
    std::vector<Container> all;
    all.push_back({std::unique_ptr<QWidget>(centre),
                   [=](auto *m, auto k, auto *w) { return centre->addPage(m, k, w); },
                   [=](auto *m, auto k, bool d) { return centre->removeItem(m, k, d); },
                   [=](auto k) { return centre->page(k); }});
    all.push_back({std::unique_ptr<QWidget>(side),
                   [=](auto *m, auto k, auto *w) { return side->addPage(m, k, w); },
                   [=](auto *m, auto k, bool d) { return side->removePage(m, k, d); },
                   [=](auto k) { return side->page(k); }});
    all.push_back(
        {std::unique_ptr<QWidget>(status),
         [=](auto *m, auto k, auto *w) { return status->addBeforeItem(m, k, Stretch, w); },
         [=](auto *m, auto k, bool d) { return status->removeItem(m, k, d); },
         [=](auto k) { return status->item(k); }});
    return all;
}

} // namespace

class TestContainers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { ignoreOffscreenNoise(); }

    void refusesWhatItCannotKeep()
    {
        for (const Container &c : containers()) {
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
    }

    void widgetGoesWithItsModuleOnly()
    {
        for (const Container &c : containers()) {
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
    }

    void moduleMayDeleteItsWidgetInItsDestructor()
    {
        for (const Container &c : containers()) {
            auto module = std::make_unique<kest::BModule>();
            // A child of the module, like a plugin, that owns the widget which the container shows.
            auto *plugin = new QObject(module.get());
            auto *label = new QLabel;
            connect(plugin, &QObject::destroyed, [label] { delete label; });
            QVERIFY(c.add(module.get(), "a", label));
            module.reset();
            deletePending();
            QCOMPARE(c.find("a"), nullptr);
        }
    }

    void keyIsFreeAgainAfterItsWidgetDied()
    {
        for (const Container &c : containers()) {
            kest::BModule module;
            auto *label = new QLabel;
            QVERIFY(c.add(&module, "a", label));
            delete label;
            QCOMPARE(c.find("a"), nullptr);
            QVERIFY(c.add(&module, "a", new QLabel));
        }
    }

    void removes()
    {
        for (const bool destroy : {false, true}) {
            for (const Container &c : containers()) {
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
                QVERIFY(destroy || (!label->parentWidget() && !label->isVisible()));
                delete label;
            }
        }
    }

    void diesBeforeItsModules()
    {
        auto all = containers();
        for (Container &c : all) {
            kest::BModule module;
            QVERIFY(c.add(&module, "a", new QLabel));
            QVERIFY(c.add(&module, "b", new QLabel));
            c.widget.reset();
        }
    }

    void centreSwitchesAndTells()
    {
        kest::CenterWidget centre;
        kest::BModule module;
        QSignalSpy keys(&centre, &kest::CenterWidget::currentKeyChanged);
        centre.addPage(&module, "a", new QLabel);
        centre.addPage(nullptr, "b", new QLabel);
        QVERIFY(centre.switchTo(nullptr, "b"));
        QVERIFY(!centre.switchTo(nullptr, "c"));
        QCOMPARE(centre.currentKey(), QString("b"));
        QCOMPARE(centre.owner("a"), &module);
        QVERIFY(centre.removeItem(nullptr, "b", true));
        QCOMPARE(keys, (QList<QVariantList> {{"a"}, {"b"}, {"a"}}));
    }

    void noPageDictatesTheSizeOfThePanelNorFloatsAboveIt()
    {
        kest::CenterWidget centre;
        auto *page = new QLabel;
        page->setMinimumSize(5000, 5000);
        centre.addPage(nullptr, "a", page);
        QVERIFY(centre.minimumSizeHint().width() <= 0);
        auto *refused = new QLabel(&centre);
        QVERIFY(!centre.addPage(nullptr, "a", refused));
        centre.show();
        QVERIFY(!refused->isVisible());
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

    void sideBarHidesWithItsLastPageOrByItsButton()
    {
        kest::ExpandSideBar bar;
        auto module = std::make_unique<kest::BModule>();
        kest::BModule other;
        QVERIFY(bar.addPage(module.get(), "a", new QLabel));
        QVERIFY(bar.addPage(&other, "b", new QLabel));
        QVERIFY(bar.switchTo(module.get(), "a"));
        QVERIFY(!bar.isVisible());
        bar.show();
        auto *close = bar.findChild<QToolButton *>("close");
        QVERIFY(close->width() >= 53 && close->height() >= 53);
        QTest::mouseClick(close, Qt::LeftButton);
        QVERIFY(!bar.isVisible());
        bar.show();
        module.reset();
        QVERIFY(bar.isVisible());
        QCOMPARE(bar.currentKey(), QString("b"));
        QVERIFY(bar.removePage(&other, "b", true));
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
};

QTEST_MAIN(TestContainers)
#include "tst_containers.moc"
