#include <ostrel/modulemanager.h>
#include <ostrel/moduleobject.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>

using ostrel::ModuleManager;

namespace
{
QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
}

qint64 secondOf(const QString &path)
{
    return QFileInfo(path).lastModified().toSecsSinceEpoch();
}

void setTime(const QString &path, const QDateTime &time)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(time, QFileDevice::FileModificationTime));
}

// One long text, so that a write takes several system calls.
QJsonObject document(QChar letter)
{
    return {{"text", QString(3000000, letter)}};
}

// The child of "killedWriterLeavesOldOrNew": writes the two documents in turn until it is killed.
int writeForever(const QString &path)
{
    for (;;) {
        if (!ModuleManager::writeToJson(path, document('a'), false)
            || !ModuleManager::writeToJson(path, document('b'), false))
            return 1;
    }
}
} // namespace

class TestWriteToJson : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_directory.reset(new QTemporaryDir);
        QVERIFY(m_directory->isValid());
    }

    void writes()
    {
        const QJsonValue object = QJsonObject {{"version", "0.2"}, {"a.b", QJsonArray {1.5}}};
        const struct {
            QJsonValue value;
            bool indented;
            QByteArray text;
        } rows[] = {
            {object, true, "{\n    \"a.b\": [\n        1.5\n    ],\n    \"version\": \"0.2\"\n}\n"},
            {object, false, R"({"a.b":[1.5],"version":"0.2"})"},
            {"x", true, "\"x\"\n"},
            {QJsonValue(), false, "null"},
        };
        const QString nested = path("a b/ü/点/var.json");
        for (const auto &[value, indented, text] : rows) {
            QVERIFY(ModuleManager::writeToJson(nested, value, indented));
            QCOMPARE(contentOf(nested), text);
            QCOMPARE(QDir(path("a b/ü/点")).entryList(QDir::Files | QDir::Hidden),
                     QStringList("var.json"));
        }
    }

    void timeMovesOn()
    {
        // The same second, a clock that ran back by a minute or a year, and an old file.
        for (const int oldIsAhead : {0, 60, 365 * 86400, -86400}) {
            QVERIFY(ModuleManager::writeToJson(path(), 1, false));
            const QDateTime start = QDateTime::currentDateTime();
            setTime(path(), start.addSecs(oldIsAhead));
            qint64 last = secondOf(path());
            for (int i = 0; i < 3; ++i) {
                QVERIFY(ModuleManager::writeToJson(path(), i, false));
                const qint64 now = secondOf(path());
                QVERIFY(now >= last + 1 && now >= start.toSecsSinceEpoch());
                QVERIFY(oldIsAhead < 0
                        || now <= last + 1 + start.secsTo(QDateTime::currentDateTime()));
                last = now;
            }
        }
    }

    void keepsPermissions()
    {
        QVERIFY(ModuleManager::writeToJson(path(), 1, false));
        QCOMPARE(::chmod(QFile::encodeName(path()).constData(), 0640), 0);
        QVERIFY(ModuleManager::writeToJson(path(), 2, false));
        struct stat status = {};
        QCOMPARE(::stat(QFile::encodeName(path()).constData(), &status), 0);
        QCOMPARE(status.st_mode & 07777u, 0640u);
    }

    void refuses()
    {
        QVERIFY(QDir(m_directory->path()).mkdir("dir"));
        QVERIFY(ModuleManager::writeToJson(path("plain"), "old", false));
        QVERIFY(QFile::link(path("plain"), path("link")));
        QVERIFY(QFile::link(path("elsewhere"), path("dangling")));
        QCOMPARE(::mkfifo(QFile::encodeName(path("fifo")).constData(), 0600), 0);
        const QStringList before = entries();
        const struct {
            QString target;
            QJsonValue value;
            QString reason;
        } rows[] = {{"dir", 1, "dir is no plain file"},
                    {"link", 1, "link is no plain file"},
                    {"dangling", 1, "dangling is no plain file"},
                    {"fifo", 1, "fifo is no plain file"},
                    {"plain/x", 1, "can't make directory .*plain: "},
                    {QString(300, 'x'), 1, "can't examine"},
                    {"plain", QJsonValue::Undefined, "the value is undefined"}};
        for (const auto &[target, value, reason] : rows) {
            QTest::ignoreMessage(QtDebugMsg,
                                 QRegularExpression("\\[E\\|.*writeToJson: .*" + reason));
            QVERIFY2(!ModuleManager::writeToJson(path(target), value, false), qPrintable(target));
            QCOMPARE(contentOf(path("plain")), QByteArray("\"old\""));
            QCOMPARE(entries(), before);
        }
    }

    // A limit on the size of files stands in for the full disk: the write fails half way as there.
    void diskFull()
    {
        QVERIFY(ModuleManager::writeToJson(path(), "old", false));
        const QStringList before = entries();
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit limit = {};
        QCOMPARE(::getrlimit(RLIMIT_FSIZE, &limit), 0);
        const rlimit small = {1000000, limit.rlim_max};
        QCOMPARE(::setrlimit(RLIMIT_FSIZE, &small), 0);
        QTest::ignoreMessage(QtDebugMsg,
                             QRegularExpression("writeToJson: can't write .*point.json"));
        const bool written = ModuleManager::writeToJson(path(), document('a'), false);
        QCOMPARE(::setrlimit(RLIMIT_FSIZE, &limit), 0);

        QVERIFY(!written);
        QCOMPARE(contentOf(path()), QByteArray("\"old\""));
        QCOMPARE(entries(), before);
    }

    void killedWriterLeavesOldOrNew()
    {
        ostrel::ModuleObject a;
        ostrel::ModuleObject b;
        a.set(nullptr, document('a'));
        b.set(nullptr, document('b'));
        const QByteArrayList allowed = {a.toJsonText(false), b.toJsonText(false)};
        QVERIFY(ModuleManager::writeToJson(path(), document('a'), false));
        for (int round = 0; round < 10; ++round) {
            const QDateTime before = QFileInfo(path()).lastModified();
            QProcess writer;
            writer.start(WRITER, {"--write-forever", path()});
            QVERIFY(writer.waitForStarted());
            // Somewhere in the writes after the first: each round lands elsewhere.
            QTRY_VERIFY_WITH_TIMEOUT(QFileInfo(path()).lastModified() != before, 60000);
            for (int i = 0; i < round; ++i)
                QVERIFY(allowed.contains(contentOf(path())));
            writer.kill();
            QVERIFY(writer.waitForFinished());
            QVERIFY(allowed.contains(contentOf(path())));
        }
    }

private:
    QString path(const QString &name = "point.json") const { return m_directory->filePath(name); }
    QStringList entries() const
    {
        return QDir(m_directory->path()).entryList(QDir::AllEntries | QDir::System | QDir::Hidden);
    }

    QScopedPointer<QTemporaryDir> m_directory;
};

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() == 3 && arguments[1] == "--write-forever")
        return writeForever(arguments[2]);
    TestWriteToJson test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_writetojson.moc"
