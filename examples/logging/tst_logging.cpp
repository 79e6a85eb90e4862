#include <zeplet-test/testpanel.h>

#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QTest>

using zeplet::test::TestPanel;

class TestLogging : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsNotes();
};

void TestLogging::keepsNotes()
{
    TestPanel panel;
    QVERIFY2(panel.start(), qPrintable(panel.problem()));
    QWidget *const page = panel.page("logging");
    QVERIFY2(page, qPrintable(panel.problem()));

    auto *files = page->findChild<QListWidget *>();
    for (const char *button : {"Note", "Problem"}) {
        page->findChild<QLineEdit *>()->setText("Belt squeaks");
        QVERIFY2(panel.click(page, button), qPrintable(panel.problem()));
    }
    QVERIFY2(panel.click(page, "Record state"), qPrintable(panel.problem()));
    const auto logbooks = files->findItems("logbook_", Qt::MatchStartsWith);
    QCOMPARE(logbooks.size(), 1);
    QCOMPARE(files->findItems("robotstate_", Qt::MatchStartsWith).size(), 1);
    files->setCurrentItem(logbooks.first());
    const QString text = page->findChild<QPlainTextEdit *>()->toPlainText();
    QVERIFY2(text.contains("note: Belt squeaks") && text.contains("problem: Belt squeaks"),
             qPrintable(text));

    QVERIFY2(panel.click(page, "Remove file"), qPrintable(panel.problem()));
    QVERIFY(files->findItems("logbook_", Qt::MatchStartsWith).isEmpty());

    QCOMPARE(panel.detach("logging"), QStringList());
}

QTEST_MAIN(TestLogging)
#include "tst_logging.moc"
