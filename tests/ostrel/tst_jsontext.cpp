#include "randomjson.h"

#include <ostrel/moduleobject.h>

#include <QJsonDocument>
#include <QTest>
#include <clocale>
#include <cmath>

using ostrel::ModuleObject;

/** The store's JSON text, against QJsonDocument. */
class TestJsonText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void accepts_data();
    void accepts();
    void refuses_data();
    void refuses();
    void doublesAreExact();
    void readsAndWritesWhatQtDoes();
    void damagedTextIsNoHarm();
    void depth();
};

void TestJsonText::accepts_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("again"); // compact

    const auto row = [](const char *name, const QByteArray &text, const QByteArray &again) {
        QTest::newRow(name) << text << again;
    };
    row("blanks", " \t\r\n[ 1 , { \"a\" : 2 } ] \n", R"([1,{"a":2}])");
    row("top value", "\"x\"", "\"x\"");
    row("byte order mark", "\xef\xbb\xbf{}", "{}");
    row("order of members", R"({"b":1,"a":2})", R"({"b":1,"a":2})");
    row("last of a name", R"({"a":1,"b":2,"a":3})", R"({"b":2,"a":3})");
    row("last of a name, nested", R"({"a":{"x":{"y":1}},"a":{"y":{"x":2}},"x":3})",
        R"({"a":{"y":{"x":2}},"x":3})");
    row("odd names", R"({"":1,"a.b":2,"#0":3})", R"({"":1,"a.b":2,"#0":3})");
    row("escapes", R"(["\"\\\/\b\f\n\r\t\u0000\u001f\u00e4"])",
        "[\"\\\"\\\\/\\b\\f\\n\\r\\t\\u0000\\u001f\xc3\xa4\"]");
    row("escaped name", R"({"\u0061":1,"a\n":2})", R"({"a":1,"a\n":2})");
    row("pair", R"(["\ud834\udd1e"])", "[\"\xf0\x9d\x84\x9e\"]");
    row("half a pair", R"(["\ud834x","\udd1e"])", R"(["\ud834x","\udd1e"])");
    row("utf-8", "[\"\xe7\x82\xb9 \xc3\xa4\"]", "[\"\xe7\x82\xb9 \xc3\xa4\"]");
    row("whole", "[1.0,1e2,-0,-0.0,1e-400]", "[1,100,-0.0,-0.0,0]");
    row("large", "[9223372036854775807,-9223372036854775808,9223372036854775808]",
        "[9223372036854775807,-9223372036854775808,9.223372036854776e+18]");
    row("small", "[0.0001,0.00001,5e-324]", "[0.0001,1e-05,5e-324]");
}

void TestJsonText::accepts()
{
    QFETCH(QByteArray, text);
    QString error;
    ModuleObject node;
    QVERIFY2(node.fromJsonText(nullptr, text, &error), qPrintable(error));
    QTEST(node.toJsonText(false), "again");
}

void TestJsonText::refuses_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("error");

    const auto row = [](const QByteArray &text, const char *error) {
        QTest::newRow(text.toPercentEncoding().left(40).constData()) << text << QString(error);
    };
    row("", "line 1, column 1 (offset 0): the document ends where a value should be");
    row("{\n \"a\": tru}", "line 2, column 7 (offset 8): a value should be here");
    row("[1,]", "line 1, column 4 (offset 3): a value should be here");
    row("[1 2]", "line 1, column 4 (offset 3): ',' or ']' should be here");
    row("{\"a\":1 ", "line 1, column 8 (offset 7): ',' or '}' should be here");
    row("{a:1}", "line 1, column 2 (offset 1): a member name in quotes should be here");
    row("{\"a\" 1}", "line 1, column 6 (offset 5): ':' should be here");
    row("[] x", "line 1, column 4 (offset 3): text after the end of the document");
    row("[\"a", "line 1, column 4 (offset 3): the document ends inside a string");
    row("[\"a\\", "line 1, column 5 (offset 4): the document ends inside a string");
    row("[\"\n\"]", "line 1, column 3 (offset 2): a control character inside a string");
    row("[\"\\x\"]", "line 1, column 5 (offset 4): an unknown escape inside a string");
    row("[\"\\u12g4\"]", "line 1, column 5 (offset 4): four hexadecimal digits should be here");
    row("[\"\\u12", "line 1, column 5 (offset 4): four hexadecimal digits should be here");
    row("[01]", "line 1, column 4 (offset 3): a number must not start with 0");
    row("[-]", "line 1, column 3 (offset 2): a digit should be here");
    row("[1.]", "line 1, column 4 (offset 3): a digit should be here");
    row("[1e+]", "line 1, column 5 (offset 4): a digit should be here");
    row("[+1]", "line 1, column 2 (offset 1): a value should be here");
    row("[nan]", "line 1, column 2 (offset 1): a value should be here");
    row("[1e999]", "line 1, column 7 (offset 6): the number is too large");
    row("[\"\xff\"]",
        "line 1, column 3 (offset 2): the string that starts here is not valid UTF-8");
    row("[\"a\\n\xc3\"]",
        "line 1, column 6 (offset 5): the string that starts here is not valid UTF-8");
    row("[\"\xed\xa0\x80\"]",
        "line 1, column 3 (offset 2): the string that starts here is not valid UTF-8");
}

void TestJsonText::refuses()
{
    QFETCH(QByteArray, text);
    ModuleObject node;
    node.set(nullptr, "kept", 1, true);
    QString error;
    QVERIFY(!node.fromJsonText(nullptr, text, &error));
    QTEST(error, "error");
    QCOMPARE(node.toJsonText(false), QByteArray(R"({"kept":1})"));
}

void TestJsonText::doublesAreExact()
{
    // The panel runs with the operator's locale, whose decimal point may be a comma.
    std::setlocale(LC_ALL, "de_DE.UTF-8");
    QRandomGenerator random(7);
    for (int i = 0; i < 20000; ++i) {
        const quint64 bits = random.generate64();
        double number = 0;
        std::memcpy(&number, &bits, sizeof number);
        if (i % 2)
            number = double(qint64(bits) >> 20) / 1000.0;
        if (!std::isfinite(number))
            continue;
        ModuleObject node;
        node.set(nullptr, number);
        const QByteArray text = node.toJsonText(false);
        ModuleObject again;
        QVERIFY(again.fromJsonText(nullptr, text));
        QCOMPARE(again.getDouble(0), number);
        QCOMPARE(std::signbit(again.getDouble(0)), std::signbit(number));
        QCOMPARE(QJsonDocument::fromJson('[' + text + ']').array().first().toDouble(), number);
    }
    std::setlocale(LC_ALL, "C");
}

void TestJsonText::readsAndWritesWhatQtDoes()
{
    RandomJson random(42);
    for (int round = 0; round < 300; ++round) {
        const QJsonObject json = random.object(5);
        for (const bool indented : {false, true}) {
            ModuleObject node;
            QVERIFY(node.importFromJson(nullptr, json, true, true, false));
            const QByteArray text = node.toJsonText(indented);
            const QByteArray qtText = QJsonDocument(json).toJson(indented ? QJsonDocument::Indented
                                                                          : QJsonDocument::Compact);
            QCOMPARE(QJsonDocument::fromJson(text).object(), json);
            ModuleObject again;
            QVERIFY(again.fromJsonText(nullptr, qtText));
            QCOMPARE(again.exportToJson(), QJsonValue(json));
            QCOMPARE(again.toJsonText(indented), text);
            QCOMPARE(text.count('\n'), qtText.count('\n'));
        }
    }
    const QByteArray layout = "{\n    \"a\": [\n        1,\n        {\n        }\n    ],\n"
                              "    \"b\": \"\"\n}\n";
    ModuleObject node;
    QVERIFY(node.fromJsonText(nullptr, layout));
    QCOMPARE(node.toJsonText(true), layout);
    QCOMPARE(QJsonDocument::fromJson(layout).toJson(), layout);
}

void TestJsonText::damagedTextIsNoHarm()
{
    RandomJson random(3);
    QRandomGenerator damage(4);
    for (int round = 0; round < 2000; ++round) {
        QByteArray text = QJsonDocument(random.object(4)).toJson(QJsonDocument::Compact);
        for (int i = damage.bounded(1, 4); i > 0; --i)
            text[damage.bounded(text.size())] = char(damage.bounded(256));
        text.truncate(damage.bounded(text.size()) * 2);
        ModuleObject node;
        QString error;
        if (node.fromJsonText(nullptr, text, &error)) {
            ModuleObject again;
            QVERIFY(again.fromJsonText(nullptr, node.toJsonText(true)));
            QCOMPARE(again.toJsonText(false), node.toJsonText(false));
        } else {
            QVERIFY(error.startsWith("line "));
            QVERIFY(node.isNull());
        }
    }
}

void TestJsonText::depth()
{
    ModuleObject node;
    QString error;
    QVERIFY(node.fromJsonText(nullptr, QByteArray(512, '[') + QByteArray(512, ']')));
    QVERIFY(!node.fromJsonText(nullptr, QByteArray(513, '[') + QByteArray(513, ']'), &error));
    QVERIFY(error.endsWith("nested too deep"));
    QVERIFY(!node.fromJsonText(nullptr, QByteArray(5000000, '['), &error));
}

QTEST_APPLESS_MAIN(TestJsonText)
#include "tst_jsontext.moc"
