#include "motion.h"

#include <QElapsedTimer>
#include <QtMath>
#include <memory>
#include <utility>

namespace simulator
{

namespace
{
constexpr double kMillisecond = 1e-3;

Motion::Clock wallClock()
{
    auto timer = std::make_shared<QElapsedTimer>();
    timer->start();
    return [timer] { return static_cast<double>(timer->nsecsElapsed()) * 1e-9; };
}
} // namespace

Motion::Motion(const Arm &arm, RobotState &robot, const Joints &joints, QObject *parent)
    : QObject(parent)
    , m_arm(arm)
    , m_robot(robot)
    , m_joints(joints)
    , m_clock(wallClock())
    , m_automatic(robot.values().automatic)
{
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.setSingleShot(true);
    m_enableTimer.setSingleShot(true);
    m_enableTimer.setInterval(kEnableMs);
    connect(&m_timer, &QTimer::timeout, this, &Motion::update);
    connect(&m_enableTimer, &QTimer::timeout, this, [this] {
        giveUp({MotionError::NotEnabled, QStringLiteral("the operator's enable did not come")});
    });
    connect(&robot, &RobotState::changed, this, &Motion::watchRobot);
}

Joints Motion::joints() const
{
    if (!m_moving || m_path.length <= 0)
        return m_joints;
    return m_path.at(m_travel.position(m_clock() - m_started) / m_path.length, m_arm);
}

MotionProblem Motion::checkReady() const
{
    if (!m_robot.values().power)
        return MotionError {MotionError::MotorsOff, QStringLiteral("the motors are off")};
    if (m_robot.values().program)
        return MotionError {MotionError::ProgramRuns, QStringLiteral("a program runs")};
    if (m_moving)
        return MotionError {MotionError::MovesAlready, QStringLiteral("the robot moves already")};
    return std::nullopt;
}

MotionProblem Motion::prepare(Kind kind, const MotionTarget &target, double speed)
{
    withdraw();
    if (auto problem = checkReady())
        return problem;
    const PathPlanner planner(m_arm);
    const auto planned
        = kind == Kind::Joint ? planner.joint(m_joints, target) : planner.linear(m_joints, target);
    if (const auto *error = std::get_if<MotionError>(&planned))
        return *error;
    m_waiting = Move {std::get<Path>(planned), speed};
    m_enableTimer.start();
    return std::nullopt;
}

void Motion::enable()
{
    if (!m_waiting)
        return;
    m_enableTimer.stop();
    if (const auto problem = checkReady()) {
        giveUp(*problem);
        return;
    }
    begin(*std::exchange(m_waiting, std::nullopt));
}

Refusal Motion::turnTo(const Joints &joints, double speed)
{
    if (!m_robot.values().power)
        return QStringLiteral("the motors are off");
    if (m_moving)
        return QStringLiteral("the robot moves already");
    if (auto refusal = m_arm.checkJoints(joints))
        return refusal;
    m_waiting.reset();
    m_enableTimer.stop();
    m_ofProgram = m_robot.values().program;
    begin({PathPlanner(m_arm).turn(m_joints, joints), speed});
    return std::nullopt;
}

void Motion::begin(const Move &move)
{
    m_path = move.path;
    m_travel = Travel(m_path.length, qMin(move.speed, m_path.topSpeed));
    m_started = m_clock();
    m_moving = true;
    m_robot.setMoving(true);
    emit movingChanged(true);
    update();
}

void Motion::update()
{
    if (!m_moving)
        return;
    const double left = m_started + m_travel.end() - m_clock();
    if (left <= 0) {
        finish();
        return;
    }
    m_timer.start(qCeil(qMin<double>(left / kMillisecond, kUpdateMs)));
    emit moved();
}

void Motion::finish()
{
    m_joints = joints();
    m_timer.stop();
    m_moving = false;
    m_ofProgram = false;
    m_robot.setMoving(false);
    emit moved();
    emit movingChanged(false);
}

void Motion::withdraw()
{
    m_waiting.reset();
    m_enableTimer.stop();
}

void Motion::stop()
{
    withdraw();
    if (!m_moving)
        return;
    m_travel = m_travel.braked(m_clock() - m_started);
    update();
}

void Motion::giveUp(const MotionError &error)
{
    withdraw();
    emit failed(error);
}

void Motion::watchRobot()
{
    const bool modeChanged = m_automatic != m_robot.values().automatic;
    m_automatic = m_robot.values().automatic;
    if (!m_moving && !m_waiting)
        return;
    if (!m_robot.values().power) {
        if (m_moving)
            finish();
        giveUp({MotionError::Interrupted, QStringLiteral("the motors went off")});
    } else if (m_ofProgram && !m_robot.values().program) {
        stop();
    } else if (modeChanged) {
        stop();
        giveUp({MotionError::Interrupted, QStringLiteral("the operating mode changed")});
    }
}

Refusal Motion::setJoints(const Joints &joints)
{
    if (m_moving)
        return QStringLiteral("the robot moves");
    if (auto refusal = m_arm.checkJoints(joints))
        return refusal;
    withdraw(); // its path starts elsewhere
    m_joints = joints;
    emit moved();
    return std::nullopt;
}

} // namespace simulator
