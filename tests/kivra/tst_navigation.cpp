#include "offscreen.h"

#include <kest/bmodule.h>
#include <kest/centerwidget.h>
#include <kivra/navigation.h>
#include <kivra/navigationbar.h>
#include <ostrel/moduleobject.h>

#include <QAbstractButton>
#include <QJsonArray>
#include <QJsonObject>
#include <QLabel>
#include <QtTest>

namespace
{
ostrel::ModuleObject *packList()
{
    return m("kivra.page.robot.page.pack.page");
}

QStringList storedTitles(ostrel::ModuleObject *list = packList())
{
    QStringList titles;
    for (const QJsonValue &page : list->exportToJson(true).toArray())
        titles.append(page.toObject().value("title").toString());
    return titles;
}

QStringList shownTitles(const qo::kivra::NavigationBar &bar)
{
    QList<QAbstractButton *> items;
    for (auto *item : bar.findChildren<QAbstractButton *>()) {
        if (item->isVisibleTo(&bar))
            items.append(item);
    }
    std::sort(items.begin(), items.end(), [](auto *a, auto *b) { return a->y() < b->y(); });
    QStringList titles;
    for (auto *item : items)
        titles.append(item->text());
    return titles;
}

/** Takes an entry out the way a plugin's module does: the whole list is exported and rewritten. */
void rewriteWithout(const QString &nav)
{
    QJsonArray pages = packList()->exportToJson(true).toArray();
    for (int i = 0; i < pages.size(); ++i) {
        if (pages.at(i).toObject().value("nav").toString() == nav) {
            pages.removeAt(i);
            break;
        }
    }
    packList()->importFromJson(nullptr, pages, true, true, true);
}

ostrel::ModuleObject *enter(kest::BModule *module, const QString &nav)
{
    ostrel::ModuleObject *entry = qo::kivra::registerPage(module, nav, "robot.pack", "", -1);
    entry->set(nullptr, "nav", nav, true);
    return entry;
}

} // namespace

class TestNavigation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { ignoreOffscreenNoise(); }

    void init() { QCOMPARE(storedTitles(), QStringList()); }
    void cleanup() { delete instantiatedCenterWidget(); }

    void entersPagesAtTheirIndex()
    {
        const std::pair<int, QStringList> rows[] = {{-1, {"a", "b", "new"}},
                                                    {0, {"new", "a", "b"}},
                                                    {1, {"a", "new", "b"}},
                                                    {99, {"a", "b", "new"}}};
        for (const auto &[index, titles] : rows) {
            kest::BModule module;
            qo::kivra::registerPage(&module, "a", "robot.pack", "", -1);
            qo::kivra::registerPage(&module, "b", "robot.pack", "", -1);
            auto *node = qo::kivra::registerPage(&module, "new", "robot.pack", "home", index);
            QCOMPARE(storedTitles(), titles);
            QCOMPARE(node->getStr("title", ""), QString("new"));
            QCOMPARE(node->getStr("icon", ""), QString("home"));
            QCOMPARE(node->getStr("nav", "none"), QString(""));
        }
    }

    void entriesGoWithTheirModuleWhateverHappenedToTheList()
    {
        kest::BModule stays;
        auto goes = std::make_unique<kest::BModule>();
        enter(goes.get(), "a");
        enter(&stays, "b");
        enter(&stays, "c");
        enter(goes.get(), "d");
        qo::kivra::registerPage(goes.get(), "e", "robot.home", "", -1);
        rewriteWithout("a"); // every other entry moves up, into other nodes
        goes.reset();
        QCOMPARE(storedTitles(), (QStringList {"b", "c"}));
        QCOMPARE(storedTitles(m("kivra.page.robot.page.home.page")), QStringList());
    }

    void barFollowsTheStore()
    {
        kest::BModule module;
        qo::kivra::NavigationBar bar;
        bar.resize(200, 600);
        bar.show();
        QCOMPARE(shownTitles(bar), QStringList());
        enter(&module, "a");
        auto *b = enter(&module, "b");
        enter(&module, "c");
        QTRY_COMPARE(shownTitles(bar), (QStringList {"a", "b", "c"}));
        b->set(nullptr, "title", "renamed", true);
        QTRY_COMPARE(shownTitles(bar), (QStringList {"a", "renamed", "c"}));
        rewriteWithout("a");
        QTRY_COMPARE(shownTitles(bar), (QStringList {"renamed", "c"}));
        // The watch holds on nodes that came with the rewriting.
        packList()->r("#1")->set(nullptr, "title", "last", true);
        QTRY_COMPARE(shownTitles(bar), (QStringList {"renamed", "last"}));
    }

    void barShowsThePageOfAnEntry()
    {
        kest::CenterWidget &centre = *instantiatedCenterWidget();
        kest::BModule module;
        centre.addPage(&module, "zeplet.a", new QLabel);
        centre.addPage(&module, "zeplet.b", new QLabel);
        qo::kivra::NavigationBar bar;
        bar.resize(200, 600);
        bar.show();
        enter(&module, "zeplet.a");
        enter(&module, "zeplet.b");
        qo::kivra::registerPage(&module, "no page", "robot.pack", "", -1);
        QTRY_COMPARE(shownTitles(bar).size(), 3);
        auto *b = bar.findChild<QAbstractButton *>("zeplet.b");
        QVERIFY(b->height() >= 53);
        QTest::mouseClick(b, Qt::LeftButton);
        QCOMPARE(centre.currentKey(), QString("zeplet.b"));
        QVERIFY(b->isChecked());
        centre.switchTo(nullptr, "zeplet.a");
        QVERIFY(!b->isChecked());
        QVERIFY(bar.findChild<QAbstractButton *>("zeplet.a")->isChecked());
        for (auto *item : bar.findChildren<QAbstractButton *>())
            QCOMPARE(item->isEnabled(), item->text() != "no page");
    }
};

QTEST_MAIN(TestNavigation)
#include "tst_navigation.moc"
