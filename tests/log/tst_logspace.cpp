#include <zeplet/log/flog.h>
#include <zeplet/log/pluginlogfilemanager.h>

#include "logfiles.h"
#include "messagecapture.h"

#include <QTemporaryDir>
#include <QtTest>

#include <sched.h>
#include <sys/mount.h>

using namespace zeplet;

namespace
{

/** Mounts are this process's own. Works for root, and for others where the kernel lets them. */
bool enterMountNamespace()
{
    return (::unshare(CLONE_NEWNS) == 0 || ::unshare(CLONE_NEWUSER | CLONE_NEWNS) == 0)
        && ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

class Mount
{
public:
    Mount(const QString &source, const QString &target, const char *type, unsigned long flags,
          const char *options)
        : m_target(QFile::encodeName(target))
        , m_mounted(::mount(QFile::encodeName(source).constData(), m_target.constData(), type,
                            flags, options)
                    == 0)
    {
    }
    ~Mount()
    {
        if (m_mounted) {
            ::umount2(m_target.constData(), MNT_DETACH);
        }
    }
    Mount(const Mount &) = delete;
    Mount &operator=(const Mount &) = delete;

    bool isMounted() const { return m_mounted; }

private:
    QByteArray m_target;
    bool m_mounted;
};

bool canMount = false;

} // namespace

class TestLogSpace : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (!canMount) {
            QSKIP("this kernel gives the process no mounts of its own");
        }
    }

    void loggingResumesWithSpace()
    {
        const QTemporaryDir directory;
        const QString root = directory.filePath("zeplet");
        QVERIFY(QDir().mkdir(root));
        const Mount small("none", root, "tmpfs", 0, "size=64k");
        QVERIFY(small.isMounted());
        const QString base = root + "/p";
        const QString file = base + '_' + logfiles::today() + ".log";
        const QString line(3000, QLatin1Char('x'));
        QFile filler(root + "/other_data");
        QVERIFY(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        while (filler.write(QByteArray(4096, 'f')) > 0) { }

        MessageCapture capture;
        // Nothing but the log can go, and it never becomes enough.
        for (int i = 0; i < 5; ++i) {
            FLog("", "", base, "log") << line;
            const QStringList messages = capture.take();
            QVERIFY(!messages.isEmpty());
            QVERIFY2(messages.first().contains(" failed"), qPrintable(messages.first()));
            QVERIFY(messages.first().endsWith(qt_error_string(ENOSPC)));
        }
        QVERIFY(QFileInfo::exists(filler.fileName()));

        QVERIFY(filler.remove());
        FLog("", "", base, "log") << "resumed";
        QCOMPARE(capture.take(), QStringList());
        QCOMPARE(logfiles::read(file).section('\n', -2), QString("resumed\n"));
    }

    void undeletableFileIsPassedOver()
    {
        const QTemporaryDir directory;
        const QString root = directory.filePath("zeplet");
        const QDateTime past = QDateTime::fromSecsSinceEpoch(1700000000);
        const QString stays = root + "/a_20240506.log";
        QVERIFY(logfiles::makeSparse(stays, 1, past));
        QVERIFY(logfiles::makeSparse(root + "/b_20240506.log", 1, past.addSecs(1)));
        QVERIFY(logfiles::makeSparse(root + "/c_20240506.log", 1, past.addSecs(2)));
        // A file that is a mount point cannot be deleted, not even by root.
        const Mount busy(stays, stays, nullptr, MS_BIND, nullptr);
        QVERIFY(busy.isMounted());

        MessageCapture capture;
        PluginLogFileManager &manager = *PluginLogFileManager::instance();
        manager.rescanTotalLogSize(root);
        manager.cleanupOldFiles(root + "/p", 100, true);
        QCOMPARE(capture.take(), QStringList("Cleaned old log file: b_20240506.log size: 1"));
        QCOMPARE(logfiles::below(root), QStringList({"a_20240506.log", "c_20240506.log"}));
    }
};

int main(int argc, char **argv)
{
    // Before Qt starts a thread: the kernel then refuses.
    canMount = enterMountNamespace();
    TestLogSpace test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_logspace.moc"
