#include "mainwindow.h"
#include "panelapplication.h"
#include "panelsession.h"
#include "pluginfiles.h"
#include "pluginloader.h"
#include "widgetchecks.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPushButton>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <brisa/logbanner.h>
#include <brisa/managerhelper.h>
#include <kest/bmodule.h>
#include <kest/centerwidget.h>
#include <ostrel/moduleobject.h>
#include <stdexcept>
#include <zeplet/plugin/uiservices.h>

using panel::PluginRecord;

/** One panel, in this process, with every kind of broken plugin beside a sound one. */
class TestPanelSession : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        writeSettings();
        fillPluginDirectory();
        panel::PanelOptions options;
        options.pluginDirectories
            = QStringList {m_directory.filePath("plugins"), m_directory.filePath("more"),
                           m_directory.filePath("more/../plugins/")};
        options.runtimeDirectory = m_directory.filePath("run");
        options.settingsFile = m_directory.filePath("settings.json");
        options.loadLimit = 1500; // of the one that never returns
        const QString crasher = m_directory.filePath("plugins/crasher.so");
        pluginfiles::copy(m_directory.filePath("plugins"), "crasher");
        pluginfiles::leaveDeathInInit(options.runtimeDirectory, "crasher", crasher);
        m_session = std::make_unique<panel::PanelSession>(options);
        QString error;
        QVERIFY2(m_session->start(&error), qPrintable(error));
        QVERIFY(QTest::qWaitForWindowExposed(&m_session->window()));
    }

    void plugins()
    {
        const auto refused = PluginRecord::Refused;
        const auto faulty = PluginRecord::Faulty;
        const auto leftOut = PluginRecord::LeftOut;
        const struct {
            const char *file;
            PluginRecord::State state;
            const char *sentence;
        } rows[] = {
            {"sound.so", PluginRecord::Running, ""},
            {"half.so", refused, "half.so is cut short: copy the whole file to the panel again."},
            {"unresolved.so", refused,
             "unresolved.so uses gripper::closeFingers(int), which no library of this panel has: "
             "link the library that defines it."},
            {"dependent.so", refused,
             "dependent.so needs the library libfixture_absent.so, which this panel lacks: "
             "install libfixture_absent.so."},
            {"unregistered.so", refused,
             "unregistered.so registers no plugin named \"unregistered\""},
            {"misnamed.so", refused,
             "misnamed.so registers \"anothername\" but is tagged \"misnamed\": "},
            {"twin.so", refused,
             "twin.so registers the name \"sound\", which sound.so has already: "},
            {"farther.so", refused, "more/farther.so registers the name \"sound\", which /"},
            {"nullfactory.so", faulty, "'nullfactory' made no plugin; correct the plugin and "},
            {"emptyfactory.so", faulty, "\"emptyfactory\" could not be made: bad_function_call"},
            {"throwingfactory.so", faulty,
             "\"throwingfactory\" could not be made: no camera on this machine"},
            {"throwinginit.so", faulty, "\"throwinginit\" failed in init: no gripper is mounted"},
            {"foreign.so", refused, "foreign.so was built for "},
            {"otherqt.so", refused, "otherqt.so was built against Qt 5.99."},
            {"otherlibrary.so", refused, "otherlibrary.so was built against version 1.9."},
            {"nolibrary.so", refused, "nolibrary.so is not a library: "},
            {"folder.so", refused, "folder.so is a directory: "},
            {"throwingload.so", leftOut,
             "throwingload.so throws while it is loaded (no camera on this machine): correct "},
            {"crashingload.so", leftOut,
             "crashingload.so crashes while it is loaded (Segmentation fault): correct "},
            {"hangingload.so", leftOut,
             "hangingload.so does not come back while it is loaded (within 1.5 s): correct "},
            {"endingload.so", leftOut, "endingload.so ends the program while it is loaded: "},
            {"crasher.so", leftOut,
             "crasher.so was left out because it took the panel down (init): "},
        };
        for (const auto &[file, state, sentence] : rows) {
            const PluginRecord record = recordOf(file);
            QVERIFY2(record.sentence.contains(sentence), qPrintable(record.sentence));
            QVERIFY2(record.state == state, file);
            QCOMPARE(record.sentence.isEmpty(), *sentence == '\0');
        }
        const auto &records = m_session->loader().records();
        QVERIFY(records.size() > int(std::size(rows))); // and the panel's own
        const QJsonArray list = m("panel.plugins")->exportToJson(true).toArray();
        QCOMPARE(list.size(), records.size());
        for (int i = 0; i < list.size(); ++i)
            QCOMPARE(list.at(i).toObject(), records.at(i).toJson());
        QVERIFY(bModule("ostrel.zeplet.sound"));
    }

    void pages()
    {
        panel::MainWindow &window = m_session->window();
        QVERIFY(window.showPage("zeplet.sound"));
        QVERIFY(!window.showPage("zeplet.half"));
        for (const char *page : {"panel.home", "zeplet.zeplet"}) {
            QVERIFY(window.showPage(page));
            QCOMPARE(window.size(), QSize(1280, 800));
            QTRY_COMPARE(widgetchecks::faults(&window), QStringList());
        }
    }

    /** Its page is in the navigation, and would be empty. */
    void failedPluginSaysSoOnItsPage()
    {
        panel::MainWindow &window = m_session->window();
        QVERIFY(window.showPage("zeplet.throwinginit"));
        const auto *const notice = instantiatedCenterWidget()
                                       ->page("zeplet.throwinginit")
                                       ->findChild<QLabel *>("faultNotice");
        QVERIFY(notice && notice->isVisible());
        QVERIFY(notice->text().contains("no gripper is mounted; correct the plugin"));
        QTRY_COMPARE(widgetchecks::faults(&window), QStringList());
    }

    void systemPageShowsThePlugins()
    {
        panel::MainWindow &window = m_session->window();
        QVERIFY(window.showPage("zeplet.zeplet"));
        const auto sees = [&window](const QString &text) {
            const auto labels = window.findChildren<QLabel *>();
            return std::any_of(labels.begin(), labels.end(), [&](const QLabel *label) {
                return label->isVisible() && label->text().contains(text);
            });
        };
        QTRY_VERIFY(sees("half.so is cut short"));
        QVERIFY(sees("1.0.2.7.3"));
        QVERIFY(sees(qVersion()));
        QVERIFY(sees("throwinginit"));
    }

    void leftOutPluginIsTriedAgain()
    {
        panel::MainWindow &window = m_session->window();
        QVERIFY(window.showPage("zeplet.zeplet"));
        QTRY_VERIFY(window.findChild<QPushButton *>("tryAgain"));
        auto *const button = window.findChild<QPushButton *>("tryAgain");
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(recordOf("crasher.so").sentence,
                 QStringLiteral("crasher.so takes part again when the panel starts next."));
        QFile list(m_directory.filePath("run/left-out.json"));
        QVERIFY(list.open(QIODevice::ReadOnly));
        QCOMPARE(QJsonDocument::fromJson(list.readAll()).object(), QJsonObject());
    }

    void libraryMessagesReachTheBanner()
    {
        const QString text = QStringLiteral("The point was not written.");
        QCOMPARE(zeplet::ThrowLog("zeplet", zeplet::ThrowLogError, text), 0);
        const auto *const banner = m_session->window().findChild<brisa::LogBanner *>();
        QVERIFY(banner);
        QVERIFY(banner->message().endsWith(text));
        QCOMPARE(banner->level(), QStringLiteral("error"));
    }

    void thrownOutOfAnEvent()
    {
        QSignalSpy spy(brisa::ManagerHelper::instance(), &brisa::ManagerHelper::logThrown);
        QTimer::singleShot(0, this, [] { throw std::runtime_error("from a plugin's timer"); });
        QTRY_COMPARE(spy.count(), 1);
        QVERIFY(spy.at(0).at(2).toString().endsWith("from a plugin's timer"));
    }

    void finish()
    {
        QSignalSpy states(m("panel.state"), &ostrel::ModuleObject::changed);
        QVERIFY(m_session->finish());
        QCOMPARE(states.count(), 2);
        QCOMPARE(states.at(0).at(0).toString(), QStringLiteral("stopping"));
        QCOMPARE(states.at(1).at(0).toString(), QStringLiteral("stopped"));
        QVERIFY(!bModule("ostrel.zeplet.sound"));
        QVERIFY(!bModule("ostrel.zeplet.zeplet"));
    }

private:
    /** A port where nobody listens. */
    static int freePort()
    {
        QTcpServer server;
        server.listen(QHostAddress::LocalHost);
        return server.serverPort();
    }

    void writeSettings()
    {
        const QJsonObject settings {{"server.ip", "127.0.0.1"},
                                    {"server.port", QString::number(freePort())},
                                    {"server.hub_port", QString::number(freePort())}};
        pluginfiles::write(m_directory.path(), "settings.json", QJsonDocument(settings).toJson());
    }

    void fillPluginDirectory()
    {
        using namespace pluginfiles;
        const QString plugins = m_directory.filePath("plugins");
        QVERIFY(QDir().mkpath(plugins));
        for (const char *fixture :
             {"sound", "unresolved", "dependent", "unregistered", "misnamed", "nullfactory",
              "emptyfactory", "throwingfactory", "throwinginit", "throwingload", "crashingload",
              "hangingload", "endingload"})
            copy(plugins, fixture);
        write(plugins, "foreign.so", pluginfiles::foreign("sound"));
        write(plugins, "otherqt.so", patched("sound", "qt=5.15.", "qt=5.99."));
        write(plugins, "otherlibrary.so", patched("sound", "library=1.0.", "library=1.9."));
        write(plugins, "nolibrary.so", "text");
        copy(plugins, "sound", "twin");
        QVERIFY(QDir(plugins).mkdir("folder.so"));
        QVERIFY(QDir().mkpath(m_directory.filePath("more")));
        copy(m_directory.filePath("more"), "sound", "farther");
        write(plugins, "half.so", bytes("sound").left(bytes("sound").size() / 2));
        write(plugins, "readme.txt", "not looked at");
    }

    /** The last one: a library that counts twice is refused then. */
    PluginRecord recordOf(const QString &file) const
    {
        PluginRecord last;
        for (const PluginRecord &record : m_session->loader().records()) {
            if (record.file.fileName() == file)
                last = record;
        }
        return last;
    }

    QTemporaryDir m_directory;
    std::unique_ptr<panel::PanelSession> m_session;
};

int main(int argc, char *argv[])
{
    panel::PanelApplication application(argc, argv);
    TestPanelSession test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_panelsession.moc"
