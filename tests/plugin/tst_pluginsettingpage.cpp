#include "logcapture.h"
#include "offscreen.h"

#include <zeplet/plugin/pluginsettingpage.h>

#include <QGuiApplication>
#include <QLayout>
#include <QScreen>
#include <QTest>

using zeplet::PluginSettingPage;

namespace
{

struct Page : PluginSettingPage {
    Page()
        : PluginSettingPage("zeplet", "demo", nullptr, nullptr)
    {
    }

    QWidget *fullWidget()
    {
        auto *widget = new QWidget;
        createCenterWidget(widget);
        return changeFullWidget(true) ? widget : nullptr;
    }
};

} // namespace

class TestPluginSettingPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { ignoreOffscreenNoise(); }
    void thePageIsBare()
    {
        Page page;
        QVERIFY(page.titleWidget()->isHidden());
        QCOMPARE(page.contentWidget()->layout()->contentsMargins(), QMargins());
        QCOMPARE(page.autoSaveInterval(), 10000);
        QVERIFY(page.loadFromMobj());
    }

    void withoutACentreWidgetNothingChanges()
    {
        Page page;
        LogCapture log;
        QVERIFY(!page.changeFullWidget(true));
        QVERIFY(!page.changeFullWidget(false));
        QCOMPARE(log.take(), QStringList());
    }

    void aRoundTripRestoresTheWidget()
    {
        Page page;
        page.wgt()->show();
        auto *widget = new QWidget;
        widget->setStyleSheet("QWidget { color: red }");
        page.createCenterWidget(widget);
        QWidget *const parent = widget->parentWidget();
        const Qt::WindowFlags flags = widget->windowFlags();

        QVERIFY(page.changeFullWidget(true));
        QVERIFY(page.isFullWidget());
        QVERIFY(!widget->parentWidget());
        QVERIFY(widget->isVisible());
        QCOMPARE(int(widget->windowFlags()) & 0x4080b, 0x4080b);
        QCOMPARE(widget->geometry(), QGuiApplication::primaryScreen()->geometry());
        QCOMPARE(widget->styleSheet(), QString("QWidget { color: red }"));
        QCOMPARE(page.contentWidget()->layout()->count(), 0);

        QVERIFY(page.changeFullWidget(false));
        QVERIFY(!page.isFullWidget());
        QCOMPARE(widget->parentWidget(), parent);
        QCOMPARE(widget->windowFlags(), flags);
        QCOMPARE(widget->styleSheet(), QString("QWidget { color: red }"));
        QCOMPARE(page.contentWidget()->layout()->itemAt(0)->widget(), widget);
        QVERIFY(widget->isVisible());
    }

    void anUnchangedStateIsAnError()
    {
        Page page;
        QVERIFY(page.fullWidget());
        LogCapture log;
        QVERIFY(!page.changeFullWidget(true));
        QVERIFY(page.isFullWidget());
        QVERIFY(page.changeFullWidget(false));
        QVERIFY(!page.changeFullWidget(false));
        QVERIFY(!page.isFullWidget());
        QCOMPARE(log.take(),
                 QStringList({"E|<zeplet>Current FullWidget Type istrue! Change Failed!",
                              "E|<zeplet>Current FullWidget Type isfalse! Change Failed!"}));
    }

    void aWidgetThatDiedFullScreenLeavesNoTrace()
    {
        Page page;
        delete page.fullWidget();
        QVERIFY(!page.isFullWidget());
        QVERIFY(!page.changeFullWidget(false));
        QVERIFY(page.fullWidget());
        QVERIFY(page.changeFullWidget(false));
    }

    void aReplacedFullScreenWidgetComesBack()
    {
        Page page;
        QWidget *const widget = page.fullWidget();
        page.createCenterWidget(new QWidget);
        QVERIFY(!page.isFullWidget());
        QVERIFY(page.contentWidget()->isAncestorOf(widget));
    }

    void aWidgetOutlivesItsPageOnlyUntilItReturns()
    {
        Page page;
        const QPointer<QWidget> widget = page.fullWidget();
        delete page.wgt();
        QVERIFY(widget);
        QVERIFY(page.changeFullWidget(false));
        QVERIFY(!widget);
    }
};

QTEST_MAIN(TestPluginSettingPage)
#include "tst_pluginsettingpage.moc"
