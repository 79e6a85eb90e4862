#include "logcapture.h"
#include "offscreen.h"
#include "recordingplugin.h"
#include "testcolumns.h"

#include <kest/expandsidebar.h>
#include <kivra/physicalbuttonbar.h>
#include <ostrel/moduleobject.h>
#include <zeplet/plugin/uiservices.h>

#include <QAbstractButton>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>
#include <functional>

using namespace zeplet;

using Service = std::function<int(const QString &)>;
Q_DECLARE_METATYPE(Service)

namespace
{

QWidget *newWidget()
{
    return new QWidget;
}

} // namespace

class TestUiServices : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { ignoreOffscreenNoise(); }
    void eachServiceReturnsItsCodes_data()
    {
        const auto row = testcolumns<QString, int, Service>("printedKey", "done", "service");
        const QString longKey = "ostrel.zeplet.absent";
        const QString shortKey = "ostrel.absent";
        const auto widget = [](const QString &n) { return n == "ui" ? newWidget() : nullptr; };

        row("CreateCenterWidget", shortKey, 0,
            [](auto &n) { return CreateCenterWidget(n, nullptr); });
        row("CreateStatusBar, added", longKey, 1,
            [=](auto &n) { return CreateStatusBar(n, widget(n), 1); });
        row("CreateStatusBar, refused", longKey, 0,
            [](auto &n) { return CreateStatusBar(n, nullptr, 2); });
        row("CreateRightExpandWidgte, added", shortKey, 0,
            [=](auto &n) { return CreateRightExpandWidgte(n, widget(n), {}); });
        row("CreateRightExpandWidgte, refused", shortKey, -1,
            [](auto &n) { return CreateRightExpandWidgte(n, nullptr, {}); });
        row("SwitchRightExpandWidgte", shortKey, 0,
            [](auto &n) { return SwitchRightExpandWidgte(n, {}); });
        row("ChangePhyButtonStatus", longKey, 0,
            [](auto &n) { return ChangePhyButtonStatus(n, "page", true); });
        row("ChangeModelWindowStatus, unchanged", longKey, 0,
            [](auto &n) { return ChangeModelWindowStatus(n, false); });
        row("ChangeFullScreen, refused", longKey, 0,
            [](auto &n) { return ChangeFullScreen(n, true); });
        row("ThrowLog", shortKey, 0, [](auto &n) { return ThrowLog(n, ThrowLogInfo, "text"); });
        row("CreatePhyButtonList, empty lists", longKey, 0,
            [](auto &n) { return CreatePhyButtonList(n, "page", {}, {}, {}); });
        row("GetPluginDataPath", shortKey, 0, [](auto &n) {
            QString path;
            return GetPluginDataPath(path, n);
        });
    }

    void eachServiceReturnsItsCodes()
    {
        QFETCH(QString, printedKey);
        QFETCH(int, done);
        QFETCH(Service, service);
        kest::ExpandSideBar side;
        MadeModule made("ui");
        LogCapture log;

        const bool hidesWithoutName = QTest::currentDataTag() == QString("SwitchRightExpandWidgte");
        QCOMPARE(service(QString()), hidesWithoutName ? 0 : -1);
        QCOMPARE(log.ofLevel("E"), QStringList());

        QCOMPARE(service("absent"), -2);
        QCOMPARE(log.ofLevel("E"),
                 QStringList("<zeplet interfacemanager>" + printedKey + " unuseful"));
        log.take();

        QCOMPARE(service("ui"), done);
        QCOMPARE(log.ofLevel("E"), QStringList());
    }

    void aModuleOfAnotherKindIsNone()
    {
        struct Foreign : kest::BModule {
            Foreign() { bindMobj("ostrel.zeplet.foreign"); }
        } foreign;
        LogCapture log;
        QCOMPARE(ChangeFullScreen("foreign", true), -2);
        QCOMPARE(log.take().size(), 1);
    }

    void physicalKeysReachThePanel()
    {
        MadeModule made("keys");
        qo::kivra::PhysicalButtonBar bar(Qt::Horizontal);
        QVector<bool> states;
        const PhysicalButton key {"Grip", QString(), QString(),
                                  [&](bool down) { states.append(down); }};
        QCOMPARE(CreatePhyButtonList("keys", "page", {key}, {}, {}), 0);
        QTRY_COMPARE(bar.currentPage(), "page");
        const auto grip = [&bar]() -> QAbstractButton * {
            for (auto *button : bar.findChildren<QAbstractButton *>()) {
                if (button->text() == QLatin1String("Grip"))
                    return button;
            }
            return nullptr;
        };

        QCOMPARE(ChangePhyButtonStatus("keys", "page", false), 0);
        QTRY_VERIFY(grip() && !grip()->isEnabled());
        QCOMPARE(ChangePhyButtonStatus("keys", "page", true), 0);
        QTRY_VERIFY(grip() && grip()->isEnabled());
        QTest::mouseClick(grip(), Qt::LeftButton);
        QCOMPARE(states, QVector<bool>({true, false}));
    }

    void iconsAreLoadedFromTheirPaths()
    {
        QTemporaryDir directory;
        const auto picture = [&directory](const QString &colour) {
            QImage image(48, 48, QImage::Format_RGB32);
            image.fill(QColor(colour));
            const QString path = directory.filePath(colour + ".png");
            return image.save(path) ? path : QString();
        };
        MadeModule made("icons");
        qo::kivra::PhysicalButtonBar bar(Qt::Horizontal);
        const PhysicalButton key {{}, picture("red"), picture("lime"), {}};
        CreatePhyButtonList("icons", "icons", {key}, {}, {});
        QTRY_COMPARE(bar.currentPage(), QStringLiteral("icons"));
        const auto buttons = bar.findChildren<QAbstractButton *>();
        const auto found = std::find_if(buttons.begin(), buttons.end(), [](auto *button) {
            return button->objectName().isEmpty();
        });
        QVERIFY(found != buttons.end());
        const auto colour = [button = *found] {
            return button->grab().toImage().pixelColor(button->rect().center());
        };

        QCOMPARE(colour(), QColor("red"));
        QTest::mousePress(*found, Qt::LeftButton);
        QCOMPARE(colour(), QColor("lime"));
        QTest::mouseRelease(*found, Qt::LeftButton);
    }

    void switchingWithoutANameHidesTheSideBar()
    {
        kest::ExpandSideBar side;
        side.show();
        QCOMPARE(SwitchRightExpandWidgte(QString(), "any"), 0);
        QVERIFY(side.isHidden());

        QWidget *found = nullptr;
        QCOMPARE(GetRightExpandSideBar(&found), 0);
        QCOMPARE(found, &side);
    }

    void theSideBarMayBeMissing()
    {
        MadeModule made("barless");
        QWidget *found = newWidget();
        const std::unique_ptr<QWidget> page(found);
        LogCapture log;

        QCOMPARE(CreateRightExpandWidgte("barless", page.get(), {}), -1);
        QCOMPARE(log.take(), QStringList {"E|<zeplet> the right side bar is null"});
        QCOMPARE(SwitchRightExpandWidgte("barless", {}), 0);
        QCOMPARE(SwitchRightExpandWidgte({}, {}), 0);
        QCOMPARE(GetRightExpandSideBar(&found), 0);
        QCOMPARE(found, nullptr);
        QCOMPARE(GetRightExpandSideBar(nullptr), -1);
    }

    void dataPathsStayInTheirDirectory()
    {
        const QPair<QString, QString> rows[] = {{"demo", "zeplets/client/demo/"},
                                                {"%1", "zeplets/client/%1/"},
                                                {"..", ""},
                                                {"../../etc", ""},
                                                {"..\\etc", ""}};
        for (const auto &[name, path] : rows) {
            LogCapture log; // the host has no resource alias for such names, and says so
            Zeplet module(name, nullptr);
            QString found;
            QCOMPARE(GetPluginDataPath(found, name), path.isEmpty() ? -1 : 0);
            QCOMPARE(found, path);
        }
    }
};

QTEST_MAIN(TestUiServices)
#include "tst_uiservices.moc"
