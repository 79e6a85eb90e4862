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
        const auto options = parse({"--plugins",
                                    "a",
                                    "--plugins",
                                    "/b/../c",
                                    "--runtime",
                                    "run",
                                    "--settings",
                                    "s",
                                    "--for",
                                    "1.5",
                                    "--screenshot",
                                    "p.png",
                                    "--page",
                                    "zeplet.monitor",
                                    "--language",
                                    "zh_CN",
                                    "--fullscreen",
                                    "--resume",
                                    "--list",
                                    "--retry",
                                    "x",
                                    "--retry",
                                    "y"});
        QVERIFY(options);
        const QDir here;
        QCOMPARE(options->pluginDirectories, QStringList({here.absoluteFilePath("a"), "/c"}));
        QCOMPARE(options->runtimeDirectory, here.absoluteFilePath("run"));
        QCOMPARE(options->settingsFile, here.absoluteFilePath("s"));
        QCOMPARE(options->milliseconds, std::optional<int>(1500));
        QCOMPARE(options->screenshotFile, here.absoluteFilePath("p.png"));
        QCOMPARE(options->page, QStringLiteral("zeplet.monitor"));
        QCOMPARE(options->language, QStringLiteral("zh_CN"));
        QCOMPARE(options->retries, QStringList({"x", "y"}));
        QVERIFY(options->fullScreen && options->list && options->resume);
    }

    void nothing()
    {
        const auto options = parse({});
        QVERIFY(options);
        QVERIFY(QDir::isAbsolutePath(options->runtimeDirectory));
        QCOMPARE(options->settingsFile, options->runtimeDirectory + "/settings.json");
        QVERIFY(!options->milliseconds);
    }

    void ends()
    {
        const struct {
            QStringList arguments;
            int code;
            const char *text;
        } rows[] = {{{"--help"}, 0, "--screenshot"},
                    {{"--version"}, 0, "zeplet-panel "},
                    {{"--pluginz"}, 2, "pluginz"},
                    {{"--plugins"}, 2, "plugins"},
                    {{"--language", "tlh"}, 2, "zh_CN, not \"tlh\""},
                    {{"word"}, 2, "\"word\""}};
        for (const auto &[arguments, code, text] : rows) {
            QVERIFY(!parse(arguments));
            QCOMPARE(m_code, code);
            QVERIFY2(m_text.contains(text), qPrintable(m_text));
        }
        for (const char *seconds : {"", "x", "0", "-1", "nan", "inf", "1e9", "1s"}) {
            QVERIFY2(!parse({"--for", seconds}), seconds);
            QVERIFY2(m_code == 2 && m_text.contains("--for needs"), qPrintable(m_text));
        }
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
