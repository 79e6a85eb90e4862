#include <zeplet-test/testpanel.h>

#include <QListWidget>
#include <QTest>

using zeplet::test::TestPanel;

class TestFrames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void followsTheLists();
};

void TestFrames::followsTheLists()
{
    TestPanel panel;
    QVERIFY2(panel.start(), qPrintable(panel.problem()));
    QWidget *const page = panel.page("frames");
    QVERIFY2(page, qPrintable(panel.problem()));

    const auto lists = page->findChildren<QListWidget *>();
    QCOMPARE(lists.size(), 4);
    QTRY_VERIFY(!lists[0]->findItems("tool0", Qt::MatchExactly).isEmpty());
    panel.control("frame set tool project torch 0 0 120 0 45 0");
    QTRY_VERIFY(!lists[0]->findItems("torch", Qt::MatchExactly).isEmpty());

    QCOMPARE(panel.detach("frames"), QStringList());
}

QTEST_MAIN(TestFrames)
#include "tst_frames.moc"
