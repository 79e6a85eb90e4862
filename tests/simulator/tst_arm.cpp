#include <QtTest>
#include <cmath>
#include <random>
#include <simulator/pathplanner.h>
#include <simulator/pose.h>
#include <simulator/travel.h>

using simulator::Arm;
using simulator::Joints;
using simulator::MotionError;
using simulator::MotionTarget;
using simulator::Path;
using simulator::PathPlanner;
using simulator::Pose;
using simulator::Travel;

namespace
{
/** Metres, and radians as if they were. */
double distance(const KDL::Frame &one, const KDL::Frame &other)
{
    const KDL::Twist way = KDL::diff(one, other);
    return qMax(way.vel.Norm(), way.rot.Norm());
}

const KDL::Frame kTool = Pose {20, 0, 150, 0, 30, 0}.toFrame();
} // namespace

/** Kinematics of the arms, their paths and how those are travelled. */
class TestArm : public QObject
{
    Q_OBJECT

private slots:
    void poses_data()
    {
        QTest::addColumn<int>("kind");
        QTest::newRow("six") << 0;
        QTest::newRow("seven") << 1;
    }

    void poses()
    {
        QFETCH(int, kind);
        const Arm arm(static_cast<Arm::Kind>(kind));
        std::minstd_rand random(7);
        for (int round = 0; round < 40; ++round) {
            Joints joints;
            for (const auto &axis : arm.axes())
                joints += std::uniform_real_distribution<>(axis.min, axis.max)(random);
            const KDL::Frame flange = arm.flange(joints);
            QVERIFY(distance(Pose::fromFrame(flange).toFrame(), flange) < 1e-9);

            const auto configuration = arm.configuration(joints);
            for (const auto &wanted : {std::make_optional(configuration), {}}) {
                const auto found = arm.solve(flange, arm.naturalPose(), wanted).joints;
                QVERIFY(!arm.checkJoints(found));
                QVERIFY(distance(arm.flange(found), flange) < 1e-6);
                if (wanted)
                    QCOMPARE(arm.configuration(found).distance(configuration, arm.axisCount()),
                             0.0);
            }
        }
    }

    void beyondReach()
    {
        const Arm arm(Arm::Kind::Six);
        const auto far = arm.solve(Pose {2500, 0, 500}.toFrame(), arm.naturalPose(), {});
        QVERIFY(far.joints.isEmpty() && far.limitedAxis < 0);
        const auto behind = arm.flange({180, 0, 0, 0, 90, 0});
        const auto solution = arm.solve(behind, arm.naturalPose(), {});
        QVERIFY(solution.joints.isEmpty() || !arm.checkJoints(solution.joints));
        QCOMPARE(*arm.checkJoints({171, 0, 0, 0, 0, 0}),
                 QStringLiteral("axis 1 goes from -170 to 170 degrees"));
    }

    void elbow()
    {
        const Arm arm(Arm::Kind::Seven);
        QCOMPARE(arm.elbowAngle(arm.naturalPose()), 0.0);
        const Joints left {20, 40, 50, 80, 10, 30, 0};
        const Joints right {-20, 40, -50, 80, -10, 30, 0};
        QVERIFY(std::abs(arm.elbowAngle(left)) > 10);
        QCOMPARE(arm.elbowAngle(left), -arm.elbowAngle(right));
    }

    void lines_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QVector<double>>("way"); ///< from the natural pose, in the tool
        QTest::addColumn<int>("error");
        for (const int kind : {0, 1}) {
            const auto row = [kind](const char *name, const QVector<double> &way, int error = 0) {
                QTest::addRow("%s, arm %d", name, kind) << kind << way << error;
            };
            row("aside", {0, 300, 0});
            row("up, turning", {-50, 0, -150, 20, -10, 60});
            row("on the spot", {0, 0, 0, 0, 0, 90});
            row("nowhere", {});
            row("too far", {0, 0, 3000}, MotionError::OutOfReach);
        }
    }

    void lines()
    {
        QFETCH(int, kind);
        QFETCH(QVector<double>, way);
        QFETCH(int, error);
        const Arm arm(static_cast<Arm::Kind>(kind));
        const KDL::Frame from = arm.flange(arm.naturalPose()) * kTool;
        const KDL::Frame to = from * Pose::fromNumbers(way).toFrame();
        const auto result = PathPlanner(arm).linear(arm.naturalPose(), {to, kTool, {}});
        if (const auto *problem = std::get_if<MotionError>(&result)) {
            QVERIFY2(problem->code == error, qPrintable(problem->text));
            return;
        }
        QCOMPARE(error, 0);
        const auto &path = std::get<Path>(result);
        for (int part = 0; part <= 100; ++part) {
            const Joints joints = path.at(part / 100.0, arm);
            const KDL::Frame expected = KDL::addDelta(from, KDL::diff(from, to), part / 100.0);
            QVERIFY(distance(arm.flange(joints) * kTool, expected) < 1e-6);
            QVERIFY(!arm.checkJoints(joints));
        }
    }

    void travel_data()
    {
        QTest::addColumn<double>("length");
        QTest::addColumn<double>("speed");
        QTest::addColumn<double>("brakedAt"); ///< a part of its time; 2: never
        QTest::newRow("long") << 2.0 << 0.5 << 2.0;
        QTest::newRow("too short for its speed") << 0.01 << 1.0 << 2.0;
        QTest::newRow("stopped at speed") << 2.0 << 0.5 << 0.5;
        QTest::newRow("stopped as it speeds up") << 2.0 << 1.0 << 0.05;
        QTest::newRow("stopped as it slows down") << 2.0 << 1.0 << 0.95;
    }

    void travel()
    {
        QFETCH(double, length);
        QFETCH(double, speed);
        QFETCH(double, brakedAt);
        Travel travel(length, speed);
        const double brakeTime = travel.end() * brakedAt;
        const bool braked = brakedAt < 1;
        constexpr double kStep = 1e-3;
        double position = 0;
        double before = 0;
        for (double time = 0; time < travel.end() + 2 * kStep; time += kStep) {
            if (braked && time >= brakeTime && time < brakeTime + kStep)
                travel = travel.braked(time);
            const double now = (travel.position(time) - position) / kStep;
            QVERIFY(now > -1e-9 && now <= speed + 1e-9);
            QVERIFY(std::abs(now - before) <= Travel::kAcceleration * kStep + 1e-9);
            position = travel.position(time);
            before = now;
        }
        if (braked)
            QVERIFY(position < length + 1e-9);
        else
            QCOMPARE(position, length);
        QCOMPARE(travel.speed(travel.end()), 0.0);
    }
};

QTEST_GUILESS_MAIN(TestArm)
#include "tst_arm.moc"
