#include "randomjson.h"
#include "testcolumns.h"

#include <ostrel/moduleobject.h>

#include <QDateTime>
#include <QJsonDocument>
#include <QTest>
#include <limits>

using ostrel::ModuleObject;

namespace
{
QJsonValue parse(const QByteArray &text)
{
    const QJsonArray wrapped = QJsonDocument::fromJson('[' + text + ']').array();
    return wrapped.isEmpty() ? QJsonValue(QJsonValue::Undefined) : wrapped.first();
}

QByteArray show(const ModuleObject &node)
{
    return node.toJsonText(false);
}
} // namespace

/** Values, paths, JSON: a tree without anyone watching. */
class TestModuleObject : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void getters_data()
    {
        // defaults: true, 7, 0.5, "none"
        const auto row = testcolumns<QVariant, bool, int, double, QString>(
            "value", "asBool", "asInt", "asDouble", "asText");

        row("empty", QVariant(), true, 7, 0.5, "none");
        row("false", false, false, 0, 0.0, "false");
        row("int", -3, true, -3, -3.0, "-3");
        row("zero", 0, false, 0, 0.0, "0");
        row("int64", qint64(1) << 40, true, 7, 1099511627776.0, "1099511627776");
        row("double", 2.5, true, 3, 2.5, "2.5");
        row("huge", 1e300, true, 7, 1e300, "1e+300");
        row("nan", qQNaN(), true, 7, qQNaN(), "nan");
        row("text", "abc", true, 7, 0.5, "abc");
        row("empty text", "", false, 7, 0.5, "");
        row("text false", "False", false, 7, 0.5, "False");
        row("text 0", "0", false, 0, 0.0, "0");
        row("text number", "12", true, 12, 12.0, "12");
        row("text double", "1.5", true, 7, 1.5, "1.5");
        row("list", QVariantList {1}, true, 7, 0.5, "none");
        row("map", QVariantMap {{"a", 1}}, true, 7, 0.5, "none");
    }

    void getters()
    {
        QFETCH(QVariant, value);
        ModuleObject root;
        root.set(nullptr, "a.b", value, true);
        QTEST(root.getBool("a.b", true), "asBool");
        QTEST(root.getInt("a.b", 7), "asInt");
        QTEST(root.getDouble("a.b", 0.5), "asDouble");
        QTEST(root.getStr("a.b", "none"), "asText");
        QCOMPARE(root.getInt("a.b.c", 7), 7);
        QVERIFY(!root.contains("a.x"));
    }

    void valueKeepsItsType()
    {
        const std::pair<QVariant, QByteArray> rows[] = {
            {QVariant(), "null"},
            {5, "5"},
            {Q_INT64_C(9007199254740993), "9007199254740993"},
            {5.0, "5"},
            {7u, "7"},
            {QDate(2024, 5, 6), "\"2024-05-06\""},
            {QVariantMap {{"a", "b"}}, R"({"a":"b"})"},
            {QVariantList {true, "x"}, R"([true,"x"])"},
        };
        for (const auto &[value, json] : rows) {
            ModuleObject root;
            root.set(nullptr, value);
            QCOMPARE(root.value(), value);
            QCOMPARE(root.value().userType(), value.userType());
            QVERIFY(!root.isNull());
            QCOMPARE(show(root), json);
            QCOMPARE(root.exportToJson(), parse(json));
        }
    }

    void setAtPath_data()
    {
        const auto row = testcolumns<QByteArray, QString, QVariant, QByteArray>("before", "path",
                                                                                "value", "after");

        row("itself", "null", "", 1, "1");
        row("empty step", "null", "a..b", 1, R"({"a":{"":{"b":1}}})");
        row("value gives way", R"({"a":5})", "a.b", 1, R"({"a":{"b":1}})");
        row("empty object becomes list", "{\"d\":{}}", "d.#0", 1, "{\"d\":[1]}");
        row("list is filled up", "null", "#2.x", 1, "[null,null,{\"x\":1}]");
        row("existing element", "[1,2]", "#1", 3, "[1,3]");
        row("named element", "[1]", "x", 2, "[1,2]");
        row("literal in an object", "{\"#0\":1,\"b\":2}", "#0", 3, "{\"#0\":3,\"b\":2}");
        row("no index: zeros", "null", "#00", 1, "{\"#00\":1}");
        row("no index: too many digits", "null", "#1000000", 1, "{\"#1000000\":1}");
        row("no index: sign", "null", "#-1", 1, "{\"#-1\":1}");
        row("brackets", "null", "value.[0][0][0]", QVariant(), R"({"value":{"[0][0][0]":null}})");
        row("touch keeps children", R"({"a":{"b":1}})", "a", QVariant(), R"({"a":{"b":1}})");
        row("value replaces children", R"({"a":{"b":1}})", "a", "x", R"({"a":"x"})");
        row("map replaces children", R"({"a":{"b":1}})", "a", QVariantMap {{"c.d", 2}},
            R"({"a":{"c.d":2}})");
    }

    void setAtPath()
    {
        QFETCH(QByteArray, before);
        QFETCH(QString, path);
        QFETCH(QVariant, value);
        // Once with nobody looking, once through a handle that was there before.
        for (const bool looked : {false, true}) {
            ModuleObject root;
            QVERIFY(root.fromJsonText(nullptr, before));
            if (looked)
                root.r(path)->set(nullptr, value);
            else
                root.set(nullptr, path, value, true);
            QTEST(show(root), "after");
            QVERIFY(root.contains(path));
        }
    }

    void literalNames()
    {
        ModuleObject root;
        const QStringList names = {"a.b", "#0", "", "x"};
        for (const QString &name : names)
            root.setChild(nullptr, name, name);
        QCOMPARE(root.childNames(), names);
        for (const QString &name : names) {
            QVERIFY(root.child(name));
            QCOMPARE(root.child(name)->getStr("?"), name);
            QCOMPARE(root.child(name)->name(), name);
        }
        QVERIFY(!root.child("a") && root.r("a.b")->isNull());
    }

    void import_data()
    {
        const auto row = testcolumns<QByteArray, QByteArray, bool, bool, QByteArray>(
            "before", "json", "replace", "create", "after");

        const char *two = R"({"a":1,"b":{"c":2,"d":3}})";
        const char *other = R"({"b":{"c":9},"n":0})";
        row("replace and create", two, other, true, true, R"({"b":{"c":9},"n":0})");
        row("create", two, other, false, true, R"({"a":1,"b":{"c":9,"d":3},"n":0})");
        row("replace", two, other, true, false, R"({"b":{"c":9}})");
        row("neither", two, other, false, false, R"({"a":1,"b":{"c":9,"d":3}})");

        row("list keeps its end", "[1,2,3]", "[4]", false, true, "[4,2,3]");
        row("list grows", "[1]", "[4,5]", true, true, "[4,5]");
        row("list may not grow", "[1]", "[4,5]", true, false, "[4]");
        row("value to object", "1", R"({"a":1})", false, true, R"({"a":1})");
        row("value stays", "1", R"({"a":1})", true, false, "1");
        row("object to list", R"({"a":1})", "[1]", true, true, "[1]");
        row("empty ones", "null", R"({"l":[],"n":null,"o":{}})", true, true,
            R"({"l":[],"n":null,"o":{}})");
    }

    void import()
    {
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, json);
        QFETCH(bool, replace);
        QFETCH(bool, create);
        ModuleObject root;
        QVERIFY(root.fromJsonText(nullptr, before));
        QVERIFY(root.importFromJson(nullptr, parse(json), replace, create, true));
        QTEST(show(root), "after");
        QVERIFY(!root.importFromJson(nullptr, QJsonValue::Undefined, true, true, true));
        QTEST(show(root), "after");
    }

    void importIsExact()
    {
        const std::pair<QJsonValue, int> rows[] = {
            {QJsonValue::Null, QMetaType::UnknownType},
            {Q_INT64_C(9007199254740993), QMetaType::LongLong},
            {std::numeric_limits<qint64>::min(), QMetaType::LongLong},
            {std::numeric_limits<qint64>::max(), QMetaType::LongLong},
            {9223372036854775808.0, QMetaType::Double},
            {5e-324, QMetaType::Double},
            {"", QMetaType::QString},
        };
        for (const auto &[json, type] : rows) {
            ModuleObject root;
            QVERIFY(root.importFromJson(nullptr, json, true, true, false));
            QCOMPARE(root.value().userType(), type);
            QCOMPARE(root.exportToJson().toVariant(), json.toVariant());
        }
    }

    void randomTreesSurvive()
    {
        RandomJson random(20240506);
        ModuleObject reused;
        for (int round = 0; round < 300; ++round) {
            const QJsonValue json = random.value(5);
            QVERIFY(reused.importFromJson(nullptr, json, true, true, true));
            QCOMPARE(reused.exportToJson(), json);
            ModuleObject copy;
            copy.copyFrom(nullptr, reused);
            QCOMPARE(copy.exportToJson(), json);
            QCOMPARE(show(copy), show(reused));
        }
    }

    void lookupAmongManyNames()
    {
        ModuleObject root;
        for (int i = 0; i < 500; ++i)
            root.set(nullptr, QString("signal%1").arg(i), i, false);
        QVERIFY(root.removeAt(nullptr, 3));
        root.set(nullptr, "late", -2, false);
        for (int i = 0; i < 500; i += 3)
            QCOMPARE(root.getInt(QString("signal%1").arg(i), -1), i == 3 ? -1 : i);
        QCOMPARE(root.getInt("late", -1), -2);
    }

    void listOperations()
    {
        ModuleObject list;
        const QString id = ModuleObject::generateId();
        QVERIFY(id != ModuleObject::generateId());
        auto record = std::make_unique<ModuleObject>(id);
        record->set(nullptr, "name", "P1", true);
        ModuleObject *handle = record->r("name");
        ModuleObject *added = list.append(nullptr, std::move(record));
        list.append(nullptr, std::make_unique<ModuleObject>());
        list.set(nullptr, "#2", "third", true);
        QCOMPARE(show(list), QByteArray(R"([{"name":"P1"},null,"third"])"));
        QCOMPARE(list.childNames(), (QStringList {id, "#1", "#2"}));
        QCOMPARE(list.childAt(0), added);
        QCOMPARE(list.r("#0.name"), handle);
        QCOMPARE(list.r(id + ".name"), handle);
        QVERIFY(!list.childAt(3) && !list.childAt(-1));

        ModuleObject *third = list.childAt(2);
        QVERIFY(list.removeAt(nullptr, 0));
        QVERIFY(!list.removeAt(nullptr, 2));
        QCOMPARE(third->name(), QString("#1"));
        QCOMPARE(third->getStr(""), QString("third"));
        list.clear(nullptr);
        QCOMPARE(show(list), QByteArray("[]"));

        ModuleObject object;
        object.set(nullptr, "a", 1, true);
        QVERIFY(!object.append(nullptr, std::make_unique<ModuleObject>("x")));
        QCOMPARE(show(object), QByteArray(R"({"a":1})"));
    }

    void copiesIntoAndBelowItself()
    {
        ModuleObject root;
        root.set(nullptr, "copy.value.#1", 2.5, true);
        root.r("copy")->copyFrom(nullptr, *root.r("copy.value"));
        QCOMPARE(show(*root.r("copy")), QByteArray("[null,2.5]"));
        root.r("copy.#0")->copyFrom(nullptr, *root.r("copy"));
        QCOMPARE(show(*root.r("copy")), QByteArray("[[null,2.5],2.5]"));
        root.r("copy")->copyFrom(nullptr, ModuleObject());
        QCOMPARE(show(*root.r("copy")), QByteArray("null"));
    }

    void indexOf()
    {
        ModuleObject list;
        QVERIFY(list.fromJsonText(
            nullptr, R"([{"name":"a"},{"x":1},{"name":"P1"},{"name":5},{"name":"p1"},7])"));
        QCOMPARE(list.indexOf("name", "p1"), 4);
        QCOMPARE(list.indexOf("name", "p1", Qt::CaseInsensitive), 2);
        QCOMPARE(list.indexOf("name", "5"), 3);
        QCOMPARE(list.indexOf("name", ""), 1);
        QCOMPARE(list.indexOf("no such field", "a"), -1);
        QCOMPARE(list.indexOf("no such field", ""), 0);

        list.set(nullptr, "#0.name", "p1", true);
        QCOMPARE(list.indexOf("name", "p1"), 0);
        QVERIFY(list.removeAt(nullptr, 0));
        QCOMPARE(list.indexOf("name", "p1"), 3);
        list.r("#3.name")->remove(nullptr);
        QCOMPARE(list.indexOf("name", "p1"), -1);
        list.r("#0")->importFromJson(nullptr, QJsonObject {{"name", "p1"}}, true, true, true);
        QCOMPARE(list.indexOf("name", "p1"), 0);
    }

    void tooDeep()
    {
        const QString deep = QString("a.").repeated(2000) + "a";
        const QByteArray warning = "ModuleObject: a path of more than 1024 levels is not set";
        const QByteArray outside
            = "ModuleObject: a path of more than 1024 levels leads out of the tree";
        ModuleObject root;
        root.set(nullptr, "b", 1, true);
        QTest::ignoreMessage(QtWarningMsg, warning.constData());
        root.set(nullptr, deep, 1, true);
        QTest::ignoreMessage(QtWarningMsg, outside.constData());
        root.r(deep)->set(nullptr, 1);
        QCOMPARE(show(root), QByteArray(R"({"b":1})"));

        QJsonValue json = 1;
        for (int i = 0; i < 1500; ++i)
            json = QJsonArray {json};
        QVERIFY(!root.importFromJson(nullptr, json, true, true, true));
    }
};

QTEST_APPLESS_MAIN(TestModuleObject)
#include "tst_moduleobject.moc"
