#include <zeplet-test/testpanel.h>

#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>

using zeplet::test::TestPanel;

class TestProjects : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void makesAndRemovesProjects();
};

void TestProjects::makesAndRemovesProjects()
{
    TestPanel panel;
    QVERIFY2(panel.start(), qPrintable(panel.problem()));
    QWidget *const page = panel.page("projects");
    QVERIFY2(page, qPrintable(panel.problem()));

    auto *list = page->findChild<QListWidget *>();
    QCOMPARE(list->count(), 1); // the one that the test kit opened
    page->findChild<QLineEdit *>()->setText("second");
    QVERIFY2(panel.click(page, "Create"), qPrintable(panel.problem()));
    QTRY_COMPARE(list->count(), 2);
    QVERIFY(QFile::exists(panel.panelFile("projectinfo.json")));
    QVERIFY(panel.panelFile("").contains("second"));

    list->setCurrentRow(list->row(list->findItems("test", Qt::MatchStartsWith).value(0)));
    QVERIFY2(panel.click(page, "Remove"), qPrintable(panel.problem())); // asks
    QCOMPARE(list->count(), 2);
    QVERIFY2(panel.click(page, "Remove"), qPrintable(panel.problem()));
    QTRY_COMPARE(list->count(), 1);

    QCOMPARE(panel.detach("projects"), QStringList());
}

QTEST_MAIN(TestProjects)
#include "tst_projects.moc"
