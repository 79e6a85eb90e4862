#include "robotpeer.h"

#include <ostrel/modulemanager.h>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>

using ostrel::ModuleManager;

namespace
{

const QString pointFile = QStringLiteral("ws/R1/cell/point.json");
const QString variableFile = QStringLiteral("ws/R1/cell/var.json");
const QByteArray points
    = R"({"version": "0.2", "points": [{"name": "P1", "property": "cart",)"
      R"("pers": "false", "d": [0, 0, 0], "value": {"note": 5, "[0][0][0]": {"inner_pos": [1, 2.5],)"
      R"("pose": {"frame": {"pos": {"x": 1}}, "elb": 0}, "coord": {"tool": "tool0"}}, "[1][0][0]": null}}]})";
const QByteArray variables = R"({"version": "0.2", "variables": [{"name": "v", "type": "int",)"
                             R"("id": 0, "value": {"[0][0][0]": 5}, "pers": true, "extra": [1]}]})";

int count(const char *list)
{
    return m(list)->childCount();
}

int copies()
{
    return QDir("ws/R1/cell").entryList({"*.damaged-*"}).size();
}

} // namespace

/** The files of a project: what is read, what is refused, and that nothing is lost of the latter.
 */
class TestProjectFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_peer = std::make_unique<RobotPeer>();
        m("brisa.r.id")->set(nullptr, "R1");
        m_peer->write(variableFile, variables);
    }

    void cleanup() { m_peer.reset(); }

    void damagedFiles()
    {
        const struct {
            QString file;
            QByteArray content;
            const char *reason;
        } rows[] = {
            {pointFile, "", "no JSON (line 1"},
            {pointFile, points.left(points.size() / 2), "line"},
            {pointFile, "\xff\xfe[]", "no JSON (line 1"},
            {pointFile, "[]", "no JSON object"},
            {pointFile, R"({"points": []})", "no version"},
            {pointFile, R"({"version": 0.2, "points": []})", "no version"},
            {pointFile, R"({"version": "0.3", "points": []})", "its version is \"0.3\""},
            {pointFile, R"({"version": "0.2", "points": {}})", "no list \"points\""},
            {pointFile, R"({"version": "0.2", "points": [{"name": "a"}, 5]})", "record 2"},
            {pointFile, R"({"version": "0.2", "points": [{"name": 5}]})", "\"name\""},
            {pointFile, R"({"version": "0.2", "points": [{"value": []}]})", "\"value\""},
            {pointFile, R"({"version": "0.2", "points": [{"value": {"[0][0][0]": 7}}]})",
             "an element is no object"},
            {pointFile,
             R"({"version": "0.2", "points": [{"value": {"[0]": {"inner_pos": ["1"]}}}]})",
             "\"inner_pos\""},
            {pointFile,
             R"({"version": "0.2", "points": [{"value": {"[0]": {"pose": {"x": {"y": "0"}}}}}]})",
             "\"pose\""},
            {variableFile, R"({"version": "0.2", "variables": [{"pers": "true"}]})", "\"pers\""},
            {variableFile, R"({"version": "0.2", "points": []})", "no list \"variables\""},
        };
        for (const auto &[file, content, reason] : rows) {
            cleanup();
            init();
            m_peer->write(pointFile, points);
            m_peer->write(file, content);
            open();
            const QString told = m_peer->told();
            QVERIFY2(told.contains(file) && told.contains(reason), qPrintable(told));
            const bool point = file == pointFile;
            QCOMPARE(count("tavik.project.point._list"), point ? 0 : 1);
            QCOMPARE(count("tavik.project.var._list"), point ? 1 : 0);
            QCOMPARE(RobotPeer::read(file), content);
            // The first save keeps a copy, later ones have nothing to keep.
            QVERIFY(ModuleManager::writeToJson(file, QJsonArray {1}, true));
            QVERIFY(ModuleManager::writeToJson(file, QJsonArray {2}, true));
            const QFileInfoList kept = QDir("ws/R1/cell").entryInfoList({"*.damaged-*"});
            QCOMPARE(kept.size(), 1);
            QCOMPARE(RobotPeer::read(kept.first().filePath()), content);
        }
    }

    void soundAndMissingFiles()
    {
        open(); // no point.json
        QCOMPARE(count("tavik.project.point._list"), 0);
        QVERIFY(m("tavik.project.point._list")->isList());
        m_peer->write(pointFile, points);
        open();
        QCOMPARE(m("tavik.project.point._list")->childAt(0)->childNames(),
                 QStringList({"name", "property", "pers", "d", "value"}));
        QCOMPARE(count("tavik.project.var._list"), 1);
        QVERIFY(ModuleManager::writeToJson(pointFile, QJsonArray(), true));
        QCOMPARE(copies(), 0);
        QCOMPARE(m_peer->told(), QString());
    }

    void mendedFileNeedsNoCopy()
    {
        m_peer->write(pointFile, "{");
        open();
        m_peer->write(pointFile, points);
        open();
        QVERIFY(ModuleManager::writeToJson(pointFile, QJsonArray(), true));
        QCOMPARE(copies(), 0);
    }

    /** Without an open project the lists start empty, and saves go to the scratch project. */
    void scratchIsKept()
    {
        const QString scratch = QStringLiteral("ws/R1/_temp/point.json");
        m_peer->write(scratch, points);
        QVERIFY(ModuleManager::writeToJson(scratch, QJsonArray {1}, true));
        QVERIFY(ModuleManager::writeToJson(scratch, QJsonArray {2}, true));
        const QFileInfoList kept = QDir("ws/R1/_temp").entryInfoList({"point.json.kept-*"});
        QCOMPARE(kept.size(), 1);
        QCOMPARE(RobotPeer::read(kept.first().filePath()), points);
    }

    void copyThatCannotBeMade()
    {
        const QByteArray damaged(65536, '[');
        m_peer->write(pointFile, damaged);
        open();
        rlimit old = {};
        ::getrlimit(RLIMIT_FSIZE, &old);
        const rlimit small {4096, old.rlim_max};
        std::signal(SIGXFSZ, SIG_IGN);
        ::setrlimit(RLIMIT_FSIZE, &small);
        const bool saved = ModuleManager::writeToJson(pointFile, QJsonArray(), true);
        ::setrlimit(RLIMIT_FSIZE, &old);
        QVERIFY(!saved);
        QCOMPARE(RobotPeer::read(pointFile), damaged);
        QCOMPARE(copies(), 0);
        QVERIFY(ModuleManager::writeToJson(pointFile, QJsonArray(), true));
        QCOMPARE(copies(), 1);
    }

    void whatIsNoPlainFile()
    {
        m_peer->write("elsewhere.json", points);
        for (const QString kind : {"link", "pipe", "directory"}) {
            QFile::remove(pointFile);
            if (kind == "link")
                QVERIFY(QFile::link(QFileInfo("elsewhere.json").absoluteFilePath(), pointFile));
            else if (kind == "pipe")
                QCOMPARE(::mkfifo(qPrintable(pointFile), 0600), 0);
            else
                QVERIFY(QDir().mkpath(pointFile));
            open();
            QCOMPARE(count("tavik.project.point._list"), 0);
            QVERIFY(m_peer->told().contains(kind == "link" ? "symbolic link" : "no plain file"));
            QVERIFY(!ModuleManager::writeToJson(pointFile, QJsonArray(), true));
        }
        QCOMPARE(RobotPeer::read("elsewhere.json"), points);
    }

    void tenThousandPoints()
    {
        QJsonArray records;
        for (int i = 0; i < 10000; ++i)
            records.append(
                QJsonObject {{"name", QString("P%1").arg(i)}, {"d", QJsonArray {0, 0, 0}}});
        const QJsonObject file {{"version", "0.2"}, {"points", records}};
        m_peer->write(pointFile, QJsonDocument(file).toJson());
        open();
        QCOMPARE(count("tavik.project.point._list"), 10000);
    }

private:
    void open()
    {
        m("tavik.project.cur_project")->set(nullptr, "R1/cell");
        m("tavik.project.convert_signal")->set(nullptr, true);
        QCOMPARE(m("tavik.project.convert_signal")->getBool(true), false);
    }

    std::unique_ptr<RobotPeer> m_peer;
};

QTEST_GUILESS_MAIN(TestProjectFiles)
#include "tst_projectfiles.moc"
