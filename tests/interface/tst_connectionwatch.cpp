#include "fakecontroller.h"

#include <zeplet/interface/interfacemanager.h>

#include <QSignalSpy>
#include <QTest>

using namespace zeplet;

// What happens to the two links, one letter a step.
//   C controller comes up     H hub comes up
//   c controller is lost      h hub is lost
class TestConnectionWatch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theSecondLinkReportsTheNetwork_data();
    void theSecondLinkReportsTheNetwork();
    void aLossTellsWhetherItWasOnPurpose();

private:
    void takeStep(QChar step);

    FakeController m_controller;
};

void TestConnectionWatch::takeStep(QChar step)
{
    switch (step.toLatin1()) {
    case 'C':
        m_controller.setControllerUp(true);
        break;
    case 'c':
        m_controller.setControllerUp(false);
        break;
    case 'H':
        m_controller.setHubUp(true);
        break;
    default:
        m_controller.setHubUp(false);
    }
}

void TestConnectionWatch::theSecondLinkReportsTheNetwork_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("step");
    QTest::addColumn<int>("connected");
    QTest::addColumn<int>("disconnected");

    QTest::newRow("controller, first link") << ""
                                            << "C" << 0 << 0;
    QTest::newRow("hub, first link") << ""
                                     << "H" << 0 << 0;
    QTest::newRow("controller after hub") << "H"
                                          << "C" << 1 << 0;
    QTest::newRow("hub after controller") << "C"
                                          << "H" << 1 << 0;
    QTest::newRow("controller lost") << "HC"
                                     << "c" << 0 << 1;
    QTest::newRow("hub lost") << "HC"
                              << "h" << 0 << 0;
    QTest::newRow("controller back, hub stayed") << "HCc"
                                                 << "C" << 0 << 0;
    QTest::newRow("hub back, controller stayed") << "HCh"
                                                 << "H" << 0 << 0;
    QTest::newRow("both lost, hub first") << "HCchH"
                                          << "C" << 1 << 0;
    QTest::newRow("both lost, controller first") << "HCchC"
                                                 << "H" << 1 << 0;
    QTest::newRow("hub back after the controller armed it") << "HChcC"
                                                            << "H" << 1 << 0;
}

void TestConnectionWatch::theSecondLinkReportsTheNetwork()
{
    QFETCH(QString, before);
    QFETCH(QString, step);
    QFETCH(int, connected);
    QFETCH(int, disconnected);
    zepletInterface();
    m_controller.setControllerUp(false);
    m_controller.setHubUp(false);
    for (const QChar earlier : before)
        takeStep(earlier);
    QSignalSpy up(zepletInterface(), &InterfaceManager::sigNetworkConnect);
    QSignalSpy down(zepletInterface(), &InterfaceManager::sigNetworkDisConnect);

    takeStep(step.at(0));

    QCOMPARE(up.count(), connected);
    QCOMPARE(down.count(), disconnected);
    if (disconnected)
        QCOMPARE(down.at(0).at(0).toBool(), false);
}

void TestConnectionWatch::aLossTellsWhetherItWasOnPurpose()
{
    m_controller.setControllerUp(true);
    QSignalSpy down(zepletInterface(), &InterfaceManager::sigNetworkDisConnect);
    FakeController::manager()->close();
    QTRY_COMPARE(down.count(), 1);
    QCOMPARE(down.at(0).at(0).toBool(), true);
}

QTEST_MAIN(TestConnectionWatch)
#include "tst_connectionwatch.moc"
