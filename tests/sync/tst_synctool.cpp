#include "logcapture.h"
#include "offscreen.h"
#include "standins.h"
#include "testcolumns.h"

#include <QElapsedTimer>
#include <QProgressDialog>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <brisa/managerhelper.h>
#include <brisa/settingmanager.h>
#include <kest/centerwidget.h>
#include <zeplet/sync/synclimits_p.h>
#include <zeplet/sync/synctool.h>

using namespace zeplet;

using Operation = std::function<bool()>;
Q_DECLARE_METATYPE(Operation)

namespace
{

bool pushDirectory()
{
    return SyncTool::instance()->pushFile("dir", "hmi/one", true);
}

bool pullDirectory(bool showProgress)
{
    return SyncTool::instance()->pullFile("hmi/one", "dir", showProgress, true);
}

bool pushOne(const QString &file = "point.json")
{
    return SyncTool::instance()->pushOneFile(file, "hmi/one/point.json", true);
}

QProgressDialog *dialog()
{
    return instantiatedCenterWidget()->findChild<QProgressDialog *>();
}

/** A data table with one row per operation. */
void operations()
{
    const auto row = testcolumns<Operation>("operation");
    row("push a directory", [] { return pushDirectory(); });
    row("pull a directory", [] { return pullDirectory(false); });
    row("pull a directory, with progress", [] { return pullDirectory(true); });
    row("push one file", [] { return pushOne(); });
}

const QString failed = "Synchronization failed";

} // namespace

class TestSyncTool : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        ignoreOffscreenNoise();
        brisa::ManagerHelper *const host = brisa::ManagerHelper::instance();
        host->settingManager()->set("server.ip", "10.0.0.9");
        connect(host, &brisa::ManagerHelper::logThrown, this,
                [this](QObject *, const QString &level, const QString &message) {
                    QCOMPARE(level, QString("error"));
                    m_banner.append(message);
                });
    }

    void init()
    {
        m_standIns = std::make_unique<StandIns>();
        m_log = std::make_unique<LogCapture>();
        brisa::ManagerHelper::instance()->setReady(true);
        syncLimits() = SyncLimits();
        syncLimits().controllerMark = "mark";
        StandIns::touch("mark");
        m_banner.clear();
    }

    void cleanup()
    {
        QVERIFY(!m_log->take().join('\n').contains("729413"));
        QVERIFY(!dialog() || !dialog()->isVisible());
        m_log.reset();
        m_standIns.reset();
    }

    void theCommandLines_data()
    {
        const auto row = testcolumns<Operation, QStringList>("operation", "calls");
        const QString own = "sudo|-S|chown|-R|tabrel:tabrel|";
        const QString push = "rsync|-tvz|--timeout=10|--contimeout=10|--progress|";
        const QString pull = "rsync|-rtvz|--perms|--chmod=a=rw,Da+x|--timeout=10|--contimeout=10|"
                             "--exclude=*\\_pers_|--delete|brisa@10.0.0.9::hmi/one/|";
        const QString file = "|brisa@10.0.0.9::hmi/one/point.json";

        row("push a directory", pushDirectory,
            {"rsync.exe|-rtvz|--timeout=10|--contimeout=10|--delete|--progress|dir|"
             "brisa@10.0.0.9::hmi/one/"});
        row("pull a directory", [] { return pullDirectory(true); },
            {own + "dir", "729413", pull + "dir"});
        row("push one file", [] { return pushOne(); },
            {own + "point.json", "729413", push + "point.json" + file});
        for (const char *name : {"a b;$(touch pwned)`x`&|<>\"%1%2", "/a/点 'x' \\"}) {
            row(name, [=] { return pushOne(name); }, {own + name, "729413", push + name + file});
        }
        for (const char *name : {"-x", "host:x", "host::x/y", "rsync://host/x"}) {
            row(name, [=] { return pushOne(name); },
                {own + "./" + name, "729413", push + "./" + name + file});
        }
    }

    void theCommandLines()
    {
        QFETCH(Operation, operation);
        QFETCH(QStringList, calls);
        m_standIns->setRsync("test \"$RSYNC_PASSWORD\" = 729413 && test -n \"$HOME\"");
        QFile::remove("mark");
        QVERIFY(operation());
        QCOMPARE(StandIns::takeCalls(), calls);
        QVERIFY(!QFile::exists("pwned"));
        const QString arguments = calls.last().section('|', 1).replace('|', ' ');
        const QStringList lines = m_log->ofLevel("I") + m_log->ofLevel("d");
        if (!arguments.contains("pwned")) // whose "|" is no separator
            QCOMPARE(lines, QStringList(lines.first().left(12) + arguments));
        QVERIFY(m_banner.isEmpty());

        StandIns::touch("mark");
        QVERIFY(operation());
        QCOMPARE(StandIns::takeCalls(), QStringList(calls.last()));
    }

    void theExitCodeDecides_data() { operations(); }
    void theExitCodeDecides()
    {
        QFETCH(Operation, operation);
        for (const char *end : {"exit 1", "exit 23", "kill -9 $$"}) {
            m_standIns->setRsync(QByteArray("echo no such module >&2; ") + end);
            QVERIFY2(!operation(), end);
            QCOMPARE(m_log->ofLevel("E").value(0), QString("no such module\n"));
            m_log->take();
            QCOMPARE(std::exchange(m_banner, {}), QStringList(failed));
        }
        m_standIns->setRsync("exit 0");
        QVERIFY(operation());
    }

    void aMissingProgramFailsAtOnce_data() { operations(); }
    void aMissingProgramFailsAtOnce()
    {
        QFETCH(Operation, operation);
        StandIns::removeRsync();
        QElapsedTimer timer;
        timer.start();
        QVERIFY(!operation());
        QVERIFY(timer.elapsed() < 10000);
        QVERIFY(m_log->ofLevel("E").value(0).contains("could not be started"));
        QCOMPARE(m_banner, QStringList(failed));
    }

    void whatHangsIsLetGo_data() { operations(); }
    void whatHangsIsLetGo()
    {
        QFETCH(Operation, operation);
        syncLimits().waitMs = 300;
        m_standIns->setRsync("until test -e go; do sleep 0.02; done; touch over");
        QVERIFY(!operation());
        QCOMPARE(std::exchange(m_banner, {}), QStringList(failed));

        // It ends well while the next one runs, which must not take that for its own end.
        m_standIns->setRsync("touch go; until test -e stop; do sleep 0.02; done");
        QVERIFY(!operation());
        QVERIFY(QFile::exists("over"));
        StandIns::touch("stop");
        QCOMPARE(m_banner, QStringList(failed));

        syncLimits().waitMs = 30000;
        m_standIns->setRsync("exit 0");
        QVERIFY(operation());
        QTRY_COMPARE(SyncTool::instance()->children().size(), 2); // process and loop
    }

    void aSecondSyncWhileOneRunsIsRefused()
    {
        m_standIns->setRsync("until test -e go; do sleep 0.02; done");
        QTimer::singleShot(0, this, [] {
            QVERIFY(dialog()->isVisible());
            QVERIFY(!pushDirectory());
            QVERIFY(!pullDirectory(false));
            QVERIFY(!pushOne());
            StandIns::touch("go");
        });
        QVERIFY(pushDirectory());
        QCOMPARE(StandIns::takeCalls().size(), 1);
        QCOMPARE(m_banner, QStringList({failed, failed, failed}));
    }

    void aClosedDialogDoesNotEndTheWait()
    {
        m_standIns->setRsync("until test -e go; do sleep 0.02; done; sleep 0.1");
        QTimer::singleShot(0, this, [] {
            QTest::keyClick(dialog(), Qt::Key_Escape);
            QVERIFY(!dialog()->isVisible());
            StandIns::touch("go");
        });
        QVERIFY(pullDirectory(true));
    }

    void withoutProgressNothingElseRuns()
    {
        bool ran = false;
        QTimer::singleShot(0, this, [&ran] { ran = true; });
        QVERIFY(pullDirectory(false));
        QVERIFY(pushOne());
        QVERIFY(!ran);
        QTRY_VERIFY(ran);
    }

    void theDialogComesBackWithItsCentreArea()
    {
        QVERIFY(pushDirectory());
        delete instantiatedCenterWidget();
        QVERIFY(!dialog());
        QVERIFY(pushDirectory());
        QVERIFY(dialog());
    }

    void nothingStartsWhereItMustNot_data()
    {
        const auto row = testcolumns<bool, QString, Operation>("ready", "banner", "operation");
        const QString cannot = "Cannot create path: ";
        SyncTool *const tool = SyncTool::instance();
        row("push, not ready", false, "", pushDirectory);
        row("pull, not ready", false, "", [] { return pullDirectory(true); });
        row("push one, not ready", false, "", [] { return pushOne(); });
        row("push from below a file", true, cannot + "mark/%1",
            [=] { return tool->pushFile("mark/%1", "hmi", false); });
        row("pull into a file", true, cannot + "mark",
            [=] { return tool->pullFile("hmi", "mark", false, false); });
        row("push the working directory", true, cannot,
            [=] { return tool->pushFile("", "hmi", true); });
        row("pull from nowhere", true, failed,
            [=] { return tool->pullFile("", "dir", false, true); });
        row("push no file", true, failed, [] { return pushOne(""); });
        row("push half a name", true, failed,
            [] { return pushOne(QString("a%1b").arg(QChar(0))); });
    }

    void nothingStartsWhereItMustNot()
    {
        QFETCH(bool, ready);
        QFETCH(Operation, operation);
        QFETCH(QString, banner);
        brisa::ManagerHelper::instance()->setReady(ready);
        QVERIFY(!operation());
        QCOMPARE(StandIns::takeCalls(), QStringList());
        QCOMPARE(m_banner.join(""), banner);
    }

private:
    std::unique_ptr<StandIns> m_standIns;
    std::unique_ptr<LogCapture> m_log;
    QStringList m_banner;
};

QTEST_MAIN(TestSyncTool)
#include "tst_synctool.moc"
