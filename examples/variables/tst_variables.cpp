#include <zeplet-test/testpanel.h>

#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>

using zeplet::test::TestPanel;

class TestVariables : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void addsAndDeletes();
};

void TestVariables::addsAndDeletes()
{
    TestPanel panel;
    QVERIFY2(panel.start(), qPrintable(panel.problem()));
    QWidget *const page = panel.page("variables");
    QVERIFY2(page, qPrintable(panel.problem()));

    const auto fields = page->findChildren<QLineEdit *>();
    auto *list = page->findChild<QListWidget *>();
    for (const char *name : {"count", "limit"}) {
        fields[0]->setText(name);
        fields[1]->setText("5");
        QVERIFY2(panel.click(page, "Add"), qPrintable(panel.problem()));
    }
    QCOMPARE(list->count(), 2);
    QVERIFY(QFile::exists(panel.controllerFile("var.json")));

    fields[1]->setText("8");
    QVERIFY2(panel.click(page, "Change"), qPrintable(panel.problem()));
    QCOMPARE(list->findItems("limit = 8", Qt::MatchExactly).size(), 1);
    list->selectAll();
    QVERIFY2(panel.click(page, "Delete"), qPrintable(panel.problem()));
    QCOMPARE(list->count(), 0);

    QCOMPARE(panel.detach("variables"), QStringList());
}

QTEST_MAIN(TestVariables)
#include "tst_variables.moc"
