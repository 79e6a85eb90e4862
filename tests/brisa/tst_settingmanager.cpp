#include <brisa/settingmanager.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using brisa::SettingManager;

class TestSettingManager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_directory.reset(new QTemporaryDir);
        m_path = m_directory->filePath("settings.json");
    }

    void values()
    {
        const QByteArray file(
            R"({"server.port": "9100", "server.ip": "10.0.0.9", "x": [1], "on": true})");
        const struct {
            QByteArray file;
            const char *key, *text;
            int number;
        } rows[] = {
            {"", "server.port", "9011", 9011}, // the host's default
            {"", "theme", "default", -7}, // the caller's
            {file, "server.ip", "10.0.0.9", -7},
            {file, "server.port", "9100", 9100},
            {R"({"server.port": 9200})", "server.port", "9200", 9200},
            {file, "x", "default", -7},
            {file, "on", "true", -7},
            {R"({"server.port": "many"})", "server.port", "many", 9011},
            {R"({"server.port": null})", "server.port", "9011", 9011},
            {R"({"server.port": [1]})", "server.port", "9011", 9011},
        };
        for (const auto &[content, key, text, number] : rows) {
            init();
            if (!content.isEmpty())
                write(content);
            SettingManager settings;
            QVERIFY(settings.load(m_path));
            QCOMPARE(settings.getStr(key, "default"), QString(text));
            QCOMPARE(settings.getInt(key, -7), number);
        }
    }

    void damagedFileIsLeftAlone()
    {
        for (const char *file : {"{\"theme\": \"dark\",", "[1]", "\n"}) {
            write(file);
            SettingManager settings;
            announce("settings.json can't be read, defaults are used: ");
            QVERIFY(!settings.load(m_path));
            QCOMPARE(settings.getStr("server.ip", ""), QStringLiteral("127.0.0.1"));
            announce("^settings: theme is not saved, ");
            QVERIFY(!settings.set("theme", "light"));
            QCOMPARE(settings.getStr("theme", ""), QStringLiteral("light"));
            QCOMPARE(read(), QByteArray(file));
        }
    }

    void setSavesAndKeepsTheRest()
    {
        QJsonObject expected {{"unknown", QJsonObject {{"kept", QJsonArray {1, 2}}}},
                              {"theme", "dark"}};
        write(QJsonDocument(expected).toJson());
        SettingManager settings;
        QVERIFY(settings.load(m_path));
        expected.insert("workspace", "/data"); // a person wrote it meanwhile
        write(QJsonDocument(expected).toJson());
        QVERIFY(settings.set("language", "de"));
        expected.insert("language", "de");
        QCOMPARE(QJsonDocument::fromJson(read()).object(), expected);
        QVERIFY(read().count('\n') >= 4); // for a person to read
    }

    void setTellsOnlyDifferences()
    {
        SettingManager settings; // without a file: nothing to save
        QSignalSpy changed(&settings, &SettingManager::changed);
        QVERIFY(settings.set("theme", "dark"));
        QVERIFY(settings.set("theme", "dark"));
        QCOMPARE(changed.size(), 1);
        QCOMPARE(changed.first().first().toString(), QStringLiteral("theme"));
    }

    void unwritableFile()
    {
        SettingManager settings;
        QVERIFY(settings.load("/dev/null/settings.json"));
        announce("^settings: theme is not saved, .* can't be written$");
        QVERIFY(!settings.set("theme", "dark"));
        QCOMPARE(settings.getStr("theme", ""), QStringLiteral("dark"));
    }

private:
    static void announce(const char *text)
    {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QString::fromLatin1(text)));
    }

    void write(const QByteArray &text) const
    {
        QFile file(m_path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    QByteArray read() const
    {
        QFile file(m_path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QScopedPointer<QTemporaryDir> m_directory;
    QString m_path;
};

QTEST_GUILESS_MAIN(TestSettingManager)
#include "tst_settingmanager.moc"
