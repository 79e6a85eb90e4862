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
    void init();

    void values_data();
    void values();
    void damagedFileIsLeftAlone_data();
    void damagedFileIsLeftAlone();
    void setSavesAndKeepsTheRest();
    void setTellsOnlyDifferences();
    void unwritableFile();

private:
    void write(const QByteArray &text) const;
    QByteArray read() const;

    QScopedPointer<QTemporaryDir> m_directory;
    QString m_path;
};

void TestSettingManager::init()
{
    m_directory.reset(new QTemporaryDir);
    m_path = m_directory->filePath("settings.json");
}

void TestSettingManager::write(const QByteArray &text) const
{
    QFile file(m_path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text);
}

QByteArray TestSettingManager::read() const
{
    QFile file(m_path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void TestSettingManager::values_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("number");
    const QByteArray port(
        R"({"server.port": "9100", "server.ip": "10.0.0.9", "x": [1], "on": true})");
    QTest::newRow("no file: the host's default") << QByteArray() << "server.port"
                                                 << "9011" << 9011;
    QTest::newRow("no file: the caller's default") << QByteArray() << "theme"
                                                   << "default" << -7;
    QTest::newRow("text") << port << "server.ip"
                          << "10.0.0.9" << -7;
    QTest::newRow("text that is a number") << port << "server.port"
                                           << "9100" << 9100;
    QTest::newRow("number") << QByteArray(R"({"server.port": 9200})") << "server.port"
                            << "9200" << 9200;
    QTest::newRow("list") << port << "x"
                          << "default" << -7;
    QTest::newRow("bool") << port << "on"
                          << "true" << -7;
    QTest::newRow("no number") << QByteArray(R"({"server.port": "many"})") << "server.port"
                               << "many" << 9011;
    QTest::newRow("empty object") << QByteArray("{}") << "server.hub_port"
                                  << "9012" << 9012;
}

void TestSettingManager::values()
{
    QFETCH(QByteArray, file);
    QFETCH(QString, key);
    if (!file.isEmpty())
        write(file);
    SettingManager settings;
    QVERIFY(settings.load(m_path));
    QTEST(settings.getStr(key, "default"), "text");
    QTEST(settings.getInt(key, -7), "number");
}

void TestSettingManager::damagedFileIsLeftAlone_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::newRow("cut off") << QByteArray("{\"theme\": \"dark\",");
    QTest::newRow("a list") << QByteArray("[1]");
    QTest::newRow("empty") << QByteArray("\n");
}

void TestSettingManager::damagedFileIsLeftAlone()
{
    QFETCH(QByteArray, file);
    write(file);
    SettingManager settings;
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression("settings.json can't be read, defaults are used: "));
    QVERIFY(!settings.load(m_path));
    QCOMPARE(settings.getStr("server.ip", ""), QStringLiteral("127.0.0.1"));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^settings: theme is not saved, "));
    QVERIFY(!settings.set("theme", "light"));
    QCOMPARE(settings.getStr("theme", ""), QStringLiteral("light"));
    QCOMPARE(read(), file);
}

void TestSettingManager::setSavesAndKeepsTheRest()
{
    write(R"({"unknown": {"kept": [1, 2]}, "theme": "dark"})");
    SettingManager settings;
    QVERIFY(settings.load(m_path));
    write(
        R"({"unknown": {"kept": [1, 2]}, "theme": "dark", "workspace": "/data"})"); // a person did
    QVERIFY(settings.set("language", "de"));
    const QJsonObject saved = QJsonDocument::fromJson(read()).object();
    QCOMPARE(saved,
             (QJsonObject {{"unknown", QJsonObject {{"kept", QJsonArray {1, 2}}}},
                           {"theme", "dark"},
                           {"workspace", "/data"},
                           {"language", "de"}}));
    SettingManager again;
    QVERIFY(again.load(m_path));
    QCOMPARE(again.getStr("language", ""), QStringLiteral("de"));
    QVERIFY(read().count('\n') >= 4); // for a person to read
}

void TestSettingManager::setTellsOnlyDifferences()
{
    SettingManager settings; // without a file: nothing to save
    QSignalSpy changed(&settings, &SettingManager::changed);
    QVERIFY(settings.set("theme", "dark"));
    QVERIFY(settings.set("theme", "dark"));
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.first().first().toString(), QStringLiteral("theme"));
}

void TestSettingManager::unwritableFile()
{
    SettingManager settings;
    QVERIFY(settings.load("/dev/null/settings.json"));
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression("^settings: theme is not saved, .* can't be written$"));
    QVERIFY(!settings.set("theme", "dark"));
    QCOMPARE(settings.getStr("theme", ""), QStringLiteral("dark"));
}

QTEST_GUILESS_MAIN(TestSettingManager)
#include "tst_settingmanager.moc"
