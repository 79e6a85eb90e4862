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
#include <brisa/managerhelper.h>
#include <kest/bmodule.h>
#include <kest/centerwidget.h>
#include <ostrel/moduleobject.h>
#include <stdexcept>

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
        options.pluginDirectories = QStringList {m_directory.filePath("plugins")};
        options.runtimeDirectory = m_directory.filePath("run");
        options.settingsFile = m_directory.filePath("settings.json");
        // What a panel leaves that died in the plugin's init.
        const QString crasher = m_directory.filePath("plugins/crasher.so");
        pluginfiles::copy(m_directory.filePath("plugins"), "crasher");
        QVERIFY(QDir().mkpath(options.runtimeDirectory));
        pluginfiles::write(options.runtimeDirectory, "starting",
                           "crasher\ninit\n" + crasher.toUtf8() + '\0');
        m_session = std::make_unique<panel::PanelSession>(options);
        QString error;
        QVERIFY2(m_session->start(&error), qPrintable(error));
        QVERIFY(QTest::qWaitForWindowExposed(&m_session->window()));
    }

    void plugin_data()
    {
        QTest::addColumn<int>("state");
        QTest::addColumn<QString>("sentence");
        const auto row = [](const char *file, PluginRecord::State state, const char *sentence) {
            QTest::newRow(file) << int(state) << QString::fromLatin1(sentence);
        };
        const auto refused = PluginRecord::Refused;
        const auto faulty = PluginRecord::Faulty;
        row("sound.so", PluginRecord::Running, "");
        row("text.so", refused,
            "text.so is not a library: put the file there that the plugin's "
            "build made, or remove this one.");
        row("half.so", refused, "half.so is cut short: copy the whole file to the panel again.");
        row("machine.so", refused, "machine.so was built for aarch64 and this panel is x86_64: ");
        row("otherqt.so", refused, "otherqt.so was built against Qt 6.15.");
        row("otherlibrary.so", refused,
            "otherlibrary.so was built against version 7.0.2 of the plugin library and this panel "
            "has 1.0.2: build it against 1.0.2.");
        row("untagged.so", refused, "untagged.so has no plugin tag, ");
        row("unresolved.so", refused,
            "unresolved.so uses gripper::closeFingers(int), which no library of this panel has: "
            "link the library that defines it.");
        row("dependent.so", refused,
            "dependent.so needs the library libfixture_absent.so, which this panel lacks: install "
            "libfixture_absent.so.");
        row("unregistered.so", refused,
            "unregistered.so registers no plugin named \"unregistered\"");
        row("misnamed.so", refused,
            "misnamed.so registers \"anothername\" but is tagged \"misnamed\": ");
        row("twin.so", refused, "twin.so registers the name \"sound\", which is taken: ");
        row("nullfactory.so", faulty, "'nullfactory' made no plugin; correct the plugin and ");
        row("emptyfactory.so", faulty, "\"emptyfactory\" failed in make: bad_function_call");
        row("throwingfactory.so", faulty,
            "\"throwingfactory\" failed in make: no camera on this machine");
        row("crasher.so", PluginRecord::LeftOut,
            "crasher.so was left out because it took the panel down (init): ");
        row("throwinginit.so", faulty, "\"throwinginit\" failed in init: no gripper is mounted");
    }

    void plugin()
    {
        QFETCH(int, state);
        QFETCH(QString, sentence);
        const PluginRecord record = recordOf(QTest::currentDataTag());
        QVERIFY2(record.sentence.contains(sentence), qPrintable(record.sentence));
        QCOMPARE(int(record.state), state);
        QCOMPARE(record.sentence.isEmpty(), sentence.isEmpty());
    }

    void recordsAreInTheStore()
    {
        const QJsonArray list = m("panel.plugins")->exportToJson(true).toArray();
        const auto &records = m_session->loader().records();
        QCOMPARE(list.size(), records.size());
        for (int i = 0; i < list.size(); ++i)
            QCOMPARE(list.at(i).toObject(), records.at(i).toJson());
    }

    void soundPluginShowsItsPage()
    {
        QVERIFY(bModule("ostrel.zeplet.sound"));
        QVERIFY(m_session->window().showPage("zeplet.sound"));
        QVERIFY(m_session->window().showPage("panel.home"));
        QVERIFY(!m_session->window().showPage("zeplet.text"));
    }

    void looks_data()
    {
        QTest::addColumn<QString>("page");
        QTest::newRow("home") << "panel.home";
        QTest::newRow("plugins") << "zeplet.zeplet";
    }

    void looks()
    {
        QFETCH(QString, page);
        panel::MainWindow &window = m_session->window();
        QVERIFY(window.showPage(page));
        QCOMPARE(window.size(), QSize(1280, 800));
        QTRY_COMPARE(widgetchecks::faults(&window), QStringList());
        const QImage picture = window.grab().toImage();
        QVERIFY(coloursOf(picture) > 8);
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
             {"sound", "untagged", "unresolved", "dependent", "unregistered", "misnamed",
              "nullfactory", "emptyfactory", "throwingfactory", "throwinginit"})
            copy(plugins, fixture);
        copy(plugins, "sound", "twin");
        write(plugins, "text.so", "#!/bin/sh\necho plugin\n");
        write(plugins, "half.so", bytes("sound").left(bytes("sound").size() / 2));
        write(plugins, "machine.so", patched("sound", {"\3\0\x3e\0", 4}, {"\3\0\xb7\0", 4}));
        write(plugins, "otherqt.so", patched("sound", "qt=5.15.", "qt=6.15."));
        write(plugins, "otherlibrary.so", patched("sound", "library=1.", "library=7."));
        write(plugins, "readme.txt", "not looked at");
    }

    PluginRecord recordOf(const QString &file) const
    {
        for (const PluginRecord &record : m_session->loader().records()) {
            if (record.file.fileName() == file)
                return record;
        }
        return {};
    }

    static int coloursOf(const QImage &picture)
    {
        QSet<QRgb> colours;
        for (int y = 0; y < picture.height(); y += 4) {
            for (int x = 0; x < picture.width(); ++x)
                colours.insert(picture.pixel(x, y));
        }
        return colours.size();
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
