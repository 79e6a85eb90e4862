#include "offscreen.h"
#include "rsyncdaemon.h"
#include "testcolumns.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTest>
#include <brisa/managerhelper.h>
#include <zeplet/sync/synclimits_p.h>
#include <zeplet/sync/synctool.h>

using namespace zeplet;

namespace
{

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

QStringList entries(const QString &path)
{
    return QDir(path).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden, QDir::Name);
}

} // namespace

/** The sync tool against a real daemon. */
class TestSyncDaemon : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        ignoreOffscreenNoise();
        brisa::ManagerHelper::instance()->setReady(true);
    }

    void init()
    {
        m_local = std::make_unique<QTemporaryDir>();
        QDir::setCurrent(m_local->path());
        write("mark", "");
        syncLimits().controllerMark = "mark";
        QVERIFY(QDir().mkpath("tools"));
        QVERIFY(QFile::link(QStandardPaths::findExecutable("rsync"), "tools/rsync.exe"));
        m_daemon = std::make_unique<RsyncDaemon>();
        QVERIFY(QDir(m_daemon->path()).mkpath("one"));
    }

    void aPushedDirectoryIsTheSameThere()
    {
        write("dir/point.json", "{}");
        write("dir/sub/a b", "x");
        write(m_daemon->path("one/dir/old"), "goes");
        QVERIFY(SyncTool::instance()->pushFile("dir", "hmi/one", false));
        QCOMPARE(m_daemon->read("one/dir/point.json"), QByteArray("{}"));
        QCOMPARE(m_daemon->read("one/dir/sub/a b"), QByteArray("x"));
        QCOMPARE(entries(m_daemon->path("one/dir")), QStringList({"point.json", "sub"}));
    }

    void aPulledDirectoryIsTheSameHere()
    {
        write(m_daemon->path("one/point.json"), "{}");
        write(m_daemon->path("one/sub/secret"), "x");
        write(m_daemon->path("one/left_pers_"), "x");
        QFile(m_daemon->path("one/point.json")).setPermissions(QFile::ReadOwner | QFile::ExeOwner);
        write("dir/goes", "x");
        write("dir/stays_pers_", "x");
        QVERIFY(SyncTool::instance()->pullFile("hmi/one", "dir", true, false));
        QCOMPARE(entries("dir"), QStringList({"point.json", "stays_pers_", "sub"}));

        const auto all = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::WriteGroup
            | QFile::ReadOther | QFile::WriteOther;
        const auto user = QFile::ReadUser | QFile::WriteUser | QFile::ExeUser;
        QCOMPARE(QFileInfo("dir/point.json").permissions() & ~user, QFile::Permissions(all));
        QCOMPARE(QFileInfo("dir/sub").permissions() & ~user,
                 all | QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther);
    }

    void aFileArrivesByteForByte_data()
    {
        const auto row = testcolumns<QString>("name");
        for (const char *name :
             {"point.json", "with blank", "it's \"quoted\"", "a;touch pwned", "$(touch pwned)`id`",
              "100%1%s", "-delete", "--rsh=x", "host:x", "x::", "点云 工作站", "&|<>#!~"})
            row(name, name);
        row("255 bytes", QString(255, 'x'));
    }

    void aFileArrivesByteForByte()
    {
        QFETCH(QString, name);
        QByteArray bytes("\0\r\n\xff%1", 6);
        for (int i = 0; i < 2000; ++i)
            bytes += QByteArray::number(i * 7919);
        write(m_local->filePath(name), bytes);
        // Once by the absolute path, once by the bare name, with the same size in the same second.
        QVERIFY(
            SyncTool::instance()->pushOneFile(m_local->filePath(name), "hmi/one/" + name, false));
        QCOMPARE(m_daemon->read("one/" + name), bytes);
        bytes[100] = bytes[100] == '0' ? '1' : '0';
        bytes += '.';
        write(m_local->filePath(name), bytes);
        QVERIFY(SyncTool::instance()->pushOneFile(name, "hmi/one/" + name, false));
        QCOMPARE(m_daemon->read("one/" + name), bytes);
        QCOMPARE(entries(m_daemon->path("one")), QStringList(name));
        QVERIFY(!QFile::exists("pwned"));
    }

    void whatTheDaemonRefusesFails_data()
    {
        const auto row = testcolumns<QByteArray, QString>("password", "remote");
        row("wrong password", "123456", "hmi/one/point.json");
        row("missing module", "729413", "other/point.json");
        row("missing directory", "729413", "hmi/none/point.json");
        row("nobody listens", "", "hmi/one/point.json");
    }

    void whatTheDaemonRefusesFails()
    {
        QFETCH(QByteArray, password);
        QFETCH(QString, remote);
        m_daemon.reset();
        m_daemon = std::make_unique<RsyncDaemon>(password);
        QVERIFY(QDir(m_daemon->path()).mkpath("one"));
        if (password.isEmpty())
            m_daemon->stop();
        write("point.json", "{}");
        QVERIFY(!SyncTool::instance()->pushOneFile("point.json", remote, false));
        QCOMPARE(entries(m_daemon->path("one")), QStringList());
        QCOMPARE(entries(m_daemon->path()), QStringList("one"));
    }

    void cleanup()
    {
        m_daemon.reset();
        QDir::setCurrent("/");
    }

private:
    std::unique_ptr<QTemporaryDir> m_local;
    std::unique_ptr<RsyncDaemon> m_daemon;
};

QTEST_MAIN(TestSyncDaemon)
#include "tst_syncdaemon.moc"
