#include <zeplet-test/testpanel.h>

#include <QFile>
#include <QPlainTextEdit>
#include <QTest>

using zeplet::test::TestPanel;

class TestSync : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bringsTheNoteThere();
};

void TestSync::bringsTheNoteThere()
{
    TestPanel panel;
    QVERIFY2(panel.start(), qPrintable(panel.problem()));
    QWidget *const page = panel.page("sync");
    QVERIFY2(page, qPrintable(panel.problem()));

    auto *note = page->findChild<QPlainTextEdit *>();
    note->setPlainText("Grease axis 3");
    QVERIFY2(panel.click(page, "Send all"), qPrintable(panel.problem()));
    QFile there(panel.controllerFile("notes/note.txt"));
    QVERIFY(there.open(QIODevice::ReadOnly));
    QCOMPARE(there.readAll(), QByteArray("Grease axis 3"));

    QFile(there.fileName()).remove();
    QVERIFY2(panel.click(page, "Send note"), qPrintable(panel.problem()));
    QVERIFY(QFile::exists(there.fileName()));
    note->setPlainText("Changed here");
    QVERIFY2(panel.click(page, "Fetch all"), qPrintable(panel.problem()));
    QCOMPARE(note->toPlainText(), QString("Grease axis 3"));

    QCOMPARE(panel.detach("sync"), QStringList());
}

QTEST_MAIN(TestSync)
#include "tst_sync.moc"
