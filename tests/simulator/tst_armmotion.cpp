#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QtTest>
#include <simulator/motioncommands.h>
#include <simulator/pathcheck.h>
#include <simulator/positioncommands.h>

using simulator::Arm;
using simulator::Joints;
using simulator::Motion;
using simulator::MotionError;
using simulator::Reply;

namespace
{
QJsonValue json(const QByteArray &text)
{
    return QJsonDocument::fromJson('[' + text + ']').array().first();
}

/** The request of a move to millimetres and degrees. */
QJsonObject request(const QVector<double> &pose, double speed)
{
    QJsonArray trans;
    QJsonArray rot;
    for (int i = 0; i < 3; ++i) {
        trans += pose[i] / 1000;
        rot += qDegreesToRadians(pose[3 + i]);
    }
    return {{"point", QJsonObject {{"trans", trans}, {"rot", rot}}},
            {"traj", QJsonObject {{"speed", speed}}}};
}

simulator::RobotState::Values ready()
{
    simulator::RobotState::Values values;
    values.power = true;
    return values;
}

/** The moving part of a controller, without its servers, on a clock of the test's. */
struct Bench {
    explicit Bench(const QString &points = {})
        : pointsFile(points)
    {
        motion.setClock([this] { return now; });
        frames.set(simulator::Frames::Tool, simulator::Frames::Project, {"long", {0, 0, 200}});
        frames.set(simulator::Frames::WorkObject, simulator::Frames::Global,
                   {"table", {500, 0, 0, 0, 0, 90}});
    }

    Reply run(const QString &key, const QJsonValue &value = {})
    {
        return registry.run(key, value, session);
    }
    QVector<double> pose()
    {
        const QJsonValue pose = hub.value("motion.pose");
        return {pose["x"].toDouble(), pose["y"].toDouble(), pose["z"].toDouble()};
    }
    QString state() { return hub.value("motion.state").toString(); }
    int error() { return hub.value("move.last_error_with_setting")["error"].toInt(); }

    double now = 100;
    QString pointsFile;
    simulator::RobotState robot {ready()};
    simulator::Frames frames {simulator::Frames::Values()};
    Arm arm {Arm::Kind::Six};
    simulator::HubData hub {QJsonObject()};
    Motion motion {arm, robot, arm.naturalPose()};
    simulator::MotionKeys keys {hub, arm, motion};
    simulator::CommandRegistry registry;
    simulator::MotionCommands moves {registry, {robot, frames, hub, motion, keys}};
    simulator::PositionCommands position {registry, arm, motion, frames};
    simulator::PathCheck check {registry, {arm, motion, frames, [this] { return pointsFile; }}};
    simulator::Session session;
};

QByteArray cart(const char *place, const char *more = "")
{
    return R"({"pose": {"frame": {"pos": {)" + QByteArray(place)
        + R"(}, "ori": {"euler": {"a": 180, "b": 0, "c": 180}}}})" + more + '}';
}

/** The tool points ahead. */
QByteArray forward(const char *place)
{
    return cart(place).replace(R"("a": 180, "b": 0, "c": 180)", R"("a": 0, "b": 90, "c": 0)");
}

/** A file of points with the elements of the path check. */
QByteArray points()
{
    const std::pair<QByteArray, QByteArray> elements[] {
        {"left", cart(R"("x": 790, "y": 400, "z": 1050)")},
        {"right", cart(R"("x": 790, "y": -300, "z": 900)")},
        {"on table",
         cart(R"("x": 300, "y": -290, "z": 950)",
              R"(, "coord": {"tool": "tool0", "wobj": "table"})")},
        {"home", R"({"inner_pos": [0, 0, 0, 0, 90, 0, 0]})"},
        {"ahead", R"({"inner_pos": [0, 0, 0, 0, 0, 0, 0]})"},
        {"bent", R"({"inner_pos": [0, 0, 100, 0, 90, 0, 0]})"},
        {"forward left", forward(R"("x": 850, "y": 200, "z": 1152)")},
        {"forward right", forward(R"("x": 850, "y": -200, "z": 1152)")},
        {"far", cart(R"("x": 2000, "y": 0, "z": 1050)")},
        {"turned",
         cart(R"("x": 790, "y": 0, "z": 1050)",
              R"(, "conf": {"cf1": 0, "cf4": 2, "cf5": -2, "cf6": 2, "cfx": 1})")},
        {"no tool", cart(R"("x": 790, "y": 0, "z": 1050)", R"(, "coord": {"tool": "gone"})")},
        {"empty", "{}"},
    };
    QByteArray records;
    for (const auto &[name, element] : elements)
        records += (records.isEmpty() ? "" : ",") + QByteArray(R"({"name": ")") + name
            + R"(", "value": {"[0][0][0]": )" + element + "}}";
    return R"({"version": "0.2", "points": [)" + records + "]}";
}

const QVector<double> kAside {790, 400, 1050, 180, 0, 180}; ///< the natural pose is at y = 0
} // namespace

/** Moves by commands: their time, their refusals, what the hub shows; and the path check. */
class TestArmMotion : public QObject
{
    Q_OBJECT

private slots:
    void straightMoveInItsTime()
    {
        Bench bench;
        QVERIFY(bench.run("move.move_to.l", request(kAside, 0.5)).isDone());
        QCOMPARE(bench.state(), QStringLiteral("idle")); // until the operator's enable
        bench.run("move.opr.enough");
        QCOMPARE(bench.state(), QStringLiteral("moving"));

        const double needed = 0.4 / 0.5 + 0.5 / simulator::Travel::kAcceleration;
        bench.now += needed / 2;
        bench.motion.update();
        QVERIFY(std::abs(bench.pose()[1] - 200) < 0.01);
        QVERIFY(std::abs(bench.pose()[0] - 790) < 0.01);
        QCOMPARE(bench.robot.startProgram().has_value(), true);
        bench.now += needed / 2 - 0.01;
        bench.motion.update();
        QCOMPARE(bench.state(), QStringLiteral("moving"));
        bench.now += 0.011;
        bench.motion.update();
        QCOMPARE(bench.state(), QStringLiteral("idle"));
        QVERIFY(std::abs(bench.pose()[1] - 400) < 0.001);
        QVERIFY(!bench.robot.startProgram());
    }

    void axisMoveGoesByTheSlowestAxis()
    {
        Bench bench;
        const Joints end {100, -20, 10, 0, 90, 0};
        const auto pose = simulator::Pose::fromFrame(bench.arm.flange(end));
        QVERIFY(bench
                    .run("move.move_to.jc",
                         request({pose.x, pose.y, pose.z, pose.a, pose.b, pose.c}, 1.0))
                    .isDone());
        bench.run("move.opr.enough");
        // Half of axis 1's 200 degrees a second, and the ramps of 1 m/s.
        bench.now += 1.0 + 1.0 / simulator::Travel::kAcceleration - 0.001;
        bench.motion.update();
        QCOMPARE(bench.state(), QStringLiteral("moving"));
        bench.now += 0.002;
        bench.motion.update();
        QCOMPARE(bench.state(), QStringLiteral("idle"));
        for (int axis = 0; axis < 6; ++axis)
            QVERIFY(std::abs(bench.motion.joints()[axis] - end[axis]) < 1e-3);
    }

    void interruptions_data()
    {
        QTest::addColumn<QString>("by");
        QTest::addColumn<int>("error");
        QTest::addColumn<bool>("slowsDown");
        QTest::newRow("stop") << "stop" << 0 << true;
        QTest::newRow("motors off") << "power" << int(MotionError::Interrupted) << false;
        QTest::newRow("another mode") << "mode" << int(MotionError::Interrupted) << true;
    }

    void interruptions()
    {
        QFETCH(QString, by);
        QFETCH(int, error);
        QFETCH(bool, slowsDown);
        Bench bench;
        bench.run("move.move_to.l", request(kAside, 0.5));
        bench.run("move.opr.enough");
        bench.now += 0.4;
        if (by == "stop")
            bench.run("move.stop", json(R"({"task_space": 1})"));
        else if (by == "power")
            bench.robot.setPower(false);
        else
            QVERIFY(!bench.robot.setAutomatic(true));
        QCOMPARE(bench.state() == "moving", slowsDown);
        const double at = bench.pose()[1];
        bench.now += 10;
        bench.motion.update();
        QCOMPARE(bench.state(), QStringLiteral("idle"));
        QVERIFY(std::abs(bench.pose()[1] - at - (slowsDown ? 31.25 : 0)) < 0.01);
        QCOMPARE(bench.error(), error);
        bench.run("move.opr.enough"); // nothing waits any more
        QCOMPARE(bench.state(), QStringLiteral("idle"));
        bench.run("move.reset");
        QCOMPARE(bench.error(), 0);
    }

    void moveThatIsNotEnabled()
    {
        Bench bench;
        bench.motion.setEnableLimit(1);
        bench.run("move.move_to.l", request(kAside, 0.5));
        QTRY_COMPARE(bench.error(), int(MotionError::NotEnabled));
        bench.run("move.opr.enough");
        QCOMPARE(bench.state(), QStringLiteral("idle"));
    }

    void pathCheckWithoutFiles()
    {
        const QJsonValue answer = Bench().run("move.path.check", QJsonArray {"a", "b"}).result;
        QCOMPARE(answer["error"].toInt(), int(MotionError::NoPosition));
    }

    void refusedMoveLeavesNoneWaiting()
    {
        Bench bench;
        QVERIFY(bench.run("move.move_to.l", request(kAside, 0.5)).isDone());
        QVERIFY(!bench.run("move.move_to.l", QJsonObject()).isDone());
        bench.run("move.opr.enough");
        QCOMPARE(bench.state(), QStringLiteral("idle"));
    }

    void refusals_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("command");
        QTest::addColumn<QJsonValue>("request");
        QTest::addColumn<int>("error"); ///< 1: the command is unknown
        const auto row = [](const char *name, const QString &before, const QString &command,
                            const QJsonValue &request, int error) {
            QTest::newRow(name) << before << command << request << error;
        };
        const QJsonValue good = request(kAside, 0.5);
        const QVector<double> far {2500, 0, 500, 180, 0, 180};
        row("motors off", "off", "move.move_to.l", good, MotionError::MotorsOff);
        row("program", "program", "move.move_to.jc", good, MotionError::ProgramRuns);
        row("moving", "moving", "move.move_to.l", good, MotionError::MovesAlready);
        row("far, axes", "", "move.move_to.jc", request(far, 1), MotionError::OutOfReach);
        row("far, straight", "", "move.move_to.l", request(far, 1), MotionError::OutOfReach);
        row("no speed", "", "move.move_to.l", request(kAside, 0), MotionError::BadRequest);
        row("nothing", "", "move.move_to.l", {}, MotionError::BadRequest);
        row("short conf", "", "move.move_to.jc",
            json(R"({"point": {"trans": [1, 0, 1], "rot": [0, 0, 0], "conf": [1]},
                     "traj": {"speed": 1}})"),
            MotionError::BadRequest);
        row("other configuration", "", "move.move_to.l",
            json(R"({"point": {"trans": [0.79, 0.4, 1.05], "rot": [3.14159265, 0, 3.14159265],
                               "conf": [0, 0, 0, 2, 0, 0, 0, 1]}, "traj": {"speed": 1}})"),
            MotionError::OtherConfiguration);
        row("unknown tool", "tool", "move.move_to.l", good, MotionError::UnknownFrame);
        row("plain form, 3.1", "", "move.l", good, 1);
        row("other form, 3.3.1", "3.3.1", "move.move_to.jc", good, 1);
        row("other form, 2.2.7", "2.2.7", "move.move_to.l", good, 1);
        row("plain form, 3.10", "3.10", "move.j", good, 1);
    }

    void refusals()
    {
        QFETCH(QString, before);
        QFETCH(QString, command);
        QFETCH(QJsonValue, request);
        QFETCH(int, error);
        Bench bench;
        if (before == "off")
            bench.robot.setPower(false);
        else if (before == "program")
            bench.robot.startProgram();
        else if (before == "tool")
            bench.hub.set("motion.tool", "gone");
        else if (before == "moving" && bench.run("move.move_to.jc", ::request(kAside, 1)).isDone())
            bench.run("move.opr.enough");
        else
            bench.robot.setVersion(before.isEmpty() ? "3.1.0" : before);
        const Reply reply = bench.run(command, request);
        QVERIFY(!reply.isDone());
        QCOMPARE(reply.code, error == 1 ? -32601 : -32000);
        QCOMPARE(bench.error(), error == 1 ? 0 : error);
        bench.run("move.opr.enough");
        QCOMPARE(bench.state() == "moving", before == "moving");
    }

    void toolAndWorkObject()
    {
        Bench bench;
        bench.hub.set("motion.tool", "long");
        bench.hub.set("motion.wobj", "table");
        // 300 mm along the table's X, which is the base's Y; the tool's tip is 200 mm below.
        bench.run("move.move_to.l", request({300, -290, 850, 180, 0, 90}, 1));
        bench.run("move.opr.enough");
        bench.now += 10;
        bench.motion.update();
        const QVector<double> flange = bench.pose();
        QVERIFY2(std::abs(flange[0] - 790) + std::abs(flange[1] - 300) + std::abs(flange[2] - 1050)
                     < 0.01,
                 qPrintable(QString::number(bench.error())));

        const QString command = "project.rl_program.get_rob_pos";
        const QJsonValue there
            = bench.run(command, json(R"({"tool": "long", "wobj": "table"})")).result;
        QCOMPARE(there["joint"]["inner_pos"].toArray().size(), 7);
        QCOMPARE(there["joint"]["extern_pos"].toArray().size(), 6);
        const QJsonValue frame = there["cartesian"]["pose"]["frame"];
        QVERIFY(std::abs(frame["pos"]["x"].toDouble() - 300) < 0.01);
        QVERIFY(std::abs(frame["pos"]["y"].toDouble() + 290) < 0.01);
        const QJsonValue euler = frame["ori"]["euler"];
        const QJsonValue q = frame["ori"]["quaternion"];
        const simulator::Pose turn {
            0, 0, 0, euler["a"].toDouble(), euler["b"].toDouble(), euler["c"].toDouble()};
        const auto same = KDL::Rotation::Quaternion(q["q2"].toDouble(), q["q3"].toDouble(),
                                                    q["q4"].toDouble(), q["q1"].toDouble());
        QVERIFY(KDL::Equal(same, turn.toFrame().M, 1e-6));
        QCOMPARE(there["cartesian"]["conf"].toObject().size(), 8);
        QVERIFY(bench.run(command, json(R"({"tool": "gone", "wobj": "wobj0"})"))
                    .reason.contains("'gone'"));
    }

    void pathCheck_data()
    {
        QTest::addColumn<QString>("from");
        QTest::addColumn<QString>("to");
        QTest::addColumn<int>("error");
        QTest::newRow("allowed") << "left"
                                 << "right" << 0;
        QTest::newRow("in a work object") << "left"
                                          << "on table" << 0;
        QTest::newRow("from a joint target") << "home"
                                             << "right" << 0;
        QTest::newRow("past a stretched wrist") << "ahead"
                                                << "right" << -50003;
        QTest::newRow("wrist turns over") << "forward left"
                                          << "forward right" << -50004;
        QTest::newRow("far") << "left"
                             << "far" << -50001;
        QTest::newRow("axis beyond") << "bent"
                                     << "left" << -50002;
        QTest::newRow("other configuration") << "left"
                                             << "turned" << -50005;
        QTest::newRow("unknown") << "left"
                                 << "Right" << -50006;
        QTest::newRow("no position") << "empty"
                                     << "right" << -50006;
        QTest::newRow("unknown tool") << "left"
                                      << "no tool" << -50008;
    }

    void pathCheck()
    {
        QFETCH(QString, from);
        QFETCH(QString, to);
        QFETCH(int, error);
        QTemporaryDir directory;
        Bench bench(directory.filePath("point.json"));
        QFile file(bench.pointsFile);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(points());
        file.close();
        const QJsonValue answer = bench.run("move.path.check", QJsonArray {from, to}).result;
        QVERIFY2(answer["error"].toInt() == error, qPrintable(answer["message"].toString()));
        QCOMPARE(answer.toObject().isEmpty(), error == 0);
    }
};

QTEST_GUILESS_MAIN(TestArmMotion)
#include "tst_armmotion.moc"
