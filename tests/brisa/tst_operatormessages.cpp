#include "offscreen.h"

#include <brisa/logbanner.h>
#include <brisa/managerhelper.h>
#include <brisa/modalcounter.h>
#include <kest/bmodule.h>
#include <ostrel/moduleobject.h>

#include <QAbstractItemModel>
#include <QListView>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

using namespace brisa;

namespace
{
class NamedModule : public kest::BModule
{
public:
    NamedModule() { bindMobj("ostrel.zeplet.demo"); }
};

QAbstractItemModel *historyOf(LogBanner &banner)
{
    return banner.findChild<QAbstractItemModel *>();
}

ostrel::ModuleObject *modalCount()
{
    return m(mName("brisa.msg", "_"));
}

} // namespace

class TestOperatorMessages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { ignoreOffscreenNoise(); }

    void bannerShowsWhatIsThrown()
    {
        const std::pair<QString, QString> rows[]
            = {{"info", "info"}, {"warning", "warning"}, {"error", "error"}, {"shout", "info"}};
        QSet<QRgb> colours;
        for (const auto &[level, shown] : rows) {
            LogBanner banner;
            banner.resize(600, banner.height());
            NamedModule module;
            ManagerHelper::throwLog(&module, level, "the text");
            QTRY_COMPARE(banner.message(), QString("the text"));
            QCOMPARE(banner.level(), shown);
            for (const char *other : {"info", "warning", "error"})
                QCOMPARE(banner.count(other), shown == other ? 1 : 0);
            QVERIFY(historyOf(banner)->index(0, 0).data().toString().endsWith("demo:  the text"));
            colours.insert(banner.grab().toImage().pixel(5, banner.height() / 2));
        }
        QCOMPARE(colours.size(), 3);
    }

    void historyIsBoundedAndCountsRepeatedMessages()
    {
        LogBanner banner;
        for (int i = 0; i < 3; ++i)
            banner.addMessage(nullptr, "warning", "again");
        banner.addMessage(nullptr, "error", "again");
        QCOMPARE(historyOf(banner)->rowCount(), 2);
        QVERIFY(historyOf(banner)->index(1, 0).data().toString().endsWith("again  (3x)"));
        QCOMPARE(banner.count("warning"), 3);
        for (int i = 0; i < 700; ++i)
            banner.addMessage(nullptr, "error", QString::number(i));
        QCOMPARE(historyOf(banner)->rowCount(), 500);
        QCOMPARE(banner.message(), QString("699"));
        QCOMPARE(banner.count("error"), 701);
    }

    void historyOpensAboveTheBannerAndIsCleared()
    {
        QWidget window;
        window.resize(800, 600);
        LogBanner banner(&window);
        banner.setGeometry(0, 600 - banner.height(), 800, banner.height());
        window.show();
        banner.addMessage(nullptr, "error", "text");
        QTest::mouseClick(&banner, Qt::LeftButton, {}, QPoint(100, 20));
        QVERIFY(banner.isHistoryVisible());
        auto *panel = window.findChild<QWidget *>("logHistory");
        QCOMPARE(panel->geometry().bottom() + 1, banner.y());
        auto *clearButton = panel->findChild<QPushButton *>();
        QVERIFY(clearButton->height() >= 53);
        QTest::mouseClick(clearButton, Qt::LeftButton);
        QCOMPARE(banner.message(), QString());
        QCOMPARE(banner.count("error"), 0);
        QTest::mouseClick(&banner, Qt::LeftButton, {}, QPoint(100, 20));
        QVERIFY(!banner.isHistoryVisible());
    }

    void windowMayGoWithTheHistoryOpen()
    {
        auto window = std::make_unique<QWidget>();
        auto *banner = new LogBanner(window.get());
        window->show();
        banner->setHistoryVisible(true);
        window.reset();
    }

    void modalCountDimsThePanelWhichStillTakesInput()
    {
        QWidget panel;
        panel.resize(400, 300);
        QPushButton button("stop", &panel);
        button.resize(100, 60);
        panel.show();
        ModalCounter counter(&panel);
        // The last of them is lowered once too often.
        for (const int value : {1, 3, 0, 2, -1}) {
            modalCount()->set(nullptr, value);
            QCOMPARE(counter.count(), qMax(value, 0));
            QCOMPARE(counter.isVisible(), value > 0);
            QCOMPARE(panel.childAt(20, 20), &button);
            panel.resize(panel.width() + 100, 400);
            QVERIFY(value <= 0 || counter.geometry() == panel.rect());
        }
        modalCount()->set(nullptr, 0);
    }
};

QTEST_MAIN(TestOperatorMessages)
#include "tst_operatormessages.moc"
