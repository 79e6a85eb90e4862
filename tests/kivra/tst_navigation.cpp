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

} // namespace

class TestNavigation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { ignoreOffscreenNoise(); }

    void init() { QCOMPARE(storedTitles(), QStringList()); }
    void cleanup() { delete instantiatedCenterWidget(); }

    void entersPagesAtTheirIndex_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QStringList>("titles");
        QTest::newRow("append") << -1 << QStringList {"a", "b", "new"};
        QTest::newRow("first") << 0 << QStringList {"new", "a", "b"};
        QTest::newRow("between") << 1 << QStringList {"a", "new", "b"};
        QTest::newRow("beyond the end") << 99 << QStringList {"a", "b", "new"};
    }
    void entersPagesAtTheirIndex()
    {
        QFETCH(int, index);
        kest::BModule module;
        qo::kivra::registerPage(&module, "a", "robot.pack", "", -1);
        qo::kivra::registerPage(&module, "b", "robot.pack", "", -1);
        auto *node = qo::kivra::registerPage(&module, "new", "robot.pack", "home", index);
        QTEST(storedTitles(), "titles");
        QCOMPARE(node->getStr("title", ""), QString("new"));
        QCOMPARE(node->getStr("icon", ""), QString("home"));
        QCOMPARE(node->getStr("nav", "none"), QString(""));
    }

    void entriesGoWithTheirModuleWhateverHappenedToTheList()
    {
        kest::BModule stays;
        auto goes = std::make_unique<kest::BModule>();
        qo::kivra::registerPage(goes.get(), "a", "robot.pack", "", -1)
            ->set(nullptr, "nav", "a", true);
        qo::kivra::registerPage(&stays, "b", "robot.pack", "", -1)->set(nullptr, "nav", "b", true);
        qo::kivra::registerPage(&stays, "c", "robot.pack", "", -1)->set(nullptr, "nav", "c", true);
        qo::kivra::registerPage(goes.get(), "d", "robot.pack", "", -1)
            ->set(nullptr, "nav", "d", true);
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
        qo::kivra::registerPage(&module, "a", "robot.pack", "", -1)->set(nullptr, "nav", "a", true);
        auto *b = qo::kivra::registerPage(&module, "b", "robot.pack", "", -1);
        qo::kivra::registerPage(&module, "c", "robot.pack", "", -1)->set(nullptr, "nav", "c", true);
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
        qo::kivra::registerPage(&module, "a", "robot.pack", "", -1)
            ->set(nullptr, "nav", "zeplet.a", true);
        qo::kivra::registerPage(&module, "b", "robot.pack", "", -1)
            ->set(nullptr, "nav", "zeplet.b", true);
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
