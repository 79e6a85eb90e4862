#pragma once

#include "scenario.h"

#include <QByteArray>
#include <QJsonObject>
#include <QObject>
#include <QTimer>

namespace simulator
{

class Simulator;

/**
 * Keeps what has changed since the scenario in a file, so that the next simulator goes on there.
 * The file is replaced as a whole half a second after a change, and when this object goes. Lives on
 * the simulator's thread, which waits for the disk then.
 */
class StateFile : public QObject
{
    Q_OBJECT

public:
    static constexpr int kDelayMs = 500;

    /** The scenario with what the file keeps. A file that is damaged or someone else's is renamed
     *  to FILE.damaged, with a line in `problem`, and the scenario stays as it is; so it does where
     *  there is no file yet. */
    static Scenario restore(const Scenario &scenario, const QString &path, QString *problem);

    /** `scenario` is the one without what the file keeps. The simulator outlives this object. */
    StateFile(Simulator &simulator, const Scenario &scenario, const QString &path,
              QObject *parent = nullptr);
    ~StateFile() override;

    /** Writes now if something has changed. False, with the reason in `error`, where it can't. */
    bool write(QString *error);

signals:
    /** The file could not be written; it is tried again after the next change. */
    void problem(const QString &line);

private:
    void follow();
    void writeLater();

    Simulator &m_simulator;
    const QString m_path;
    QJsonObject m_base;
    QByteArray m_written;
    QTimer m_delay;
};

} // namespace simulator
