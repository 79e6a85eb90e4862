#include "mainwindow.h"
#include "offscreen.h"
#include "panelapplication.h"
#include "panelsession.h"
#include "pluginfiles.h"
#include "simulatorfixture.h"
#include "widgetchecks.h"

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>
#include <brisa/logbanner.h>
#include <brisa/managerhelper.h>
#include <brisa/physicalbutton.h>
#include <brisa/tasknetworkmanager.h>
#include <brisa/thememanager.h>
#include <kest/bmodule.h>
#include <kest/centerwidget.h>
#include <kest/expandsidebar.h>
#include <kest/statusbar.h>
#include <kivra/navigation.h>
#include <kivra/physicalbuttonbar.h>
#include <ostrel/moduleobject.h>

/**
 * The whole panel in many states and both themes: nothing is cut, everything can be touched. With
 * ZEPLET_PICTURES set to a directory, a picture of each state is saved there.
 */
class TestPanelLooks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        ignoreOffscreenNoise();
        const QString plugins = m_directory.filePath("plugins");
        QVERIFY(QDir().mkpath(plugins));
        pluginfiles::copy(plugins, "crasher");
        pluginfiles::copy(plugins, "throwinginit");
        QVERIFY(QFile::copy(QStringLiteral(ZEPLET_MONITOR), plugins + "/monitor.so"));
        panel::PanelOptions options;
        options.pluginDirectories = QStringList {plugins};
        options.runtimeDirectory = m_directory.filePath("run");
        options.settingsFile = m_directory.filePath("settings.json");
        writeSettings();
        pluginfiles::leaveDeathInInit(options.runtimeDirectory, "crasher", plugins + "/crasher.so");
        m_simulator.control("set robot SIX-7");
        m_session = std::make_unique<panel::PanelSession>(options);
        QString error;
        QVERIFY2(m_session->start(&error), qPrintable(error));
        QVERIFY(QTest::qWaitForWindowExposed(&window()));
        QTRY_VERIFY(isConnected());
    }

    void looks_data()
    {
        QTest::addColumn<QString>("state");
        QTest::addColumn<QString>("page");
        QTest::addColumn<QString>("theme");
        const QList<QPair<QString, QString>> states {
            {"idle", "panel.home"},         {"running", "panel.home"},
            {"starting", "panel.home"},     {"stopping", "panel.home"},
            {"offline", "panel.home"},      {"sidebar", "panel.home"},
            {"history", "panel.home"},      {"modal", "panel.home"},
            {"crowded", "panel.home"},      {"idle", "zeplet.zeplet"},
            {"sidebar", "zeplet.zeplet"},   {"idle", "zeplet.monitor"},
            {"watching", "zeplet.monitor"}, {"sidebar", "zeplet.monitor"},
            {"cleared", "zeplet.monitor"}};
        for (const auto &[state, page] : states) {
            for (const char *theme : {"light", "dark"})
                QTest::addRow("%s-%s-%s", qPrintable(page), qPrintable(state), theme)
                    << state << page << theme;
        }
    }

    void looks()
    {
        QFETCH(QString, state);
        QFETCH(QString, page);
        QFETCH(QString, theme);
        QVERIFY(brisa::ThemeManager::instance()->setTheme(theme));
        QVERIFY(window().showPage(page));
        enter(state);
        QCOMPARE(window().size(), QSize(1280, 800));
        settle(&window());
        save(&window());
        QCOMPARE(widgetchecks::faults(&window()).join('\n'), QString());
    }

    void fullScreen()
    {
        QVERIFY(window().showPage("zeplet.monitor"));
        QWidget *const page = instantiatedCenterWidget()->page("zeplet.monitor");
        QAbstractButton *const button = buttonOf(page, "Full screen");
        QVERIFY(button);
        QTest::mouseClick(button, Qt::LeftButton);
        QWidget *const full = button->window();
        QVERIFY(full != &window());
        full->resize(1280, 800);
        settle(full);
        save(full);
        QCOMPARE(widgetchecks::faults(full).join('\n'), QString());
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(button->window(), &window());
    }

    // What a plugin asks for beyond the room it gets is scrolled to, and never widens the panel.
    void tooWideContent()
    {
        kest::BModule module;
        auto *const bar = window().findChild<kest::ExpandSideBar *>();
        auto *const wide = new QLabel("wide");
        wide->setMinimumSize(2000, 2000);
        auto *const narrow = new QLabel("narrow");
        QVERIFY(bar->addPage(&module, "wide", wide));
        QVERIFY(bar->addPage(&module, "narrow", narrow));
        bar->show();
        QVERIFY(bar->switchTo(&module, "wide"));
        settle(&window());
        QCOMPARE(wide->width(), 2000);
        QVERIFY(bar->findChild<QScrollArea *>());
        save(&window());
        QVERIFY(bar->switchTo(&module, "narrow"));
        QTRY_VERIFY(narrow->width() <= bar->width());
        QCOMPARE(window().size(), QSize(1280, 800));
    }

    void cleanup()
    {
        m_crowd.reset();
        m("brisa.msg._")->set(nullptr, 0, true);
        auto *const cancel = window().findChild<QPushButton *>("cancelWaiting");
        if (cancel->isVisible())
            QTest::mouseClick(cancel, Qt::LeftButton);
        QVERIFY(!cancel->isVisible());
        for (const char *what : {"run", "stop"})
            m("brisa.r.zeplet.filter")->set(nullptr, what, false, true);
        window().findChild<brisa::LogBanner *>()->clear();
        window().findChild<brisa::LogBanner *>()->setHistoryVisible(false);
        window().findChild<kest::ExpandSideBar *>()->hide();
        if (m_offline) {
            m_offline = false;
            m_simulator.control("fault clear");
            QTRY_VERIFY(isConnected());
        }
        m_simulator.control("set power off");
        m_simulator.control("set mode manual");
        QTRY_COMPARE(m("brisa.r.mode")->getStr(""), QString("manual"));
    }

    void cleanupTestCase() { QVERIFY(m_session->finish()); }

private:
    panel::MainWindow &window() const { return m_session->window(); }

    static bool isConnected()
    {
        return brisa::ManagerHelper::instance()->taskNetworkManager()->isConnect();
    }

    void writeSettings()
    {
        const QJsonObject settings {{"server.ip", "127.0.0.1"},
                                    {"server.port", QString::number(m_simulator.controllerPort())},
                                    {"server.hub_port", QString::number(m_simulator.hubPort())}};
        pluginfiles::write(m_directory.path(), "settings.json", QJsonDocument(settings).toJson());
    }

    void enter(const QString &state)
    {
        if (state == "running")
            startProgram();
        else if (state == "starting" || state == "stopping")
            waitForPlugin(state == "starting" ? "run" : "stop");
        else if (state == "offline")
            goOffline();
        else if (state == "sidebar")
            QTest::mouseClick(keyOf("Details"), Qt::LeftButton);
        else if (state == "history")
            openHistory();
        else if (state == "modal")
            m("brisa.msg._")->set(nullptr, 2, true);
        else if (state == "watching")
            watch();
        else if (state == "cleared")
            QTest::mouseClick(keyOf("Clear"), Qt::LeftButton);
        else if (state == "crowded")
            crowd();
    }

    void startProgram()
    {
        m_simulator.control("set power on");
        m_simulator.control("set mode auto");
        m_simulator.control("program start");
        QTRY_COMPARE(m("brisa.r.state")->getStr(""), QString("program"));
    }

    /** The operator's key is pressed while a plugin wants to be asked first. */
    void waitForPlugin(const QString &what)
    {
        if (what == "stop")
            startProgram();
        m("brisa.r.zeplet.filter." + what)->set(nullptr, true);
        auto *const key
            = window().findChild<QPushButton *>(what == "run" ? "startProgram" : "stopProgram");
        QTest::mouseClick(key, Qt::LeftButton);
        QCOMPARE(m("brisa.r.zeplet.waiting")->getStr(""), what);
        QVERIFY(window().findChild<QPushButton *>("cancelWaiting")->isVisible());
    }

    void goOffline()
    {
        m_offline = true;
        m_simulator.control("fault controller_down");
        QTRY_VERIFY(!isConnected());
    }

    void openHistory()
    {
        using brisa::ManagerHelper;
        ManagerHelper::throwLog(nullptr, "info", "The gripper has found its reference.");
        ManagerHelper::throwLog(nullptr, "warning",
                                "Der Kühlmitteldruck liegt unter dem eingestellten Grenzwert: "
                                "Filter und Pumpe prüfen, bevor das nächste Programm startet.");
        ManagerHelper::throwLog(nullptr, "error", "The safety door was opened.");
        auto *const banner = window().findChild<brisa::LogBanner *>();
        QTRY_COMPARE(banner->level(), QString("error"));
        banner->setHistoryVisible(true);
    }

    void watch()
    {
        auto *const name = window().findChild<QLineEdit *>("watchName");
        for (const char *key : {"demo.temperature", "cell.door", "cell.conveyor.left.speed"}) {
            name->setText(key);
            QTest::mouseClick(buttonOf(&window(), "Watch hub key"), Qt::LeftButton);
        }
        name->setText("program/schweissnahtnachfuehrung/kraftregelung");
        QTest::mouseClick(buttonOf(&window(), "Watch notify path"), Qt::LeftButton);
        m_simulator.control("hub set demo.temperature 41.5");
        m_simulator.control("notify program/schweissnahtnachfuehrung/kraftregelung {\"fx\": 12.5}");
    }

    /** A dozen plugins with long names. */
    void crowd()
    {
        m_crowd = std::make_unique<kest::BModule>();
        const QString name = QStringLiteral("Schweißnahtnachführung mit Kraftregelung");
        for (int i = 0; i < 12; ++i) {
            qo::kivra::registerPage(m_crowd.get(), name, "robot.pack", "", -1)
                ->set(nullptr, "nav", QString("crowd.%1").arg(i), true);
            QVERIFY(instantiatedStatusBar(m_crowd.get())
                        ->addBeforeItem(m_crowd.get(), QString("crowd.%1").arg(i),
                                        "tavik.body.statuspage.wgtStrech2", new QLabel(name)));
        }
        QList<brisa::PhysicalButton> keys;
        for (const char *label : {"Übernehmen", "Werkzeug wechseln", "Vollbilddarstellung", "Halt"})
            keys.append({QString::fromUtf8(label), QIcon(), QIcon(), {}});
        qo::kivra::registerPhysicalButtons(m_crowd.get(), name, keys, keys, {"panel.home"});
        // Keys follow the centre area when its page changes.
        QVERIFY(window().showPage("zeplet.zeplet") && window().showPage("panel.home"));
    }

    QAbstractButton *keyOf(const QString &label) const
    {
        return buttonOf(window().findChild<qo::kivra::PhysicalButtonBar *>(), label);
    }

    static QAbstractButton *buttonOf(const QWidget *parent, const QString &text)
    {
        for (QAbstractButton *const button : parent->findChildren<QAbstractButton *>()) {
            if (button->text() == text && button->isVisible())
                return button;
        }
        return nullptr;
    }

    /** Waits until the picture stands still and pages have taken up the theme, which they do in
     *  their next frame. */
    void settle(QWidget *widget)
    {
        const QString page = instantiatedCenterWidget()->currentKey();
        QImage last;
        int same = 0;
        QVERIFY(QTest::qWaitFor(
            [&] {
                const QImage now = widget->grab().toImage();
                same = now == last ? same + 1 : 0;
                last = now;
                return same >= 3 && (page == "panel.home" || hasTheme(page));
            },
            60000));
    }

    static bool hasTheme(const QString &page)
    {
        const QString sheet = brisa::ThemeManager::instance()->styleSheet();
        const auto widgets = instantiatedCenterWidget()->page(page)->findChildren<QWidget *>();
        return std::any_of(widgets.begin(), widgets.end(),
                           [&](const QWidget *w) { return w->styleSheet() == sheet; })
            || instantiatedCenterWidget()->page(page)->styleSheet() == sheet;
    }

    static void save(QWidget *widget)
    {
        const QString directory = qEnvironmentVariable("ZEPLET_PICTURES");
        if (!directory.isEmpty())
            QVERIFY(widget->grab().save(directory + '/' + QTest::currentTestFunction() + '-'
                                        + QTest::currentDataTag() + ".png"));
    }

    QTemporaryDir m_directory;
    SimulatorFixture m_simulator;
    std::unique_ptr<panel::PanelSession> m_session;
    std::unique_ptr<kest::BModule> m_crowd;
    bool m_offline = false;
};

int main(int argc, char *argv[])
{
    panel::PanelApplication application(argc, argv);
    TestPanelLooks test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_panellooks.moc"
