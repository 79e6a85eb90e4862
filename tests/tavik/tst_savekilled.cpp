#include "logcapture.h"
#include "stepkill.h"
#include "testcolumns.h"

#include <brisa/managerhelper.h>
#include <brisa/settingmanager.h>
#include <ostrel/modulemanager.h>
#include <ostrel/moduleobject.h>
#include <tavik/robotdata.h>

#include <QDir>
#include <QFile>
#include <QJsonObject>
#include <QTemporaryDir>

namespace
{

const QString file = QStringLiteral("ws/R1/cell/point.json");
// Several writes long.
const QJsonObject content {{"text", QString(100000, 'n')}};
const QByteArray none = "(none)";

QByteArray read(const QString &path)
{
    QFile source(path);
    return source.open(QIODevice::ReadOnly) ? source.readAll() : none;
}

void write(const QString &path, const QByteArray &bytes)
{
    QFile target(path);
    QVERIFY(target.open(QIODevice::WriteOnly) && target.write(bytes) == bytes.size());
}

bool save()
{
    return ostrel::ModuleManager::writeToJson(file, content, true);
}

} // namespace

/** A save whose process is killed at any of its system calls. */
class TestSaveKilled : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(QDir::setCurrent(m_directory.path()));
        brisa::ManagerHelper::instance()->settingManager()->set("workspace", "ws");
        m_data = std::make_unique<tavik::RobotData>();
        m("brisa.r.id")->set(nullptr, "R1");
        QVERIFY(QDir().mkpath("ws/R1/cell") && save());
        m_complete = read(file);
    }

    void oldOrNew_data()
    {
        const auto row = testcolumns<QByteArray, bool>("old", "copied");
        row("first save", none, false);
        row("later save", R"({"version": "0.2", "points": []})", false);
        row("damaged file", QByteArray(40000, '{'), true);
    }

    void oldOrNew()
    {
        QFETCH(QByteArray, old);
        QFETCH(bool, copied);
        LogCapture log;
        int call = 0;
        int kept = 0;
        for (StepKill outcome = StepKill::Killed; outcome == StepKill::Killed; ++call) {
            prepare(old);
            outcome = killAtCall(call, save);
            if (outcome == StepKill::Forbidden)
                QSKIP("this system lets no process trace another one");
            QVERIFY(outcome != StepKill::Failed);
            const QByteArray found = read(file);
            QVERIFY2(found == old || found == m_complete, qPrintable(QString::number(call)));
            kept += found == old;
            QVERIFY(!copied || found == old || !copies().isEmpty());
            QVERIFY(copies().isEmpty() || copies() == QByteArrayList({old}));

            const QStringList left = scratchFiles();
            QVERIFY2(left.size() <= 1, qPrintable(left.join(' ')));
            QVERIFY(save());
            QCOMPARE(read(file), m_complete);
            QCOMPARE(scratchFiles(), left);
        }
        // The calls were those of the save: it was met on both sides of its turning point.
        QVERIFY2(kept > 10 && kept < call - 1, qPrintable(QString("%1/%2").arg(kept).arg(call)));
    }

    void cleanupTestCase()
    {
        m_data.reset();
        QDir::setCurrent("/");
    }

private:
    /** The project open with the old file, nothing beside it. */
    static void prepare(const QByteArray &old)
    {
        QVERIFY(QDir("ws/R1/cell").removeRecursively() && QDir().mkpath("ws/R1/cell"));
        if (old != none)
            write(file, old);
        m("tavik.project.cur_project")->set(nullptr, "R1/cell");
        m("tavik.project.convert_signal")->set(nullptr, true);
    }

    /** What the copies of the damaged file hold. */
    static QByteArrayList copies()
    {
        QByteArrayList contents;
        for (const QFileInfo &copy : QDir("ws/R1/cell").entryInfoList({"*.damaged-*"}))
            contents.append(read(copy.filePath()));
        return contents;
    }

    static QStringList scratchFiles()
    {
        QStringList names = QDir("ws/R1/cell").entryList(QDir::Files | QDir::Hidden);
        names.removeOne("point.json");
        for (const QString &copy : QDir("ws/R1/cell").entryList({"*.damaged-*"}))
            names.removeOne(copy);
        return names;
    }

    // In memory where that can be had: the disk's own sync would take most of the time.
    QTemporaryDir m_directory {(QFileInfo("/dev/shm").isWritable() ? "/dev/shm" : QDir::tempPath())
                               + QString("/savekilled-XXXXXX")};
    std::unique_ptr<tavik::RobotData> m_data;
    QByteArray m_complete;
};

QTEST_GUILESS_MAIN(TestSaveKilled)
#include "tst_savekilled.moc"
