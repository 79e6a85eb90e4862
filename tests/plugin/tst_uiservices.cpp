#include "logcapture.h"
#include "offscreen.h"
#include "recordingplugin.h"

#include <kest/expandsidebar.h>
#include <kivra/physicalbuttonbar.h>
#include <ostrel/moduleobject.h>
#include <zeplet/plugin/uiservices.h>

#include <QAbstractButton>
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
    void eachServiceReturnsItsCodes_data();
    void eachServiceReturnsItsCodes();
    void aModuleOfAnotherKindIsNone();
    void physicalKeysReachThePanel();
    void switchingWithoutANameHidesTheSideBar();
    void theSideBarMayBeMissing();
    void dataPathsStayInTheirDirectory_data();
    void dataPathsStayInTheirDirectory();
    void theVersionHasFourParts();
};

void TestUiServices::eachServiceReturnsItsCodes_data()
{
    QTest::addColumn<Service>("service");
    QTest::addColumn<int>("emptyName");
    QTest::addColumn<QString>("printedKey");
    QTest::addColumn<int>("done");
    const QString longKey = QStringLiteral("ostrel.zeplet.absent");
    const QString shortKey = QStringLiteral("ostrel.absent");
    const auto row
        = [](const char *name, Service service, const QString &key, int done, int emptyName = -1) {
              QTest::newRow(name) << service << emptyName << key << done;
          };

    row(
        "CreateCenterWidget", [](auto &n) { return CreateCenterWidget(n, nullptr); }, shortKey, 0);
    row(
        "CreateStatusBar, added",
        [](auto &n) {
            return CreateStatusBar(n, n == QLatin1String("ui") ? newWidget() : nullptr, 1);
        },
        longKey, 1);
    row(
        "CreateStatusBar, refused", [](auto &n) { return CreateStatusBar(n, nullptr, 2); }, longKey,
        0);
    row(
        "CreateRightExpandWidgte, added",
        [](auto &n) {
            return CreateRightExpandWidgte(n, n == QLatin1String("ui") ? newWidget() : nullptr, {});
        },
        shortKey, 0);
    row(
        "CreateRightExpandWidgte, refused",
        [](auto &n) { return CreateRightExpandWidgte(n, nullptr, {}); }, shortKey, -1);
    row(
        "SwitchRightExpandWidgte", [](auto &n) { return SwitchRightExpandWidgte(n, {}); }, shortKey,
        0, 0);
    row(
        "ChangePhyButtonStatus",
        [](auto &n) { return ChangePhyButtonStatus(n, QStringLiteral("page"), true); }, longKey, 0);
    row(
        "ChangeModelWindowStatus, unchanged",
        [](auto &n) { return ChangeModelWindowStatus(n, false); }, longKey, 0);
    row(
        "ChangeFullScreen, refused", [](auto &n) { return ChangeFullScreen(n, true); }, longKey, 0);
    row(
        "ThrowLog", [](auto &n) { return ThrowLog(n, ThrowLogInfo, QStringLiteral("text")); },
        shortKey, 0);
    row(
        "CreatePhyButtonList, empty lists",
        [](auto &n) { return CreatePhyButtonList(n, QStringLiteral("page"), {}, {}, {}); }, longKey,
        0);
    row(
        "GetPluginDataPath",
        [](auto &n) {
            QString path;
            return GetPluginDataPath(path, n);
        },
        shortKey, 0);
}

void TestUiServices::eachServiceReturnsItsCodes()
{
    QFETCH(Service, service);
    QFETCH(int, emptyName);
    QFETCH(QString, printedKey);
    QFETCH(int, done);
    kest::ExpandSideBar side;
    MadeModule made(QStringLiteral("ui"));
    LogCapture log;

    QCOMPARE(service(QString()), emptyName);
    QCOMPARE(log.ofLevel(QStringLiteral("E")), QStringList());

    QCOMPARE(service(QStringLiteral("absent")), -2);
    QCOMPARE(log.ofLevel(QStringLiteral("E")),
             QStringList {QStringLiteral("<zeplet interfacemanager>%1 unuseful").arg(printedKey)});
    log.take();

    QCOMPARE(service(QStringLiteral("ui")), done);
    QCOMPARE(log.ofLevel(QStringLiteral("E")), QStringList());
}

void TestUiServices::aModuleOfAnotherKindIsNone()
{
    struct Foreign : kest::BModule {
        Foreign() { bindMobj(QStringLiteral("ostrel.zeplet.foreign")); }
    } foreign;
    LogCapture log;
    QCOMPARE(ChangeFullScreen(QStringLiteral("foreign"), true), -2);
    QCOMPARE(log.take().size(), 1);
}

void TestUiServices::physicalKeysReachThePanel()
{
    MadeModule made(QStringLiteral("keys"));
    qo::kivra::PhysicalButtonBar bar(Qt::Horizontal);
    QVector<bool> states;
    const PhysicalButton key {QStringLiteral("Grip"), QString(), QString(),
                              [&](bool down) { states.append(down); }};
    QCOMPARE(CreatePhyButtonList(QStringLiteral("keys"), QStringLiteral("page"), {key}, {}, {}), 0);
    QTRY_COMPARE(bar.currentPage(), QStringLiteral("page"));
    const auto grip = [&bar]() -> QAbstractButton * {
        for (auto *button : bar.findChildren<QAbstractButton *>()) {
            if (button->text() == QLatin1String("Grip"))
                return button;
        }
        return nullptr;
    };

    QCOMPARE(ChangePhyButtonStatus(QStringLiteral("keys"), QStringLiteral("page"), false), 0);
    QTRY_VERIFY(grip() && !grip()->isEnabled());
    QCOMPARE(ChangePhyButtonStatus(QStringLiteral("keys"), QStringLiteral("page"), true), 0);
    QTRY_VERIFY(grip() && grip()->isEnabled());
    QTest::mouseClick(grip(), Qt::LeftButton);
    QCOMPARE(states, QVector<bool>({true, false}));
}

void TestUiServices::switchingWithoutANameHidesTheSideBar()
{
    kest::ExpandSideBar side;
    side.show();
    QCOMPARE(SwitchRightExpandWidgte(QString(), QStringLiteral("any")), 0);
    QVERIFY(side.isHidden());

    QWidget *found = nullptr;
    QCOMPARE(GetRightExpandSideBar(&found), 0);
    QCOMPARE(found, &side);
}

void TestUiServices::theSideBarMayBeMissing()
{
    MadeModule made(QStringLiteral("barless"));
    QWidget *found = newWidget();
    const std::unique_ptr<QWidget> page(found);
    LogCapture log;

    QCOMPARE(CreateRightExpandWidgte(QStringLiteral("barless"), page.get(), {}), -1);
    QCOMPARE(log.take(), QStringList {QStringLiteral("E|<zeplet> the right side bar is null")});
    QCOMPARE(SwitchRightExpandWidgte(QStringLiteral("barless"), {}), 0);
    QCOMPARE(SwitchRightExpandWidgte({}, {}), 0);
    QCOMPARE(GetRightExpandSideBar(&found), 0);
    QCOMPARE(found, nullptr);
    QCOMPARE(GetRightExpandSideBar(nullptr), -1);
}

void TestUiServices::dataPathsStayInTheirDirectory_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("path");
    QTest::newRow("plain") << "demo"
                           << "zeplets/client/demo/";
    QTest::newRow("with placeholder") << "%1"
                                      << "zeplets/client/%1/";
    QTest::newRow("up") << ".."
                        << "";
    QTest::newRow("out") << "../../etc"
                         << "";
    QTest::newRow("other separator") << "..\\etc"
                                     << "";
}

void TestUiServices::dataPathsStayInTheirDirectory()
{
    QFETCH(QString, name);
    QFETCH(QString, path);
    LogCapture log; // the host has no resource alias for such names, and says so
    Zeplet module(name, nullptr);
    QString found;
    QCOMPARE(GetPluginDataPath(found, name), path.isEmpty() ? -1 : 0);
    QCOMPARE(found, path);
}

void TestUiServices::theVersionHasFourParts()
{
    QCOMPARE(GetPluginVersion(), QStringLiteral("1.0.2.7.3"));
}

QTEST_MAIN(TestUiServices)
#include "tst_uiservices.moc"
