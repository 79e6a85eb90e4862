#pragma once

#include <QObject>
#include <QProcess>

namespace simulator
{

/** Debian's rsync as a daemon on loopback. It and its transfers end with the simulator, even with
 * one that is killed. */
class RsyncDaemon : public QObject
{
    Q_OBJECT

public:
    explicit RsyncDaemon(QObject *parent = nullptr);
    ~RsyncDaemon() override;

    /** Starts it and waits up to 5 s until it listens on the port. */
    bool start(const QString &configFile, quint16 port, QString *error);
    /** Ends it and the transfers that it serves, as a loss of power would; waits for it. */
    void stop();
    bool isRunning() const { return m_process.state() != QProcess::NotRunning; }

signals:
    /** It has ended, and nobody asked it to. */
    void died(const QString &reason);

private:
    /** A process in a group of its own, which is killed when the parent's end of its standard
     *  input is closed: the kernel does that for a parent that dies. */
    class Process : public QProcess
    {
    protected:
        void setupChildProcess() override;
    };

    bool waitUntilListening(quint16 port, QString *error);
    QString lastWords();

    Process m_process;
    bool m_serving = false;
};

} // namespace simulator
