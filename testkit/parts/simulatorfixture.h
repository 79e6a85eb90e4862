#pragma once

#include <QString>
#include <QThread>
#include <QUrl>
#include <simulator/simulator.h>

/**
 * A simulator in a thread of its own, listening on ephemeral ports from the constructor on, so that
 * a test may block on its own thread while the simulator answers. Its members wait for that thread
 * and may be called from the test's. Aborts the test program where the ports can't be had.
 */
class SimulatorFixture
{
public:
    explicit SimulatorFixture(const simulator::Scenario &scenario = {});
    ~SimulatorFixture();
    Q_DISABLE_COPY(SimulatorFixture)

    quint16 controllerPort() const { return m_controllerPort; }
    quint16 hubPort() const { return m_hubPort; }
    /** The port of the scenario's files; 0 where it has none. */
    quint16 rsyncPort();
    QUrl controllerUrl() const;
    QUrl hubUrl() const;

    /** Closes both servers, as if the controller were gone; its state stays. */
    void stop();
    /** Opens them again on the same ports. */
    void start();

    /** Carries out a control line; its result, or undefined with a test warning where it failed. */
    QJsonValue control(const QString &line);
    /** How often a command has arrived. */
    int count(const QString &command);
    /** The arguments with which it last arrived. */
    QJsonValue last(const QString &command);

    /** Calls function(Simulator &) on the simulator's thread and returns what it returns. */
    template <typename Function>
    auto call(Function function)
    {
        using Result = decltype(function(*m_simulator));
        if constexpr (std::is_void_v<Result>) {
            QMetaObject::invokeMethod(
                m_simulator, [&] { function(*m_simulator); }, Qt::BlockingQueuedConnection);
        } else {
            Result result {};
            QMetaObject::invokeMethod(
                m_simulator, [&] { result = function(*m_simulator); },
                Qt::BlockingQueuedConnection);
            return result;
        }
    }

private:
    QThread m_thread;
    simulator::Simulator *m_simulator = nullptr; ///< lives on the thread
    quint16 m_controllerPort = 0;
    quint16 m_hubPort = 0;
};
