#pragma once

#include <QObject>
#include <QProcess>

/** The simulator as a process of its own, on the ports that the panel's settings name. */
class SimulatorProcess : public QObject
{
    Q_OBJECT

public:
    explicit SimulatorProcess(QObject *parent = nullptr);
    /** Ends the process; waits for it. */
    ~SimulatorProcess() override;

    void start();
    bool isReady() const { return m_ready; }
    /** Sends a line to the simulator's own control. */
    void control(const QString &line);
    /** Ends the process without a chance to say goodbye. */
    void kill();
    bool isRunning() const;

private:
    void readOutput();

    QProcess m_process;
    bool m_ready = false;
};
