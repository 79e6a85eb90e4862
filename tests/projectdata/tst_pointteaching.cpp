#include "openproject.h"

#include <QSignalSpy>
#include <memory>

using namespace zeplet;

namespace
{

const QString method = "project.rl_program.get_rob_pos";

const QByteArray report = R"({
    "joint": {"inner_pos": [1, 2, 3, 4, 5, 6, 7], "extern_pos": [11, 12, 13, 14, 15]},
    "cartesian": {"conf": {"cf1": 1, "cfx": 3}, "pose": {"elb": 9, "frame": {
        "pos": {"x": 1.5, "y": 2, "z": 3}, "ori": {"euler": {"a": 4, "b": 5, "c": 6},
                                                  "quaternion": {"q1": 1, "q4": 0.5}}}}}})";

const QByteArray jointElement = R"({"inner_pos": [1, 2, 3, 4, 5, 6, 7],
    "extern_pos": [11, 12, 13, 14, 15, 0], "coord": {"tool": "", "wobj": "w"}})";

const QByteArray cartElement = R"({"external_joint": [11, 12, 13, 14, 15, 0],
    "coord": {"tool": "", "wobj": "w"}, "conf": {"cf1": 1, "cf2": 0, "cf3": 0, "cf4": 0, "cf5": 0,
    "cf6": 0, "cf7": 0, "cfx": 3}, "pose": {"elb": 9, "frame": {"pos": {"x": 1.5, "y": 2, "z": 3},
    "ori": {"euler": {"a": 4, "b": 5, "c": 6},
            "quaternion": {"q1": 1, "q2": 0, "q3": 0, "q4": 0.5}}}}})";

const QByteArray points = R"([
    {"name": "One", "value": {"[0][0][0]": {"inner_pos": [8]}}, "own": 1},
    {"name": "ONE"},
    {"name": "Array", "value": {"[0][0][0]": {}, "[1][0][0]": {}}, "own": 1}])";

} // namespace

class TestPointTeaching : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_project.reset(); // gives the search path back
        m_project = std::make_unique<OpenProject>(m_fake);
        m_project->setPoints(points);
        m_fake.controller.answer(method, json(report));
    }

    void aNewPointComesToTheEnd()
    {
        LogCapture log;
        QVERIFY(teach(" New ", true, "[2]"));
        const QJsonObject record = zepletInterface()->getPointObjDataByName(" New ");
        QCOMPARE(m_project->element(" New ", "[2][0][0]"), json(jointElement));
        QCOMPARE(record["value"].toObject().size(), 1);
        QCOMPARE(record["property"], QJsonValue("joint"));
        QCOMPARE(record["func"], QJsonValue("main"));
        QCOMPARE(record["id"], QJsonValue(3));
        QCOMPARE(m_project->announced(), QString("add 3"));
        QCOMPARE(m_fake.controller.last(method).params, json(R"({"tool": "", "wobj": "w"})"));
        QVERIFY(!m_project->pushed().isEmpty());
    }

    // All points of that name with one element or none go, and their own fields with them.
    void aPlainPointIsReplacedAndMovesToTheEnd()
    {
        LogCapture log;
        QVERIFY(teach("one", false, ""));
        QCOMPARE(zepletInterface()->getPointNameList(), QStringList({"Array", "one"}));
        QCOMPARE(m_project->element("one"), json(cartElement));
        const QJsonObject record = zepletInterface()->getPointObjDataByName("one");
        QVERIFY(!record.contains("own"));
        QCOMPARE(record["id"], QJsonValue(1));
        QCOMPARE(record["property"], QJsonValue("cart"));
        QCOMPARE(m_project->announced(), QString("edit 1"));
    }

    void anArrayPointIsTaughtInPlace()
    {
        QSignalSpy record(m_project->list()->childAt(2), &ostrel::ModuleObject::changed);
        LogCapture log;
        QVERIFY(teach("ARRAY", false, "[1]"));
        QVERIFY(teach("array", true, "a.b"));
        QCOMPARE(record.size(), 2);
        QCOMPARE(m_project->list()->getStr("#2.property", ""), QString("joint"));
        QCOMPARE(m_project->element("Array", "[1][0][0]"), json(cartElement));
        QCOMPARE(m_project->element("Array", "a.b"), json(jointElement));
        QCOMPARE(zepletInterface()->getPointObjDataByName("Array")["own"], QJsonValue(1));
        QCOMPARE(m_project->announced(), QString("edit 2"));

        m_project->list()->childAt(2)->set(nullptr, "pers", "true", true);
        m_project->setAnswer(3);
        const QByteArray before = m_project->file();
        QVERIFY(!teach("Array", true, "[1]"));
        QCOMPARE(zepletInterface()->getPointJointDataByName("Array", "[1]").value(0), 1.0);
        QCOMPARE(m_project->file(), before);
    }

    void withoutAnAnswerZerosAreTaughtAndSaid()
    {
        m_fake.controller.refuse(method, "no");
        LogCapture log;
        QVERIFY(teach("one", true, ""));
        QVERIFY(log.ofLevel("E").contains(
            "addCurrentPoint: no position from the controller, taught as zeros, name=one"));
        QCOMPARE(zepletInterface()->getPointJointDataByName("one", ""), QVector<double>(7, 0.0));
    }

    void withoutALinkOrANameNothingIsTaught()
    {
        LogCapture log;
        QVERIFY(!teach("", true, ""));
        m_fake.setControllerUp(false);
        log.take();
        QVERIFY(!teach("one", true, ""));
        QCOMPARE(log.take(), QStringList());
        QCOMPARE(m_project->list()->exportToJson(), json(points));
    }

    // A page may ask for the position while it hears of the change.
    void whatOthersAskMeanwhileIsNotTaught()
    {
        QObject page;
        connect(m_project->list(), &ostrel::ModuleObject::changed, &page, [this] {
            m_fake.controller.answer(method, json(R"({"joint": {"inner_pos": [50]}})"));
            zepletInterface()->getCurrentPointData("other", "other");
        });
        LogCapture log;
        QVERIFY(teach("one", true, ""));
        QCOMPARE(m_project->element("one"), json(jointElement));
    }

private:
    static bool teach(const QString &name, bool joint, const QString &index)
    {
        return zepletInterface()->addCurrentPoint(name, joint, "", "w", index);
    }

    FakeController m_fake;
    std::unique_ptr<OpenProject> m_project;
};

QTEST_MAIN(TestPointTeaching)
#include "tst_pointteaching.moc"
