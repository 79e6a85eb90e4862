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
    void theSecondLinkReportsTheNetwork()
    {
        const struct {
            const char *before, *step;
            int connected, disconnected;
        } rows[]
            = {
                {"", "C", 0, 0},      {"", "H", 0, 0},      {"H", "C", 1, 0},
                {"C", "H", 1, 0},     {"HC", "c", 0, 1},    {"HC", "h", 0, 0},
                {"HCc", "C", 0, 0},   {"HCh", "H", 0, 0},   {"HCchH", "C", 1, 0},
                {"HCchC", "H", 1, 0}, {"HChcC", "H", 1, 0}, // armed by the controller
            };
        QSignalSpy up(zepletInterface(), &InterfaceManager::sigNetworkConnect);
        QSignalSpy down(zepletInterface(), &InterfaceManager::sigNetworkDisConnect);
        for (const auto &row : rows) {
            take("ch");
            take(row.before);
            up.clear();
            down.clear();

            take(row.step);

            QVERIFY2(up.count() == row.connected && down.count() == row.disconnected,
                     qPrintable(row.before + QString(" then ") + row.step));
            if (row.disconnected)
                QCOMPARE(down.at(0).at(0).toBool(), false);
        }
    }

    void aLossTellsWhetherItWasOnPurpose()
    {
        m_controller.setControllerUp(true);
        QSignalSpy down(zepletInterface(), &InterfaceManager::sigNetworkDisConnect);
        FakeController::manager()->close();
        QTRY_COMPARE(down.count(), 1);
        QCOMPARE(down.at(0).at(0).toBool(), true);
    }

private:
    void take(const char *steps)
    {
        for (; *steps; ++steps) {
            if (QChar(*steps).toUpper() == 'C')
                m_controller.setControllerUp(*steps == 'C');
            else
                m_controller.setHubUp(*steps == 'H');
        }
    }

    FakeController m_controller;
};

QTEST_MAIN(TestConnectionWatch)
#include "tst_connectionwatch.moc"
