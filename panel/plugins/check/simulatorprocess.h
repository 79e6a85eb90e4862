#pragma once

#include <QJsonValue>
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
    /** Sends a line to the simulator's own control, without waiting for the answer. */
    void control(const QString &line);
    /** The result of the last line; undefined while an answer is due, and where it was an error. */
    QJsonValue result() const;
    /** Ends the process without a chance to say goodbye. */
    void kill();
    bool isRunning() const;
    qint64 processId() const;

private:
    void readOutput();
    void readAnswer(const QByteArray &line);

    QProcess m_process;
    QJsonValue m_result;
    int m_due = 0; ///< answers that have not come
    bool m_ready = false;
};
