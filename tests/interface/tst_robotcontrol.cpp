#include "fakecontroller.h"
#include "logcapture.h"
#include "storewrites.h"
#include "testcolumns.h"

#include <zeplet/interface/interfacemanager.h>

using namespace zeplet;

class TestRobotControl : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingKnownGivesTheDefaults()
    {
        auto *manager = zepletInterface();
        QCOMPARE(manager->getRobotID() + manager->getRobotPhyStatus() + manager->getRobotType(),
                 QString());
        QVERIFY(!manager->getRobotEleStatus() && manager->getRobotOperateIsHand());
        QCOMPARE(manager->getUserOperateLevel() + manager->getRobotModelType(), 0);
        QVERIFY(checkBrisaVersion(QString()) && checkBrisaVersion("") && !checkBrisaVersion("2"));
    }

    void stateIsReadToTheLetter()
    {
        auto *manager = zepletInterface();
        for (const char *power : {"ON", "off", "on "}) {
            m("brisa.r.power")->set(nullptr, power);
            QVERIFY(!manager->getRobotEleStatus());
        }
        m("brisa.r.power")->set(nullptr, "on");
        QVERIFY(manager->getRobotEleStatus());
        for (const char *mode : {"Auto", "manual", ""}) {
            m("brisa.r.mode")->set(nullptr, mode);
            QVERIFY(manager->getRobotOperateIsHand());
        }
        m("brisa.r.mode")->set(nullptr, "auto");
        QVERIFY(!manager->getRobotOperateIsHand());
        m("brisa.r.version")->set(nullptr, "2.10.3");
        QVERIFY(checkBrisaVersion("2.1") && !checkBrisaVersion("2.2") && checkBrisaVersion(""));
    }

    void theModelIsThatOfTheLastAnswer()
    {
        m_fake.setControllerUp(true);
        const QString command = "system.controller.get_params";
        m_fake.controller.answer(command, QJsonObject {{"robot_template", 17}});
        const int asked = m_fake.controller.received(command);
        const int before = zepletInterface()->getRobotModelType();
        zepletInterface()->rcExecRequestFullCommand(command, QJsonValue());
        QCOMPARE(before, 0);
        QCOMPARE(zepletInterface()->getRobotModelType(), 17);
        QCOMPARE(m_fake.controller.received(command), asked + 1);
    }

    void switches_data()
    {
        const auto row = testcolumns<QString, bool, bool>("command", "power", "on");
        row("motors on", "system.state.switch_motor_on", true, true);
        row("motors off", "system.state.switch_motor_off", true, false);
        row("manual", "system.state.switch_manual", false, true);
        row("auto", "system.state.switch_auto", false, false);
    }

    void switches()
    {
        QFETCH(QString, command);
        QFETCH(bool, power);
        QFETCH(bool, on);
        const auto change = [=](bool blocking) {
            return power ? zepletInterface()->changeRobotPowerStatue(on, blocking)
                         : zepletInterface()->changeRobotModelStatue(on, blocking);
        };
        m_fake.setControllerUp(true);
        m_fake.controller.answer(command, true);
        QVERIFY(change(true));
        QVERIFY(m_fake.controller.last(command).params.isUndefined());
        LogCapture log;
        m_fake.controller.refuse(command, "guard open");
        QVERIFY(!change(true));
        m_fake.controller.ignore(command);
        QVERIFY(change(false));
        QTRY_COMPARE(m_fake.controller.received(command), 3);
        m_fake.setControllerUp(false);
        QVERIFY(!change(true) && !change(false));
    }

    void runRequests_data()
    {
        const auto row = testcolumns<QString, bool, QString>("name", "start", "state");
        row("start", "startRunning", true, "run");
        row("stop", "stopRunning", false, "stop");
    }

    void runRequests()
    {
        QFETCH(QString, name);
        QFETCH(bool, start);
        QFETCH(QString, state);
        const auto ask = [start] {
            return start ? zepletInterface()->startRunning() : zepletInterface()->stopRunning();
        };
        ostrel::ModuleObject *const node = m("brisa.r.zeplet.state");
        node->remove(nullptr);
        StoreWrites writes({"brisa.r.zeplet.state"});
        LogCapture log;
        m_fake.setControllerUp(false);
        QVERIFY(!ask());
        QCOMPARE(log.ofLevel("E"), QStringList(name + ": rc not connected"));

        m_fake.setControllerUp(true);
        log.take();
        QVERIFY(ask());
        QVERIFY(log.ofLevel("E").isEmpty()); // it is missing later, not in the caller's stack
        QTRY_COMPARE(log.ofLevel("E"), QStringList(name + ": brisa.r.zeplet.state missing"));
        QCOMPARE(writes.take(), QStringList());

        node->set(nullptr, "");
        writes.take();
        QVERIFY(ask() && ask());
        QCOMPARE(writes.take(), QStringList());
        const QStringList twice {"state=%1 by null", "state= by null", "state=%1 by null"};
        QStringList seen;
        QTRY_COMPARE((seen += writes.take()).size(), 3);
        QCOMPARE(seen, QStringList(twice).replaceInStrings("%1", state));
    }

    void filters()
    {
        StoreWrites writes({"brisa.r.zeplet.filter.run", "brisa.r.zeplet.filter.stop"});
        auto *manager = zepletInterface();
        QVERIFY(manager->startRunningFilter(true) && manager->stopRunningFilter(true)
                && manager->startRunningFilter(false));
        QCOMPARE(writes.take(),
                 QStringList({"run=true by null", "stop=true by null", "run=false by null"}));
    }

private:
    FakeController m_fake;
};

QTEST_MAIN(TestRobotControl)
#include "tst_robotcontrol.moc"
