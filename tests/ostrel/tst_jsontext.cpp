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
    void accepts()
    {
        const std::pair<QByteArray, QByteArray> rows[] = {
            {" \t\r\n[ 1 , { \"a\" : 2 } ] \n", R"([1,{"a":2}])"},
            {"\"x\"", "\"x\""},
            {"\xef\xbb\xbf{}", "{}"},
            {R"({"a":1,"b":2,"a":3})", R"({"b":2,"a":3})"},
            {R"({"a":{"x":{"y":1}},"a":{"y":{"x":2}},"x":3})", R"({"a":{"y":{"x":2}},"x":3})"},
            {"{\"\":1,\"a.b\":2,\"#0\":3,\"\\u0061\":4}", "{\"\":1,\"a.b\":2,\"#0\":3,\"a\":4}"},
            {"[\"\\\"\\\\\\/\\b\\f\\n\\r\\t\\u0000\\u001f\\u00e4\"]",
             "[\"\\\"\\\\/\\b\\f\\n\\r\\t\\u0000\\u001f\xc3\xa4\"]"},
            {"[\"\\ud834\\udd1e\"]", "[\"\xf0\x9d\x84\x9e\"]"},
            {"[\"\\ud834x\",\"\\udd1e\"]", "[\"\\ud834x\",\"\\udd1e\"]"},
            {"[1.0,1e2,-0,-0.0,1e-400]", "[1,100,-0.0,-0.0,0]"},
            {"[9223372036854775807,-9223372036854775808,9223372036854775808]",
             "[9223372036854775807,-9223372036854775808,9.223372036854776e+18]"},
        };
        for (const auto &[text, compact] : rows) {
            QString error;
            ModuleObject node;
            QVERIFY2(node.fromJsonText(nullptr, text, &error), qPrintable(error));
            QCOMPARE(node.toJsonText(false), compact);
        }
    }

    void refuses()
    {
        const struct {
            QByteArray text;
            int line, column;
            const char *error;
        } rows[] = {
            {"", 1, 1, "the document ends where a value should be"},
            {"{\n \"a\": tru}", 2, 7, "a value should be here"},
            {"[1,]", 1, 4, "a value should be here"},
            {"[1 2]", 1, 4, "',' or ']' should be here"},
            {"{\"a\":1 ", 1, 8, "',' or '}' should be here"},
            {"{a:1}", 1, 2, "a member name in quotes should be here"},
            {"{\"a\" 1}", 1, 6, "':' should be here"},
            {"[] x", 1, 4, "text after the end of the document"},
            {"[\"a", 1, 4, "the document ends inside a string"},
            {"[\"a\\", 1, 5, "the document ends inside a string"},
            {"[\"\n\"]", 1, 3, "a control character inside a string"},
            {"[\"\\x\"]", 1, 5, "an unknown escape inside a string"},
            {"[\"\\u12g4\"]", 1, 5, "four hexadecimal digits should be here"},
            {"[\"\\u12", 1, 5, "four hexadecimal digits should be here"},
            {"[01]", 1, 4, "a number must not start with 0"},
            {"[-]", 1, 3, "a digit should be here"},
            {"[1.]", 1, 4, "a digit should be here"},
            {"[1e+]", 1, 5, "a digit should be here"},
            {"[nan]", 1, 2, "a value should be here"},
            {"[1e999]", 1, 7, "the number is too large"},
            {"[\"\xff\"]", 1, 3, "the string that starts here is not valid UTF-8"},
            {"[\"a\\n\xc3\"]", 1, 6, "the string that starts here is not valid UTF-8"},
            {"[\"\xed\xa0\x80\"]", 1, 3, "the string that starts here is not valid UTF-8"},
        };
        for (const auto &[text, line, column, reason] : rows) {
            ModuleObject node;
            node.set(nullptr, "kept", 1, true);
            QString error;
            QVERIFY2(!node.fromJsonText(nullptr, text, &error), text.constData());
            const int offset = column - 1 + (line > 1 ? text.indexOf('\n') + 1 : 0);
            QCOMPARE(error,
                     QString("line %1, column %2 (offset %3): %4")
                         .arg(line)
                         .arg(column)
                         .arg(offset)
                         .arg(reason));
            QCOMPARE(node.toJsonText(false), QByteArray(R"({"kept":1})"));
        }
    }

    void doublesAreExact()
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

    void readsAndWritesWhatQtDoes()
    {
        RandomJson random(42);
        for (int round = 0; round < 300; ++round) {
            const QJsonObject json = random.object(5);
            for (const bool indented : {false, true}) {
                ModuleObject node;
                QVERIFY(node.importFromJson(nullptr, json, true, true, false));
                const QByteArray text = node.toJsonText(indented);
                const QByteArray qtText = QJsonDocument(json).toJson(
                    indented ? QJsonDocument::Indented : QJsonDocument::Compact);
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

    void damagedTextIsNoHarm()
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

    void depth()
    {
        const auto reads = [](int depth) {
            ModuleObject node;
            return node.fromJsonText(nullptr, QByteArray(depth, '[') + QByteArray(depth, ']'));
        };
        QVERIFY(reads(512) && !reads(513) && !reads(5000000));
    }
};

QTEST_APPLESS_MAIN(TestJsonText)
#include "tst_jsontext.moc"
