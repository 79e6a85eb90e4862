#include "startguard.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using panel::StartGuard;

/** A plugin that takes the panel down is left out of the next start. */
class TestStartGuard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_directory = std::make_unique<QTemporaryDir>();
        m_library = m_directory->filePath(QStringLiteral("plugin\nwith a line break.so"));
        write(m_library, "library");
    }

    void staysLeftOutUntilItChanges()
    {
        die(QStringLiteral("init"));
        {
            StartGuard guard(runtime());
            QVERIFY(guard.isLeftOut(name(), QFileInfo(m_library)));
            QCOMPARE(guard.fatalStep(name()), QStringLiteral("init"));
            QVERIFY(!guard.isLeftOut(QStringLiteral("other"), QFileInfo(m_library)));
        }
        QVERIFY(StartGuard(runtime()).isLeftOut(name(), QFileInfo(m_library)));
        write(m_library, "a corrected library");
        QVERIFY(!StartGuard(runtime()).isLeftOut(name(), QFileInfo(m_library)));
    }

    /** Its author has corrected it before the panel is started again. */
    void correctedBeforeTheNextStart()
    {
        die(QStringLiteral("init"));
        write(m_library, "a corrected library");
        QVERIFY(!StartGuard(runtime()).isLeftOut(name(), QFileInfo(m_library)));
    }

    void deathInAnotherModuleOfTheLibrary()
    {
        {
            StartGuard guard(runtime());
            guard.enterLoading(name(), m_library);
            guard.leave();
            guard.addModule(QStringLiteral("second"), name());
            guard.enter(QStringLiteral("second"), QStringLiteral("afterInit"));
            copyOfRuntime();
        }
        StartGuard guard(copy());
        QVERIFY(guard.isLeftOut(name(), QFileInfo(m_library)));
        QCOMPARE(guard.fatalStep(name()), QStringLiteral("afterInit"));
    }

    void tryAgain()
    {
        die(QStringLiteral("init"));
        {
            StartGuard guard(runtime());
            QVERIFY(!guard.tryAgain(QStringLiteral("other")));
            QVERIFY(guard.tryAgain(name()));
            QVERIFY(!guard.tryAgain(name()));
        }
        QVERIFY(!StartGuard(runtime()).isLeftOut(name(), QFileInfo(m_library)));
    }

    void noBlameForOthers()
    {
        {
            StartGuard guard(runtime());
            guard.enterLoading(name(), m_library);
            guard.leave();
            guard.enter(QStringLiteral("host"), QStringLiteral("init")); // has no library
            copyOfRuntime();
        }
        QVERIFY(!StartGuard(copy()).isLeftOut(name(), QFileInfo(m_library)));
        QVERIFY(!StartGuard(runtime()).isLeftOut(name(), QFileInfo(m_library)));
    }

    void secondPanelKeepsOut()
    {
        StartGuard first(runtime());
        first.enterLoading(name(), m_library);
        {
            StartGuard second(runtime());
            QVERIFY(!second.isActive());
            QVERIFY(!second.isLeftOut(name(), QFileInfo(m_library)));
            second.enterLoading(QStringLiteral("other"), m_library);
        }
        copyOfRuntime();
        QVERIFY(StartGuard(copy()).isLeftOut(name(), QFileInfo(m_library)));
    }

    void damagedFiles()
    {
        for (const QByteArray &content :
             {QByteArray(), QByteArray("plugin"), QByteArray("{\0\xff\n\n\n", 7),
              QByteArray("{\"plugin\": [1, 2]}")}) {
            QDir().mkpath(runtime());
            write(runtime() + QStringLiteral("/starting"), content);
            write(runtime() + QStringLiteral("/left-out.json"), content);
            StartGuard guard(runtime());
            QVERIFY(guard.isActive());
            QVERIFY(!guard.isLeftOut(name(), QFileInfo(m_library)));
        }
    }

private:
    static QString name() { return QStringLiteral("plugin"); }
    QString runtime() const { return m_directory->filePath(QStringLiteral("run/panel")); }
    QString copy() const { return m_directory->filePath(QStringLiteral("copy")); }

    static void write(const QString &path, const QByteArray &content)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    /** What a process that dies now leaves behind. */
    void copyOfRuntime()
    {
        QDir(copy()).removeRecursively();
        QDir().mkpath(copy());
        for (const QString &file : QDir(runtime()).entryList(QDir::Files))
            QFile::copy(runtime() + '/' + file, copy() + '/' + file);
    }

    /** Leaves the runtime directory as a panel does that died in that step. */
    void die(const QString &step)
    {
        {
            StartGuard guard(runtime());
            guard.enterLoading(name(), m_library);
            guard.leave();
            guard.enter(name(), step);
            copyOfRuntime();
        }
        QDir(runtime()).removeRecursively();
        QVERIFY(QDir().rename(copy(), runtime()));
    }

    std::unique_ptr<QTemporaryDir> m_directory;
    QString m_library;
};

QTEST_GUILESS_MAIN(TestStartGuard)
#include "tst_startguard.moc"
