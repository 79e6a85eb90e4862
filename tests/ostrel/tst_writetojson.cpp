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
    void init();
    void writes_data();
    void writes();
    void makesParents();
    void timeMovesOn_data();
    void timeMovesOn();
    void keepsPermissions();
    void refuses_data();
    void refuses();
    void diskFull();
    void killedWriterLeavesOldOrNew();

private:
    QString path(const QString &name = "point.json") const { return m_directory->filePath(name); }

    QScopedPointer<QTemporaryDir> m_directory;
};

void TestWriteToJson::init()
{
    m_directory.reset(new QTemporaryDir);
    QVERIFY(m_directory->isValid());
}

void TestWriteToJson::writes_data()
{
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<bool>("indented");
    QTest::addColumn<QByteArray>("text");

    const QJsonValue object = QJsonObject {{"version", "0.2"}, {"a.b", QJsonArray {1.5}}};
    QTest::newRow("indented") << object << true
                              << QByteArray("{\n    \"a.b\": [\n        1.5\n    ],\n"
                                            "    \"version\": \"0.2\"\n}\n");
    QTest::newRow("compact") << object << false << QByteArray(R"({"a.b":[1.5],"version":"0.2"})");
    QTest::newRow("array") << QJsonValue(QJsonArray()) << false << QByteArray("[]");
    QTest::newRow("value") << QJsonValue("x") << true << QByteArray("\"x\"\n");
    QTest::newRow("null") << QJsonValue() << false << QByteArray("null");
}

void TestWriteToJson::writes()
{
    QFETCH(QJsonValue, value);
    QFETCH(bool, indented);
    QVERIFY(ModuleManager::writeToJson(path(), value, indented));
    QTEST(contentOf(path()), "text");
    QVERIFY(ModuleManager::writeToJson(path(), "other", indented));
    QVERIFY(ModuleManager::writeToJson(path(), value, indented));
    QTEST(contentOf(path()), "text");
    QCOMPARE(QDir(m_directory->path()).entryList(QDir::Files | QDir::Hidden),
             QStringList("point.json"));
}

void TestWriteToJson::makesParents()
{
    const QString nested = path("a b/ü/点/var.json");
    QVERIFY(ModuleManager::writeToJson(nested, 1, false));
    QCOMPARE(contentOf(nested), QByteArray("1"));
}

void TestWriteToJson::timeMovesOn_data()
{
    QTest::addColumn<int>("oldIsAhead"); // seconds
    QTest::newRow("same second") << 0;
    QTest::newRow("clock ran back a minute") << 60;
    QTest::newRow("clock ran back a year") << 365 * 86400;
    QTest::newRow("old file") << -86400;
}

void TestWriteToJson::timeMovesOn()
{
    QFETCH(int, oldIsAhead);
    QVERIFY(ModuleManager::writeToJson(path(), 1, false));
    const QDateTime start = QDateTime::currentDateTime();
    setTime(path(), start.addSecs(oldIsAhead));
    qint64 last = secondOf(path());
    for (int i = 0; i < 3; ++i) {
        QVERIFY(ModuleManager::writeToJson(path(), i, false));
        QVERIFY(secondOf(path()) >= last + 1);
        QVERIFY(secondOf(path()) >= start.toSecsSinceEpoch());
        QVERIFY(oldIsAhead < 0
                || secondOf(path()) <= last + 1 + start.secsTo(QDateTime::currentDateTime()));
        last = secondOf(path());
    }
}

void TestWriteToJson::keepsPermissions()
{
    QVERIFY(ModuleManager::writeToJson(path(), 1, false));
    const auto permissions = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup;
    QVERIFY(QFile::setPermissions(path(), permissions));
    QVERIFY(ModuleManager::writeToJson(path(), 2, false));
    const auto mask = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadGroup
        | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    QCOMPARE(QFile::permissions(path()) & mask, permissions);
}

void TestWriteToJson::refuses_data()
{
    QTest::addColumn<QString>("target"); // below a directory with: dir/, plain, link -> plain, fifo
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<QString>("reason");

    QTest::newRow("directory") << "dir" << QJsonValue(1) << "dir is no plain file";
    QTest::newRow("symbolic link") << "link" << QJsonValue(1) << "link is no plain file";
    QTest::newRow("dangling link") << "dangling" << QJsonValue(1) << "dangling is no plain file";
    QTest::newRow("pipe") << "fifo" << QJsonValue(1) << "fifo is no plain file";
    QTest::newRow("file as directory")
        << "plain/x" << QJsonValue(1) << "can't make directory .*plain: ";
    QTest::newRow("name too long") << QString(300, 'x') << QJsonValue(1) << "can't examine";
    QTest::newRow("undefined") << "plain" << QJsonValue(QJsonValue::Undefined)
                               << "the value is undefined";
}

void TestWriteToJson::refuses()
{
    QFETCH(QString, target);
    QFETCH(QJsonValue, value);
    QFETCH(QString, reason);
    QVERIFY(QDir(m_directory->path()).mkdir("dir"));
    QVERIFY(ModuleManager::writeToJson(path("plain"), "old", false));
    QVERIFY(QFile::link(path("plain"), path("link")));
    QVERIFY(QFile::link(path("elsewhere"), path("dangling")));
    QCOMPARE(::mkfifo(QFile::encodeName(path("fifo")).constData(), 0600), 0);
    const auto entries = [&] {
        return QDir(m_directory->path()).entryList(QDir::AllEntries | QDir::System | QDir::Hidden);
    };
    const QStringList before = entries();

    QTest::ignoreMessage(QtDebugMsg, QRegularExpression("\\[E\\|.*writeToJson: .*" + reason));
    QVERIFY(!ModuleManager::writeToJson(path(target), value, false));
    QCOMPARE(contentOf(path("plain")), QByteArray("\"old\""));
    QCOMPARE(entries(), before);
}

// A limit on the size of files stands in for the full disk: the write fails half way as there.
void TestWriteToJson::diskFull()
{
    QVERIFY(ModuleManager::writeToJson(path(), "old", false));
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit = {};
    QCOMPARE(::getrlimit(RLIMIT_FSIZE, &limit), 0);
    const rlimit small = {1000000, limit.rlim_max};
    QCOMPARE(::setrlimit(RLIMIT_FSIZE, &small), 0);
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression("writeToJson: can't write .*point.json"));
    const bool written = ModuleManager::writeToJson(path(), document('a'), false);
    QCOMPARE(::setrlimit(RLIMIT_FSIZE, &limit), 0);

    QVERIFY(!written);
    QCOMPARE(contentOf(path()), QByteArray("\"old\""));
    QCOMPARE(QDir(m_directory->path()).entryList(QDir::Files | QDir::Hidden),
             QStringList("point.json"));
}

void TestWriteToJson::killedWriterLeavesOldOrNew()
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
        writer.start(QCoreApplication::applicationFilePath(), {"--write-forever", path()});
        QVERIFY(writer.waitForStarted());
        // Somewhere in the writes after the first: each round lands elsewhere.
        QTRY_VERIFY(QFileInfo(path()).lastModified() != before);
        for (int i = 0; i < round; ++i)
            QVERIFY(allowed.contains(contentOf(path())));
        writer.kill();
        QVERIFY(writer.waitForFinished());
        QVERIFY(allowed.contains(contentOf(path())));
    }
}

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
