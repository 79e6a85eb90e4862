#include "pluginfiles.h"
#include "testcolumns.h"

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>
#include <csignal>
#include <memory>

/** The program as a person starts it: exit codes, files it leaves, a plugin that kills it. */
class TestPanelProgram : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_directory = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir().mkpath(plugins()));
    }

    void endsByItself()
    {
        pluginfiles::copy(plugins(), "sound");
        QCOMPARE(run({"--for", "1", "--screenshot", "pictures/panel.png"}), 0);
        const QImage picture(m_directory->filePath("pictures/panel.png"));
        QCOMPARE(picture.size(), QSize(1280, 800));
        QVERIFY(!QDir(m_directory->filePath("run/log")).entryList({"zeplet_*.log"}).isEmpty());
        QCOMPARE(QFileInfo(m_directory->filePath("run/starting")).size(), 0);
    }

    void endsOnSignal()
    {
        QProcess panel;
        start(&panel, {});
        QTRY_VERIFY_WITH_TIMEOUT(logText().contains("The panel is running."), 60000);
        kill(pid_t(panel.processId()), SIGTERM);
        QVERIFY(panel.waitForFinished());
        QCOMPARE(panel.exitStatus(), QProcess::NormalExit);
        QCOMPARE(panel.exitCode(), 0);
        QVERIFY(logText().contains("The panel has ended."));
    }

    /** Modules go first, then the bus, then the I/O thread; and nothing makes a bus again. */
    void endsInOrder()
    {
        pluginfiles::copy(plugins(), "ending");
        QCOMPARE(run({"--for", "0.5"}), 0);
        const QStringList said = m_output.split('\n').filter(": bus ");
        QCOMPARE(said,
                 QStringList({"detach: bus there, I/O thread there",
                              "plugin ends: bus there, I/O thread there",
                              "bus ends: bus there, I/O thread there",
                              "process ends: bus gone, I/O thread gone"}));
    }

    void faultsAreLogged()
    {
        pluginfiles::copy(plugins(), "throwinginit");
        QCOMPARE(run({"--for", "0.1"}), 0);
        QVERIFY(logText().contains("\"throwinginit\" failed in init: no gripper is mounted; "));
        QVERIFY(QDir(plugins()).removeRecursively());
        QCOMPARE(run({"--for", "0.1"}), 0);
        const QString sentence
            = QStringLiteral("The plugin directory %1 can't be read: create it, ").arg(plugins());
        QVERIFY2(m_output.contains(sentence), qPrintable(m_output));
    }

    void killerIsLeftOut_data()
    {
        const auto row = testcolumns<QString>("step");
        for (const char *step :
             {"loading", "construction", "init", "afterInit", "render", "second init"})
            row(step, step);
    }

    void killerIsLeftOut()
    {
        QFETCH(QString, step);
        const QString plugin = QStringLiteral("crasher");
        const auto unset = qScopeGuard([] { qunsetenv("CRASHER_STEP"); });
        pluginfiles::copy(plugins(), plugin);
        pluginfiles::copy(plugins(), "sound");
        // A library that crashes while it is loaded is found out beforehand, unless it is known.
        qputenv("CRASHER_STEP", "none");
        QCOMPARE(run({"--for", "0.1"}), 0);
        qputenv("CRASHER_STEP", step.toUtf8());
        QCOMPARE(run({"--for", "1"}), -1);
        QCOMPARE(run({"--for", "0.1"}), 0);
        const QString sentence = plugin
            + QStringLiteral(".so was left out because it took the panel down (%1): ")
                  .arg(step.section(' ', -1));
        QVERIFY(logText().contains(sentence));
        QCOMPARE(run({"--for", "0.1"}), 0); // and stays left out
        QCOMPARE(run({"--for", "0.1", "--retry", plugin}), -1);
    }

    /** Readable by a program whatever plugins print and files are called; without a display. */
    void lists()
    {
        pluginfiles::copy(plugins(), "ending"); // prints
        pluginfiles::copy(plugins(), "throwinginit");
        pluginfiles::copy(plugins(), "crasher");
        pluginfiles::write(plugins(), "no\tlibrary\n.so", "text");
        qputenv("QT_QPA_PLATFORM", "xcb");
        const auto display = qScopeGuard([] { qputenv("QT_QPA_PLATFORM", "offscreen"); });
        m_channels = QProcess::SeparateChannels;
        const auto merged = qScopeGuard([this] { m_channels = QProcess::MergedChannels; });
        QCOMPARE(run({"--list"}), -1); // the crasher takes it down, and is named from then on
        QCOMPARE(m_output, QString());
        QCOMPARE(run({"--list"}), 0);
        const struct {
            const char *name, *state, *file, *sentence;
        } rows[] = {{"crasher", "left out", "crasher.so", "(init): replace it"},
                    {"ending", "running", "ending.so", ""},
                    {"no library ", "refused", "no library .so", "no library .so is not a library"},
                    {"throwinginit", "faulty", "throwinginit.so", "failed in init: no gripper"}};
        const QStringList lines = m_output.split('\n').filter('\t' + plugins() + '/');
        for (int i = 0; i < int(std::size(rows)); ++i) {
            const QStringList cells = lines.value(i).split('\t');
            QCOMPARE(cells.size(), 4);
            QCOMPARE(cells.mid(0, 3),
                     QStringList({rows[i].name, rows[i].state, plugins() + '/' + rows[i].file}));
            QVERIFY2(cells.at(3).contains(rows[i].sentence), qPrintable(cells.at(3)));
        }
        QCOMPARE(lines.size(), int(std::size(rows)));
        QVERIFY(!QFile::exists(m_directory->filePath("run/page")));
    }

    void resumes()
    {
        pluginfiles::copy(plugins(), "sound");
        QCOMPARE(run({"--for", "0.1", "--page", "zeplet.sound"}), 0);
        QCOMPARE(keptPage(), QByteArray("zeplet.sound\n"));
        // The page's plugin is away once, and the page comes back with it.
        QVERIFY(QFile::remove(plugins() + "/sound.so"));
        QCOMPARE(run({"--for", "0.1", "--resume"}), 0);
        QCOMPARE(keptPage(), QByteArray("zeplet.sound\n"));
        pluginfiles::copy(plugins(), "sound");
        QVERIFY(QFile::remove(m_directory->filePath("run/page")));
        pluginfiles::write(m_directory->filePath("run"), "page", "zeplet.zeplet");
        QCOMPARE(run({"--for", "0.1", "--resume", "--page", "zeplet.sound"}), 0);
        QCOMPARE(keptPage(), QByteArray("zeplet.zeplet\n"));
    }

    void correctedPluginTakesPartAgain()
    {
        pluginfiles::copy(plugins(), "crasher");
        QCOMPARE(run({"--for", "1"}), -1);
        qputenv("CRASHER_STEP", "none");
        const auto corrected = qScopeGuard([] { qunsetenv("CRASHER_STEP"); });
        QCOMPARE(run({"--for", "0.1", "--retry", "crasher"}), 0);
        QVERIFY(logText().contains("<zeplet> 'crasher' init."));
        QVERIFY(!logText().contains("crasher.so was left out"));
    }

    void wrongUse()
    {
        const struct {
            QStringList arguments;
            int code;
            const char *text;
        } rows[] = {{{"--nonsense"}, 2, "nonsense"},
                    {{"--runtime", "/proc/version"}, 1, "/proc/version can't be used"},
                    {{"--for", "0.1", "--screenshot", "/proc/x.png"}, 1, "/proc/x.png"}};
        for (const auto &[arguments, code, text] : rows) {
            QCOMPARE(run(arguments), code);
            QVERIFY2(m_output.contains(text), qPrintable(m_output));
        }
    }

private:
    QString plugins() const { return m_directory->filePath("plugins"); }

    void start(QProcess *panel, const QStringList &arguments)
    {
        QStringList all {"--plugins", plugins()};
        if (!arguments.contains("--runtime"))
            all += {"--runtime", "run"};
        panel->setWorkingDirectory(m_directory->path());
        panel->setProcessChannelMode(m_channels);
        panel->start(ZEPLET_PANEL, all + arguments);
        QVERIFY(panel->waitForStarted());
    }

    /** The exit code; -1 where the program was killed. */
    int run(const QStringList &arguments)
    {
        QProcess panel;
        start(&panel, arguments);
        panel.waitForFinished();
        m_output = QString::fromUtf8(panel.readAllStandardOutput());
        return panel.exitStatus() == QProcess::NormalExit ? panel.exitCode() : -1;
    }

    QByteArray keptPage() const
    {
        QFile file(m_directory->filePath("run/page"));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QString logText() const
    {
        QString text;
        const QDir log(m_directory->filePath("run/log"));
        for (const QString &name : log.entryList(QDir::Files)) {
            QFile file(log.filePath(name));
            if (file.open(QIODevice::ReadOnly))
                text += QString::fromUtf8(file.readAll());
        }
        return text;
    }

    std::unique_ptr<QTemporaryDir> m_directory;
    QString m_output;
    QProcess::ProcessChannelMode m_channels = QProcess::MergedChannels;
};

QTEST_GUILESS_MAIN(TestPanelProgram)
#include "tst_panelprogram.moc"
