#include "fakecontroller.h"
#include "logcapture.h"

#include <zeplet/interface/interfacemanager.h>

#include <QTest>

using namespace zeplet;

class TestRcChannel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_fake.setControllerUp(true); }

    void answersComeBackWhole()
    {
        auto *manager = zepletInterface();
        for (const QJsonValue &answer :
             {QJsonValue("on"), QJsonValue(1.5), QJsonValue(true),
              QJsonValue(QJsonArray {1, "a", QJsonArray {2}}),
              QJsonValue(QJsonObject {{"a", QJsonObject {{"b", QJsonArray {1, 2}}}}})}) {
            m_fake.controller.answer("io.get", answer);
            QCOMPARE(manager->rcExecRequest("io", "get", {}), answer);
            QCOMPARE(manager->rcExecRequestFullCommand("io.get", {}), answer);
        }
    }

    void requestsCarryTheirData()
    {
        const QString command = "io.put";
        m_fake.controller.answer(command, true);
        auto *manager = zepletInterface();
        const std::function<void(const QJsonValue &)> forms[] = {
            [&](auto &data) { manager->rcRequest("io", "put", data); },
            [&](auto &data) { manager->rcRequestFullCommand(command, data); },
            [&](auto &data) { manager->rcExecRequest("io", "put", data); },
            [&](auto &data) { manager->rcExecRequestFullCommand(command, data); },
        };
        int sent = 0;
        for (const QJsonValue &data :
             {QJsonValue(QJsonObject {{"a", QJsonObject {{"b", 1}}}}),
              QJsonValue(QJsonArray {"a", 1, QJsonObject()}), QJsonValue(QJsonValue::Undefined)}) {
            for (const auto &send : forms) {
                send(data);
                ++sent;
                QTRY_COMPARE(m_fake.controller.received(command), sent);
                QCOMPARE(m_fake.controller.last(command).params, data);
            }
        }
    }

    void noAnswerIsNull()
    {
        m_fake.controller.refuse("io.refused", "not now");
        m_fake.controller.ignore("io.ignored");
        LogCapture log; // the host's own lines on what failed
        auto *manager = zepletInterface();
        for (const bool connected : {true, false}) {
            m_fake.setControllerUp(connected);
            for (const QString &name : {QString("refused"), QString("ignored")}) {
                QVERIFY(manager->rcExecRequest("io", name, {}, true, 50).isNull());
                QVERIFY(manager->rcExecRequestFullCommand("io." + name, {}, true, 50).isNull());
            }
        }
    }

    void requestsDoNotWait()
    {
        m_fake.controller.ignore("io.ignored");
        auto *manager = zepletInterface();
        QVERIFY(manager->rcRequest("io", "ignored", {}, 60000));
        QVERIFY(manager->rcRequestFullCommand("io.ignored", {}, 60000));
        QVERIFY(manager->rcExecRequest("io", "ignored", {}, false, 60000).isNull());
        QVERIFY(manager->rcExecRequestFullCommand("io.ignored", {}, false, 60000).isNull());
        m_fake.setControllerUp(false);
        LogCapture log;
        QVERIFY(!manager->rcRequest("io", "ignored", {}));
        QVERIFY(!manager->rcRequestFullCommand("io.ignored", {}));
    }

private:
    FakeController m_fake;
};

QTEST_MAIN(TestRcChannel)
#include "tst_rcchannel.moc"
