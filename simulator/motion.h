#pragma once

#include "pathplanner.h"
#include "refusal.h"
#include "robotstate.h"
#include "travel.h"

#include <QTimer>
#include <functional>

namespace simulator
{

/**
 * The moving arm: where it is, and one move at a time, in true time. A move that was prepared
 * starts when the operator's enable comes. Motors that go off halt the arm at once; another
 * operating mode stops it. Lives on the simulator's thread.
 */
class Motion : public QObject
{
    Q_OBJECT

public:
    enum class Kind { Joint, Linear };
    using Clock = std::function<double()>; ///< seconds

    static constexpr int kUpdateMs = 50; ///< between two moved() of a move
    static constexpr int kEnableMs = 5000;

    /** The arm and the robot outlive this object. */
    Motion(const Arm &arm, RobotState &robot, const Joints &joints, QObject *parent = nullptr);

    /** Where the arm is at this moment. */
    Joints joints() const;
    bool isMoving() const { return m_moving; }

    /** Plans a move and keeps it until enable(), instead of one that waits already. `speed` is in
     *  metres per second, of an axis move the share of the top speed that it is. May search for
     *  some ten milliseconds. */
    MotionProblem prepare(Kind kind, const MotionTarget &target, double speed);
    /** Starts the move that waits; without one it does nothing. */
    void enable();
    /** Gives up the move that waits. */
    void withdraw();
    /** What a program does: turns the axes at once, without an enable, and stops with the program.
     *  `speed` as above. Refused while the motors are off or it moves, and beyond its limits. */
    Refusal turnTo(const Joints &joints, double speed);
    /** Slows down to rest and gives up the move that waits. */
    void stop();

    /** Puts the arm somewhere else in no time. Refused while it moves and beyond its limits. */
    Refusal setJoints(const Joints &joints);

    void setClock(const Clock &clock) { m_clock = clock; }
    /** How long a prepared move waits. */
    void setEnableLimit(int ms) { m_enableTimer.setInterval(ms); }
    /** Looks at the clock: reports the arm's place, and the end of a move. The timer does it, too.
     */
    void update();

signals:
    /** The arm is elsewhere; at most 20 times a second, and at the end of a move. */
    void moved();
    void movingChanged(bool moving);
    /** A move that was accepted does not go on. */
    void failed(const simulator::MotionError &error);

private:
    struct Move {
        Path path;
        double speed = 0;
    };
    MotionProblem checkReady() const;
    void begin(const Move &move);
    void watchRobot();
    void finish();
    void giveUp(const MotionError &error);

    const Arm &m_arm;
    RobotState &m_robot;
    Joints m_joints; ///< while it does not move
    Clock m_clock;
    QTimer m_timer;
    QTimer m_enableTimer;
    std::optional<Move> m_waiting;
    Path m_path;
    Travel m_travel;
    double m_started = 0;
    bool m_moving = false;
    bool m_ofProgram = false; ///< the program asked for the move
    bool m_automatic = false;
};

} // namespace simulator
