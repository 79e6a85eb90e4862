#pragma once

#include <QObject>
#include <QString>

namespace brisa
{
class ControllerManager;
}

namespace tavik
{

/**
 * Starts and stops the robot's program: for the operator ("brisa.r.operator": "start", "stop",
 * "cancel") and for plugins ("brisa.r.zeplet.state": "run", "stop").
 *
 * Where plugins filter ("brisa.r.zeplet.filter.run", ".stop"), an operator's wish is announced to
 * them first, as "run_before" or "stop_before", and waits in "brisa.r.zeplet.waiting" ("run",
 * "stop") for a plugin's answer. Nothing waits behind the operator's back: a cancel, a stop, the
 * loss of the link and a program that starts or stops by other hands end it, and a start that was
 * given up is not made up for by an answer that comes late. A second stop stops at once. GUI
 * thread.
 */
class RunControl : public QObject
{
    Q_OBJECT

public:
    /** controller outlives this object. */
    explicit RunControl(brisa::ControllerManager *controller, QObject *parent = nullptr);

private:
    enum class Waiting { None, Run, Stop };

    void obey(const QString &wish);
    void start();
    void stop();
    void cancel();
    void answer(const QString &state);
    void startForPlugin();
    void stopForPlugin();
    void followFilters();
    void followProgram();
    void loseLink();

    void waitFor(Waiting waiting);
    /** Ends the waiting, if any; a start that waited must not come true any more. */
    void giveUp();
    void endWaiting();
    void announce(const QString &state);
    void send(const QString &command);
    bool isRunning() const;

    brisa::ControllerManager *m_controller;
    Waiting m_waiting = Waiting::None;
    bool m_startGivenUp = false; ///< a plugin may still answer it
};

} // namespace tavik
