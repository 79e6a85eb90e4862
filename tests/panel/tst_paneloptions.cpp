#include "paneloptions.h"

#include <QDir>
#include <QTest>

using panel::PanelOptions;

/** The command line. */
class TestPanelOptions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everything()
    {
        const auto options
            = parse({"--plugins", "a", "--plugins", "/b/../c", "--runtime", "run", "--settings",
                     "s", "--for", "1.5", "--screenshot", "p.png", "--page", "zeplet.monitor",
                     "--fullscreen", "--retry", "x", "--retry", "y"});
        QVERIFY(options);
        const QDir here;
        QCOMPARE(options->pluginDirectories, QStringList({here.absoluteFilePath("a"), "/c"}));
        QCOMPARE(options->runtimeDirectory, here.absoluteFilePath("run"));
        QCOMPARE(options->settingsFile, here.absoluteFilePath("s"));
        QCOMPARE(options->milliseconds, std::optional<int>(1500));
        QCOMPARE(options->screenshotFile, here.absoluteFilePath("p.png"));
        QCOMPARE(options->page, QStringLiteral("zeplet.monitor"));
        QCOMPARE(options->retries, QStringList({"x", "y"}));
        QVERIFY(options->fullScreen);
    }

    void nothing()
    {
        const auto options = parse({});
        QVERIFY(options);
        QVERIFY(options->pluginDirectories.isEmpty());
        QVERIFY(QDir::isAbsolutePath(options->runtimeDirectory));
        QCOMPARE(options->settingsFile, options->runtimeDirectory + "/settings.json");
        QVERIFY(options->screenshotFile.isEmpty());
        QVERIFY(!options->milliseconds);
    }

    void ends_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("text");
        QTest::newRow("help") << QStringList("--help") << 0 << "--screenshot";
        QTest::newRow("version") << QStringList("--version") << 0 << "zeplet-panel ";
        QTest::newRow("unknown option") << QStringList("--pluginz") << 2 << "pluginz";
        QTest::newRow("no value") << QStringList("--plugins") << 2 << "plugins";
        QTest::newRow("word") << QStringList("word") << 2 << "\"word\"";
        for (const char *seconds : {"", "x", "0", "-1", "nan", "inf", "1e9", "1s"})
            QTest::addRow("for %s", seconds)
                << QStringList {"--for", seconds} << 2 << "--for needs";
    }

    void ends()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, code);
        QFETCH(QString, text);
        QVERIFY(!parse(arguments));
        QCOMPARE(m_code, code);
        QVERIFY2(m_text.contains(text), qPrintable(m_text));
    }

private:
    std::optional<PanelOptions> parse(const QStringList &arguments)
    {
        return PanelOptions::parse(QStringList("zeplet-panel") + arguments, &m_text, &m_code);
    }

    QString m_text;
    int m_code = -1;
};

QTEST_GUILESS_MAIN(TestPanelOptions)
#include "tst_paneloptions.moc"
