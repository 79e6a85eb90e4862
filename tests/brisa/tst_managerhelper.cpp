#include <brisa/controllermanager.h>
#include <brisa/managerhelper.h>
#include <brisa/settingmanager.h>
#include <brisa/tasknetworkmanager.h>
#include <fakepeer.h>
#include <nexo/nexo.h>
#include <ostrel/moduleobject.h>

#include <QDir>
#include <QFile>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>
#include <QThread>

using brisa::ManagerHelper;

namespace
{
void answerFirstReads(FakePeer *peer)
{
    peer->answer("system.state.get", QJsonObject {{"power", "on"}});
    peer->answer("system.controller.get_params", QJsonObject());
    peer->answer("hub.snapshot", QJsonObject());
}

} // namespace

class TestManagerHelper : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shutdownBeforeAnything()
    {
        ManagerHelper::shutdown();
        ManagerHelper::shutdown();
        QVERIFY(!ManagerHelper::instance()->taskNetworkManager()->isConnect());
    }

    void linksFollowTheSettings()
    {
        FakePeer first;
        FakePeer hub;
        FakePeer second;
        for (FakePeer *peer : {&first, &hub, &second})
            answerFirstReads(peer);
        ManagerHelper *helper = ManagerHelper::instance();
        QSignalSpy disconnected(helper->controllerManager(),
                                &brisa::ControllerManager::rcDisconnected);
        ostrel::ModuleObject *hubFlag = nexo()->mobj()->r("connected");
        helper->settingManager()->set("server.port", first.url().port());
        helper->settingManager()->set("server.hub_port", hub.url().port());
        QCOMPARE(first.clients(), 0);
        helper->openLinks();
        QTRY_VERIFY(helper->taskNetworkManager()->isConnect() && hubFlag->getBool(false));
        QCOMPARE(first.clients(), 1);

        helper->settingManager()->set("server.port", second.url().port());
        QCOMPARE(disconnected.size(), 1);
        QCOMPARE(disconnected.first().first().toBool(), true);
        QTRY_VERIFY(helper->taskNetworkManager()->isConnect() && hubFlag->getBool(false));
        QTRY_COMPARE(first.clients(), 0);
        QCOMPARE(second.clients(), 1);

        ManagerHelper::shutdown();
        QVERIFY(!helper->taskNetworkManager()->isConnect());
        QVERIFY(!hubFlag->getBool(true));
        QTRY_COMPARE(second.clients(), 0);
    }

    void addressesThatAreNone()
    {
        brisa::SettingManager *settings = ManagerHelper::instance()->settingManager();
        const std::pair<QJsonValue, QJsonValue> rows[]
            = {{"", 9011},    {"127.0.0.1/../x", 9011}, {"a b", 9011},
               {"a@b", 9011}, {"127.0.0.1", 0},         {"127.0.0.1", 65536}};
        for (const auto &[ip, port] : rows) {
            settings->set("server.ip", ip);
            settings->set("server.port", port);
            settings->set("server.hub_port", port);
            for (const QString name : {"port", "hub_port"}) {
                QTest::ignoreMessage(
                    QtWarningMsg,
                    QRegularExpression("^no link: .* and server." + name + " .* are no address$"));
            }
            ManagerHelper::instance()->openLinks();
            ManagerHelper::shutdown();
        }
        settings->set("server.ip", "127.0.0.1");
    }

    void throwLogFromAnyThread()
    {
        QSignalSpy thrown(ManagerHelper::instance(), &ManagerHelper::logThrown);
        ManagerHelper::throwLog(this, "warning", "here");
        QCOMPARE(thrown.size(), 1);
        QCOMPARE(thrown.first().at(0).value<QObject *>(), static_cast<QObject *>(this));
        const std::unique_ptr<QThread> other(QThread::create([] {
            QObject dead;
            ManagerHelper::throwLog(&dead, "error", "there");
        }));
        other->start();
        QVERIFY(other->wait(5000));
        QCOMPARE(thrown.size(), 1);
        QTRY_COMPARE(thrown.size(), 2);
        QCOMPARE(thrown.last().at(0).value<QObject *>(), nullptr);
        QCOMPARE(thrown.last().at(2).toString(), QStringLiteral("there"));
    }

    void resourceAlias()
    {
        ManagerHelper::instance()->registQrcAlias("monitor");
        QCOMPARE(QDir::searchPaths("monitor"), QStringList {":/monitor"});
        for (const char *unfit : {"page-run", "x"}) // Qt itself would warn
            ManagerHelper::instance()->registQrcAlias(unfit);
        for (const char *bad : {"", "../etc", "a b"}) {
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^no alias for resources: "));
            ManagerHelper::instance()->registQrcAlias(bad);
        }
    }
};

QTEST_MAIN(TestManagerHelper)
#include "tst_managerhelper.moc"
