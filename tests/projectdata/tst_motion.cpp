#include "offscreen.h"
#include "openproject.h"
#include "sentcommands.h"
#include "testcolumns.h"

#include <limits>

using namespace zeplet;

namespace
{

const QString reset = "move.reset null";
const QString watchOn = "watch move.last_error_with_setting true";
const QString watchOff = "watch move.last_error_with_setting false";
const QString enough = "move.opr.enough null";

const char *const points = R"([
    {"name": "P1", "value": {
        "[0][0][0]": {"pose": {"frame": {"pos": {"x": 250, "y": -1, "z": 0},
                                         "ori": {"euler": {"a": 90, "b": 0, "c": -180}}}},
                      "conf": {"cf1": 1, "cf2": 2, "cf3": 3, "cf4": 4, "cf5": 5, "cf6": 6,
                               "cf7": 7, "cfx": 8}},
        "[1][0][0]": {"pose": {"frame": {"pos": {"x": 9, "y": 9, "z": 9}}}}}},
    {"name": "turn", "value": {"[0][0][0]": {"pose": {"frame": {"pos": {},
                                             "ori": {"euler": {"a": 1, "b": 2, "c": 3}}}},
                                             "conf": {}}}},
    {"name": "shift", "value": {"[0][0][0]": {"pose": {"frame": {"pos": {"x": 1}}}}}},
    {"name": "second", "value": {"[1][0][0]": {}}},
    {"name": "bare"},
    {"value": {"[0][0][0]": {"pose": {"frame": {"pos": {"x": 1}}}}}}])";

const QString trans = R"("trans":[0.25,-0.001,0])";
const QString rot = R"("rot":[1.5707963267948966,0,-3.141592653589793])";
const QString conf = R"("conf":[1,2,3,4,5,6,7,8],)";

QString request(const QString &command, const QString &point, const QString &speed)
{
    return command + R"( {"point":{)" + point + R"(},"traj":{"speed":)" + speed + "}}";
}

} // namespace

class TestMotion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { ignoreOffscreenNoise(); }

    void init()
    {
        m_project = std::make_unique<OpenProject>(m_fake);
        m_sent = std::make_unique<SentCommands>(m_fake.hub);
        OpenProject::setPoints(points);
    }

    void moveToStart_data()
    {
        const auto row = testcolumns<QString, QString, bool, bool, int, QStringList>(
            "version", "name", "useConf", "joint", "result", "sent");
        const auto sent = [](const QString &line) {
            return QStringList {reset, watchOn, line, enough};
        };
        const QString whole = conf + rot + ',' + trans;
        row("2.3", "2.3.1", "P1", true, false, 0, sent(request("move.move_to.l", whole, "0.5")));
        row("3.10", "3.10", "P1", true, true, 0, sent(request("move.move_to.jc", whole, "0.5")));
        row("2.2", "2.2", "P1", false, true, 0, sent(request("move.j", whole, "0.5")));
        row("3.3.1", "3.3.1", "P1", true, false, 0, sent(request("move.l", whole, "0.5")));
        row("no conf wanted", "3.2", "P1", false, false, 0,
            sent(request("move.move_to.l", rot + ',' + trans, "0.5")));
        row("no position", "3.0", "turn", false, false, 0,
            sent(request("move.move_to.l",
                         q("'rot':[0.017453292519943295,0.03490658503988659,0.05235987755982989]"),
                         "0.5")));
        row("no rotation", "", "shift", false, false, 0,
            sent(request("move.l", q("'trans':[0.001,0,0]"), "0.5")));
        row("conf wanted", "3.1", "shift", true, false, -2, {reset, watchOn});
        row("empty conf, joint", "3.1", "turn", false, true, -2, {reset, watchOn});
        row("other case", "3.1", "p1", true, false, -1, {});
        row("no name", "3.1", "", false, false, -1, {});
        row("other element", "3.1", "second", false, false, -1, {});
        row("no value", "3.1", "bare", false, false, -1, {});
    }

    void moveToStart()
    {
        QFETCH(QString, version);
        QFETCH(QString, name);
        QFETCH(bool, useConf);
        QFETCH(bool, joint);
        QFETCH(QStringList, sent);
        LogCapture log;
        m("brisa.r.version")->set(nullptr, version);
        int result = 99;
        zepletInterface()->moveToStart(result, name, 500, useConf, joint);
        QTEST(result, "result");
        QTRY_COMPARE(m_sent->seen(), sent);
        if (result != 0) {
            const QString problem = result == -2     ? "conf missing for MoveJ/jc"
                : name == "second" || name == "bare" ? "value.[0][0][0] missing"
                                                     : "point not found";
            QCOMPARE(log.ofLevel("E"), QStringList("moveToStart: " + problem + ", name=" + name));
        } else {
            const QString node = sent.at(2).section(' ', 1);
            QCOMPARE(log.ofLevel("I"), QStringList(" moveToStart : " + node));
        }
    }

    void theShortFormWantsTheConfiguration()
    {
        m("brisa.r.version")->set(nullptr, "3.1");
        int result = 99;
        zepletInterface()->moveToStart(result, "shift", 500, false);
        QCOMPARE(result, -2);
        zepletInterface()->moveToStart(result, "P1", 1, true);
        QCOMPARE(result, 0);
        const QString line = request("move.move_to.jc", conf + rot + ',' + trans, "0.001");
        QTRY_COMPARE(m_sent->seen(), QStringList({reset, watchOn, reset, line, enough}));
    }

    void aTargetThatIsNoNumberMovesNothing()
    {
        auto *element = OpenProject::list()->childAt(0)->child("value")->child("[0][0][0]");
        for (const char *field : {"pose.frame.pos.z", "pose.frame.ori.euler.b", "conf.cfx"}) {
            element->set(nullptr, field, std::numeric_limits<double>::quiet_NaN(), true);
            int result = 99;
            zepletInterface()->moveToStart(result, "P1", 500, true, false);
            QCOMPARE(result, -1);
            element->set(nullptr, field, 0, true);
        }
        QCOMPARE(m_sent->take(), QStringList());
    }

    void moveToStop()
    {
        int result = 99;
        for (const auto &[version, argument] :
             {std::pair {"3.2", "{'task_space':1}"}, std::pair {"3.3.1", "null"}}) {
            m("brisa.r.version")->set(nullptr, version);
            zepletInterface()->moveToStart(result, "P1", 500, true);
            m_sent->take();
            zepletInterface()->moveToStop();
            const QStringList stop {watchOff, "move.stop " + q(argument)};
            QTRY_COMPARE(m_sent->seen().mid(m_sent->seen().size() - 2), stop);
        }
    }

    void checkPointMoveTo_data()
    {
        const auto row = testcolumns<QString, int>("answer", "result");
        row("no error", q("{'path': 1}"), 0);
        row("harmless error", q("{'error': -50003}"), 0);
        row("error", q("{'error': -50004}"), -2);
        row("error without a number", q("{'error': 'no way'}"), -2);
        row("refused", "", -2);
    }

    void checkPointMoveTo()
    {
        QFETCH(QString, answer);
        if (answer.isEmpty()) {
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression("hub.command move.path.check"));
            m_fake.hub.refuse("hub.command", "not now");
        } else {
            m_project->setAnswer(json(answer.toUtf8()));
        }
        QTEST(zepletInterface()->checkPointMoveTo("P1", "a.b #2"), "result");
        QCOMPARE(m_sent->take(), QStringList(q("move.path.check ['P1','a.b #2']")));
        QCOMPARE(zepletInterface()->checkPointMoveTo("P1", "P1"), 1);
        QCOMPARE(m_sent->take(), QStringList());
    }

    void cleanup()
    {
        m_project->setAnswer(0);
        zepletInterface()->moveToStop();
        QTRY_VERIFY(m_sent->seen().join(' ').contains("move.stop"));
        m_project.reset();
    }

private:
    FakeController m_fake;
    std::unique_ptr<OpenProject> m_project;
    std::unique_ptr<SentCommands> m_sent;
};

QTEST_MAIN(TestMotion)
#include "tst_motion.moc"
