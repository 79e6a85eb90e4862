#include "logcapture.h"
#include "offscreen.h"

#include <zeplet/plugin/pluginsettingpage.h>

#include <QGuiApplication>
#include <QLayout>
#include <QScreen>
#include <QTest>

using zeplet::PluginSettingPage;

class TestPluginSettingPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { ignoreOffscreenNoise(); }
    void thePageIsBare();
    void withoutACentreWidgetNothingChanges();
    void aRoundTripRestoresTheWidget();
    void anUnchangedStateIsAnError_data();
    void anUnchangedStateIsAnError();
    void aWidgetThatDiedFullScreenLeavesNoTrace();
    void aReplacedFullScreenWidgetComesBack();
    void aWidgetOutlivesItsPageOnlyUntilItReturns();
};

void TestPluginSettingPage::thePageIsBare()
{
    PluginSettingPage page(QStringLiteral("zeplet"), QStringLiteral("demo"), nullptr, nullptr);
    QVERIFY(page.titleWidget()->isHidden());
    QCOMPARE(page.contentWidget()->layout()->contentsMargins(), QMargins());
    QCOMPARE(page.autoSaveInterval(), 10000);
    QVERIFY(page.loadFromMobj());
}

void TestPluginSettingPage::withoutACentreWidgetNothingChanges()
{
    PluginSettingPage page(QStringLiteral("zeplet"), QStringLiteral("demo"), nullptr, nullptr);
    LogCapture log;
    QVERIFY(!page.changeFullWidget(true));
    QVERIFY(!page.changeFullWidget(false));
    QCOMPARE(log.take(), QStringList());
}

void TestPluginSettingPage::aRoundTripRestoresTheWidget()
{
    PluginSettingPage page(QStringLiteral("zeplet"), QStringLiteral("demo"), nullptr, nullptr);
    page.wgt()->show();
    auto *widget = new QWidget;
    widget->setStyleSheet(QStringLiteral("QWidget { color: red }"));
    page.createCenterWidget(widget);
    QWidget *const parent = widget->parentWidget();
    const Qt::WindowFlags flags = widget->windowFlags();

    QVERIFY(page.changeFullWidget(true));
    QVERIFY(page.isFullWidget());
    QVERIFY(!widget->parentWidget());
    QVERIFY(widget->isVisible());
    QCOMPARE(int(widget->windowFlags()) & 0x4080b, 0x4080b);
    QCOMPARE(widget->geometry(), QGuiApplication::primaryScreen()->geometry());
    QCOMPARE(widget->styleSheet(), QStringLiteral("QWidget { color: red }"));
    QCOMPARE(page.contentWidget()->layout()->count(), 0);

    QVERIFY(page.changeFullWidget(false));
    QVERIFY(!page.isFullWidget());
    QCOMPARE(widget->parentWidget(), parent);
    QCOMPARE(widget->windowFlags(), flags);
    QCOMPARE(widget->styleSheet(), QStringLiteral("QWidget { color: red }"));
    QCOMPARE(page.contentWidget()->layout()->itemAt(0)->widget(), widget);
    QVERIFY(widget->isVisible());
}

void TestPluginSettingPage::anUnchangedStateIsAnError_data()
{
    QTest::addColumn<bool>("full");
    QTest::addColumn<QString>("line");
    QTest::newRow("full screen") << true
                                 << "E|<zeplet>Current FullWidget Type istrue! Change Failed!";
    QTest::newRow("in its page") << false
                                 << "E|<zeplet>Current FullWidget Type isfalse! Change Failed!";
}

void TestPluginSettingPage::anUnchangedStateIsAnError()
{
    QFETCH(bool, full);
    QFETCH(QString, line);
    PluginSettingPage page(QStringLiteral("zeplet"), QStringLiteral("demo"), nullptr, nullptr);
    page.createCenterWidget(new QWidget);
    if (full)
        QVERIFY(page.changeFullWidget(true));
    LogCapture log;
    QVERIFY(!page.changeFullWidget(full));
    QCOMPARE(log.take(), QStringList {line});
    QCOMPARE(page.isFullWidget(), full);
    if (full)
        QVERIFY(page.changeFullWidget(false));
}

void TestPluginSettingPage::aWidgetThatDiedFullScreenLeavesNoTrace()
{
    PluginSettingPage page(QStringLiteral("zeplet"), QStringLiteral("demo"), nullptr, nullptr);
    auto *widget = new QWidget;
    page.createCenterWidget(widget);
    QVERIFY(page.changeFullWidget(true));
    delete widget;
    QVERIFY(!page.isFullWidget());
    QVERIFY(!page.changeFullWidget(false));

    page.createCenterWidget(new QWidget);
    QVERIFY(page.changeFullWidget(true));
    QVERIFY(page.changeFullWidget(false));
}

void TestPluginSettingPage::aReplacedFullScreenWidgetComesBack()
{
    PluginSettingPage page(QStringLiteral("zeplet"), QStringLiteral("demo"), nullptr, nullptr);
    auto *widget = new QWidget;
    page.createCenterWidget(widget);
    QVERIFY(page.changeFullWidget(true));
    page.createCenterWidget(new QWidget);
    QVERIFY(!page.isFullWidget());
    QVERIFY(page.contentWidget()->isAncestorOf(widget));
}

void TestPluginSettingPage::aWidgetOutlivesItsPageOnlyUntilItReturns()
{
    PluginSettingPage page(QStringLiteral("zeplet"), QStringLiteral("demo"), nullptr, nullptr);
    QPointer<QWidget> widget = new QWidget;
    page.createCenterWidget(widget);
    QVERIFY(page.changeFullWidget(true));
    delete page.wgt();
    QVERIFY(widget);
    QVERIFY(page.changeFullWidget(false));
    QVERIFY(!widget);
}

QTEST_MAIN(TestPluginSettingPage)
#include "tst_pluginsettingpage.moc"
