#include "offscreen.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <brisa/managerhelper.h>
#include <simulator/fileserver.h>
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

QByteArray read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
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
        QString error;
        m_server = std::make_unique<simulator::FileServer>(
            simulator::FileOptions {m_local->filePath("controller"), 0});
        QVERIFY2(m_server->open(&error), qPrintable(error));
        qputenv("RSYNC_CONNECT_PROG",
                "socat - TCP:127.0.0.1:" + QByteArray::number(m_server->port()));
        QVERIFY(QDir().mkpath(there("one")));
    }

    void aPushedDirectoryIsTheSameThere()
    {
        write("dir/point.json", "{}");
        write("dir/sub/a b", "x");
        write(there("one/dir/old"), "goes");
        QVERIFY(SyncTool::instance()->pushFile("dir", "hmi/one", false));
        QCOMPARE(read(there("one/dir/point.json")), QByteArray("{}"));
        QCOMPARE(read(there("one/dir/sub/a b")), QByteArray("x"));
        QCOMPARE(entries(there("one/dir")), QStringList({"point.json", "sub"}));
    }

    void aPulledDirectoryIsTheSameHere()
    {
        write(there("one/point.json"), "{}");
        write(there("one/sub/secret"), "x");
        write(there("one/left_pers_"), "x");
        QFile(there("one/point.json")).setPermissions(QFile::ReadOwner | QFile::ExeOwner);
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

    void aFileArrivesByteForByte()
    {
        const QByteArray bytes = QByteArray("\0\r\n\xff%1", 6).repeated(5000);
        const QStringList names {
            "with blank", "it's \"quoted\"", "a;touch pwned", "-delete", "$(touch pwned)`id`",
            "100%1%s",    "--rsh=x",         "host:x",        "x::",     "点云 工作站",
            "&|<>#!~",    QString(255, 'x')};
        for (const QString &name : names) {
            write(m_local->filePath(name), bytes);
            const QString remote = "hmi/one/" + name;
            QVERIFY(SyncTool::instance()->pushOneFile(m_local->filePath(name), remote, false));
            QCOMPARE(read(there("one/" + name)), bytes);
            write(m_local->filePath(name), bytes + '.');
            QVERIFY(SyncTool::instance()->pushOneFile(name, remote, false));
            QCOMPARE(read(there("one/" + name)), bytes + '.');
        }
        QCOMPARE(entries(there("one")).size(), names.size());
        QVERIFY(!QFile::exists("pwned"));
    }

    void whatTheDaemonRefusesFails()
    {
        SyncTool &tool = *SyncTool::instance();
        write("point.json", "{}");
        QVERIFY(!tool.pushOneFile("point.json", "other/point.json", false));
        QVERIFY(!tool.pushOneFile("point.json", "hmi/none/point.json", false));
        write("controller/rsyncd.secrets", "brisa:123456\n");
        QVERIFY(!tool.pushOneFile("point.json", "hmi/one/point.json", false));
        m_server->close();
        QVERIFY(!tool.pushOneFile("point.json", "hmi/one/point.json", false));
        QCOMPARE(entries(there("one")), QStringList());
    }

    void cleanup()
    {
        m_server.reset();
        QDir::setCurrent("/");
    }

private:
    QString there(const QString &name) const { return m_server->root() + '/' + name; }

    std::unique_ptr<QTemporaryDir> m_local;
    std::unique_ptr<simulator::FileServer> m_server;
};

QTEST_MAIN(TestSyncDaemon)
#include "tst_syncdaemon.moc"
