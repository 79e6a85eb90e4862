#include "openproject.h"
#include "testcolumns.h"

#include <zeplet/projectdata/pointrecords.h>

using namespace zeplet;

namespace
{

const QByteArray points = R"([
    {"name": "P1", "d": [2, 3], "value": {"[0][0][0]": {"inner_pos": [1, 2.5, 3]},
        "note": {"pose": {}}, "a.b": {"pose": {}},
        "[1][0][0]": {"pose": {"frame": {"pos": {"x": 1, "y": 2, "z": 3},
                                         "ori": {"euler": {"a": 4, "b": 5}}}}}}},
    {"name": "p1", "value": {"[0][0][0]": {}, "[1][0][0]": {}, "other": {}}},
    {"value": {}}, {"name": 5}, {"name": "5"}, {"name": "a.b"}, {"name": "#0"}])";

} // namespace

class TestPointQueries : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { OpenProject::setPoints(points); }

    void normalizesIndexes()
    {
        const QPair<QString, QString> rows[] = {{"", "[0][0][0]"},
                                                {" \t", "[0][0][0]"},
                                                {"[2]", "[2][0][0]"},
                                                {" [1][3] ", "[1][3][0]"},
                                                {"[1][2][3]", "[1][2][3]"},
                                                {"[1][2][3][4]", "[1][2][3][4]"},
                                                {" 7 ", "7"},
                                                {"[0].pose", "[0].pose[0][0]"}};
        for (const auto &[index, normalized] : rows)
            QCOMPARE(normalizePointValueIndex(index), normalized);
    }

    void findsRecordsByName()
    {
        const QPair<QString, int> rows[] = {{"P1", 0},  {"p1", 0}, {"", 2},     {"5", 3},
                                            {"A.B", 5}, {"#0", 6}, {"P1 ", -1}, {"#1.name", -1}};
        for (const auto &[name, expected] : rows) {
            int place = 99;
            auto *record = findPointByName(OpenProject::list(), name, &place);
            QCOMPARE(place, expected);
            QCOMPARE(record, OpenProject::list()->childAt(expected));
        }
        int place = 99;
        QVERIFY(!findPointByName(nullptr, "P1", &place));
        QCOMPARE(place, -1);
        QCOMPARE(countPointValueElements(nullptr), 0);
        QCOMPARE(countPointValueElements(findPointByName(OpenProject::list(), "5", nullptr)), 0);
    }

    void listsAndComparesToTheLetter()
    {
        auto *manager = zepletInterface();
        QCOMPARE(manager->getPointNameList(), QStringList({"P1", "p1", "", "5", "5", "a.b", "#0"}));
        QCOMPARE(manager->getPointValueIndexList("P1"), QStringList({"[0][0][0]", "[1][0][0]"}));
        QCOMPARE(manager->getPointDimensions("P1"), QVector<int>({2, 3, 0}));
        QCOMPARE(manager->getPointDimensions("none"), QVector<int>());
        QVERIFY(!manager->checkPointSame("P1", "p1"));
        const QJsonArray records = json(points).toArray();
        QCOMPARE(manager->getPointObjDataByName("p1"), records[1].toObject());
        QCOMPARE(manager->getPointObjDataByName("A.B"), QJsonObject());
        // What JSON shows as no text has no name to compare.
        QCOMPARE(manager->getPointObjDataByName("5"), records[4].toObject());
        QCOMPARE(manager->getPointObjDataByName(""), records[2].toObject());

        OpenProject::setPoints(R"([{"name": "p", "value": {"[0]": 1, "[1]": 1, "x": 1}}])");
        QCOMPARE(manager->getPointDimensions("P"), QVector<int>({2, 0, 0}));
    }

    void readsElements_data()
    {
        const auto row = testcolumns<QString, bool, QVector<double>, QString>("index", "joint",
                                                                              "values", "error");
        const QString cart = "getPointDataByName: ";
        const QString joint = "getPointJointDataByName: ";
        row("joint values", "", true, {1, 2.5, 3, 0, 0, 0, 0}, "");
        row("a pose", "[1]", false, {1, 2, 3, 4, 5, 0}, "");
        row("no pose", " ", false, {}, cart + "no cart pose at index, name=p1 index=[0][0][0]");
        row("no joints", "[1]", true, {}, joint + "no inner_pos, name=p1 index=[1][0][0]");
        const QString indexes[] = {"[2][0][0]", "[0][0][0][0]", "note", "a.b", "[1][0][0].pose"};
        for (const QString &index : indexes) {
            const QString where = "not found, name=p1 index=" + index;
            row(qPrintable("pose " + index), index, false, {}, cart + "value index " + where);
            row(qPrintable("joints " + index), index, true, {}, joint + where);
        }
    }

    void readsElements()
    {
        QFETCH(QString, index);
        QFETCH(bool, joint);
        QFETCH(QVector<double>, values);
        QFETCH(QString, error);
        LogCapture log;
        auto *manager = zepletInterface();
        QCOMPARE(joint ? manager->getPointJointDataByName("p1", index)
                       : manager->getPointDataByName("p1", index),
                 values);
        QCOMPARE(log.ofLevel("E").join('\n'), error);
        QCOMPARE(OpenProject::list()->exportToJson(), json(points)); // reading makes nothing
    }

    void asksForThePositionWithTheSelectedFrames()
    {
        const QString method = "project.rl_program.get_rob_pos";
        const auto sent = [&](const QString &tool, const QString &wobj) {
            const QJsonValue position = zepletInterface()->getCurrentPointData(tool, wobj);
            const QJsonObject params = m_fake.controller.last(method).params.toObject();
            return QString(position["joint"].toString() + params["tool"].toString() + '|'
                           + params["wobj"].toString());
        };
        m_fake.controller.answer(method, json(R"({"joint": "j "})"));
        QCOMPARE(sent("", ""), QString("j tool0|wobj0"));
        m("tavik.toolpage")->set(nullptr, QVariantMap {{"tool", "grip"}, {"wobj", ""}});
        QCOMPARE(sent("", ""), QString("j grip|"));
        QCOMPARE(sent("a", "b"), QString("j a|b"));
        m_fake.controller.refuse(method, "no");
        LogCapture log;
        QVERIFY(zepletInterface()->getCurrentPointData("a", "b").isNull());
    }

private:
    FakeController m_fake;
    OpenProject m_project {m_fake};
};

QTEST_MAIN(TestPointQueries)
#include "tst_pointqueries.moc"
