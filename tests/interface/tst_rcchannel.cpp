#include "fakecontroller.h"
#include "logcapture.h"

#include <zeplet/interface/interfacemanager.h>

#include <QElapsedTimer>
#include <QTest>

using namespace zeplet;

class TestRcChannel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void answersComeBackWhole_data();
    void answersComeBackWhole();
    void requestsCarryTheirData_data();
    void requestsCarryTheirData();
    void noAnswerIsNull_data();
    void noAnswerIsNull();
    void requestsDoNotWait();

private:
    FakeController m_fake;
};

void TestRcChannel::init()
{
    m_fake.setControllerUp(true);
}

void TestRcChannel::answersComeBackWhole_data()
{
    QTest::addColumn<QJsonValue>("answer");
    QTest::newRow("text") << QJsonValue(QStringLiteral("on"));
    QTest::newRow("number") << QJsonValue(1.5);
    QTest::newRow("bool") << QJsonValue(true);
    QTest::newRow("list") << QJsonValue(QJsonArray {1, QStringLiteral("a"), QJsonArray {2}});
    QTest::newRow("object") << QJsonValue(QJsonObject {
        {QStringLiteral("a"), QJsonObject {{QStringLiteral("b"), QJsonArray {1, 2}}}}});
}

void TestRcChannel::answersComeBackWhole()
{
    QFETCH(QJsonValue, answer);
    m_fake.controller.answer(QStringLiteral("io.get"), answer);
    auto *manager = zepletInterface();
    QCOMPARE(manager->rcExecRequest(QStringLiteral("io"), QStringLiteral("get"), {}), answer);
    QCOMPARE(manager->rcExecRequestFullCommand(QStringLiteral("io.get"), {}), answer);
}

void TestRcChannel::requestsCarryTheirData_data()
{
    QTest::addColumn<QJsonValue>("data");
    QTest::newRow("object") << QJsonValue(
        QJsonObject {{QStringLiteral("a"), QJsonObject {{QStringLiteral("b"), 1}}}});
    QTest::newRow("list") << QJsonValue(QJsonArray {QStringLiteral("a"), 1, QJsonObject()});
    QTest::newRow("nothing") << QJsonValue(QJsonValue::Undefined);
}

void TestRcChannel::requestsCarryTheirData()
{
    QFETCH(QJsonValue, data);
    const QString command = QStringLiteral("io.put");
    m_fake.controller.answer(command, true);
    auto *manager = zepletInterface();
    const QVector<std::function<void()>> forms {
        [&] { manager->rcRequest(QStringLiteral("io"), QStringLiteral("put"), data); },
        [&] { manager->rcRequestFullCommand(command, data); },
        [&] { manager->rcExecRequest(QStringLiteral("io"), QStringLiteral("put"), data); },
        [&] { manager->rcExecRequestFullCommand(command, data); }};
    for (const auto &send : forms) {
        const int before = m_fake.controller.received(command);
        send();
        QTRY_COMPARE(m_fake.controller.received(command), before + 1);
        QCOMPARE(m_fake.controller.last(command).params, data);
    }
}

void TestRcChannel::noAnswerIsNull_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<bool>("connected");
    QTest::newRow("refused") << "io.refused" << true;
    QTest::newRow("timed out") << "io.ignored" << true;
    QTest::newRow("no link") << "io.refused" << false;
}

void TestRcChannel::noAnswerIsNull()
{
    QFETCH(QString, command);
    QFETCH(bool, connected);
    m_fake.controller.refuse(QStringLiteral("io.refused"), QStringLiteral("not now"));
    m_fake.controller.ignore(QStringLiteral("io.ignored"));
    m_fake.setControllerUp(connected);
    LogCapture log; // the host's own lines on what failed
    auto *manager = zepletInterface();
    QVERIFY(manager->rcExecRequest(QStringLiteral("io"), command.mid(3), {}, true, 50).isNull());
    QVERIFY(manager->rcExecRequestFullCommand(command, {}, true, 50).isNull());
}

void TestRcChannel::requestsDoNotWait()
{
    m_fake.controller.ignore(QStringLiteral("io.ignored"));
    auto *manager = zepletInterface();
    QVERIFY(manager->rcRequest(QStringLiteral("io"), QStringLiteral("ignored"), {}, 60000));
    QVERIFY(manager->rcRequestFullCommand(QStringLiteral("io.ignored"), {}, 60000));
    QVERIFY(
        manager->rcExecRequestFullCommand(QStringLiteral("io.ignored"), {}, false, 60000).isNull());
    m_fake.setControllerUp(false);
    LogCapture log;
    QVERIFY(!manager->rcRequest(QStringLiteral("io"), QStringLiteral("ignored"), {}));
    QVERIFY(!manager->rcRequestFullCommand(QStringLiteral("io.ignored"), {}));
}

QTEST_MAIN(TestRcChannel)
#include "tst_rcchannel.moc"
