#include "randomjson.h"

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
    void getters_data();
    void getters();
    void valueKeepsItsType_data();
    void valueKeepsItsType();
    void setAtPath_data();
    void setAtPath();
    void literalNames();
    void import_data();
    void import();
    void importIsExact_data();
    void importIsExact();
    void randomTreesSurvive();
    void lookupAmongManyNames();
    void listOperations();
    void copies();
    void indexOf();
    void tooDeep();
};

void TestModuleObject::getters_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("asBool"); // defaults: true, 7, 0.5, "none"
    QTest::addColumn<int>("asInt");
    QTest::addColumn<double>("asDouble");
    QTest::addColumn<QString>("asText");

    QTest::newRow("empty") << QVariant() << true << 7 << 0.5 << "none";
    QTest::newRow("false") << QVariant(false) << false << 0 << 0.0 << "false";
    QTest::newRow("true") << QVariant(true) << true << 1 << 1.0 << "true";
    QTest::newRow("int") << QVariant(-3) << true << -3 << -3.0 << "-3";
    QTest::newRow("zero") << QVariant(0) << false << 0 << 0.0 << "0";
    QTest::newRow("int64") << QVariant(qint64(1) << 40) << true << 7 << 1099511627776.0
                           << "1099511627776";
    QTest::newRow("double") << QVariant(2.5) << true << 3 << 2.5 << "2.5";
    QTest::newRow("huge") << QVariant(1e300) << true << 7 << 1e300 << "1e+300";
    QTest::newRow("nan") << QVariant(qQNaN()) << true << 7 << qQNaN() << "nan";
    QTest::newRow("text") << QVariant("abc") << true << 7 << 0.5 << "abc";
    QTest::newRow("empty text") << QVariant("") << false << 7 << 0.5 << "";
    QTest::newRow("text false") << QVariant("False") << false << 7 << 0.5 << "False";
    QTest::newRow("text 0") << QVariant("0") << false << 0 << 0.0 << "0";
    QTest::newRow("text number") << QVariant("12") << true << 12 << 12.0 << "12";
    QTest::newRow("text double") << QVariant("1.5") << true << 7 << 1.5 << "1.5";
    QTest::newRow("uint") << QVariant(4000000000u) << true << 7 << 4e9 << "4000000000";
    QTest::newRow("float") << QVariant(0.5f) << true << 1 << 0.5 << "0.5";
    QTest::newRow("list") << QVariant(QVariantList {1}) << true << 7 << 0.5 << "none";
    QTest::newRow("map") << QVariant(QVariantMap {{"a", 1}}) << true << 7 << 0.5 << "none";
}

void TestModuleObject::getters()
{
    QFETCH(QVariant, value);
    ModuleObject root;
    root.set(nullptr, "a.b", value, true);
    ModuleObject *node = root.r("a.b");

    QTEST(root.getBool("a.b", true), "asBool");
    QTEST(root.getInt("a.b", 7), "asInt");
    QTEST(root.getDouble("a.b", 0.5), "asDouble");
    QTEST(root.getStr("a.b", "none"), "asText");
    QTEST(node->getBool(true), "asBool");
    QTEST(node->getInt(7), "asInt");
    QTEST(node->getDouble(0.5), "asDouble");
    QTEST(node->getStr("none"), "asText");

    QCOMPARE(root.getInt("a.b.c", 7), 7);
    QCOMPARE(root.getStr("a.x", "none"), QString("none"));
    QVERIFY(!root.contains("a.x"));
}

void TestModuleObject::valueKeepsItsType_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QByteArray>("json");

    QTest::newRow("empty") << QVariant() << QByteArray("null");
    QTest::newRow("bool") << QVariant(true) << QByteArray("true");
    QTest::newRow("int") << QVariant(5) << QByteArray("5");
    QTest::newRow("int64") << QVariant(Q_INT64_C(9007199254740993))
                           << QByteArray("9007199254740993");
    QTest::newRow("whole double") << QVariant(5.0) << QByteArray("5");
    QTest::newRow("double") << QVariant(0.1) << QByteArray("0.1");
    QTest::newRow("text") << QVariant("x") << QByteArray("\"x\"");
    QTest::newRow("uint") << QVariant(7u) << QByteArray("7");
    QTest::newRow("date") << QVariant(QDate(2024, 5, 6)) << QByteArray("\"2024-05-06\"");
    QTest::newRow("map") << QVariant(QVariantMap {{"a", "b"}}) << QByteArray(R"({"a":"b"})");
    QTest::newRow("list") << QVariant(QVariantList {true, "x"}) << QByteArray(R"([true,"x"])");
}

void TestModuleObject::valueKeepsItsType()
{
    QFETCH(QVariant, value);
    QFETCH(QByteArray, json);
    ModuleObject root;
    root.set(nullptr, value);
    QCOMPARE(root.value(), value);
    QCOMPARE(root.value().userType(), value.userType());
    QVERIFY(!root.isNull());
    QCOMPARE(show(root), json);
    QCOMPARE(root.exportToJson(), parse(json));
}

void TestModuleObject::setAtPath_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QByteArray>("after");

    const auto row = [](const char *name, const char *before, const char *path,
                        const QVariant &value, const char *after) {
        QTest::newRow(name) << QByteArray(before) << QString(path) << value << QByteArray(after);
    };
    row("itself", "null", "", 1, "1");
    row("new object", "null", "a.b", 1, R"({"a":{"b":1}})");
    row("empty step", "null", "a..b", 1, R"({"a":{"":{"b":1}}})");
    row("value gives way", R"({"a":5})", "a.b", 1, R"({"a":{"b":1}})");
    row("empty value is a node", "{}", "a", QVariant(), R"({"a":null})");
    row("new list", "null", "d.#0", 1, R"({"d":[1]})");
    row("empty object becomes list", R"({"d":{}})", "d.#0", 1, R"({"d":[1]})");
    row("list is filled up", "null", "#2.x", 1, R"([null,null,{"x":1}])");
    row("existing element", "[1,2]", "#1", 3, "[1,3]");
    row("named element", "[1]", "x", 2, "[1,2]");
    row("literal in an object", R"({"#0":1,"b":2})", "#0", 3, R"({"#0":3,"b":2})");
    row("no index: zeros", "null", "#00", 1, R"({"#00":1})");
    row("no index: too many digits", "null", "#1000000", 1, R"({"#1000000":1})");
    row("no index: sign", "null", "#-1", 1, R"({"#-1":1})");
    row("brackets", "null", "value.[0][0][0]", QVariant(), R"({"value":{"[0][0][0]":null}})");
    row("touch keeps children", R"({"a":{"b":1}})", "a", QVariant(), R"({"a":{"b":1}})");
    row("value replaces children", R"({"a":{"b":1}})", "a", "x", R"({"a":"x"})");
    row("map replaces children", R"({"a":{"b":1}})", "a", QVariantMap {{"c.d", 2}},
        R"({"a":{"c.d":2}})");
}

void TestModuleObject::setAtPath()
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

void TestModuleObject::literalNames()
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
    QVERIFY(!root.child("a"));
    QVERIFY(root.r("a.b")->isNull());
    QVERIFY(!root.child("nobody uses this name"));
    QCOMPARE(root.childCount(), 4);
}

void TestModuleObject::import_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<bool>("replace");
    QTest::addColumn<bool>("create");
    QTest::addColumn<QByteArray>("after");

    const auto row = [](const char *name, const char *before, const char *json, bool replace,
                        bool create, const char *after) {
        QTest::newRow(name) << QByteArray(before) << QByteArray(json) << replace << create
                            << QByteArray(after);
    };
    const char *two = R"({"a":1,"b":{"c":2,"d":3}})";
    const char *other = R"({"b":{"c":9},"n":0})";
    row("replace and create", two, other, true, true, R"({"b":{"c":9},"n":0})");
    row("create", two, other, false, true, R"({"a":1,"b":{"c":9,"d":3},"n":0})");
    row("replace", two, other, true, false, R"({"b":{"c":9}})");
    row("neither", two, other, false, false, R"({"a":1,"b":{"c":9,"d":3}})");
    row("list shrinks", "[1,2,3]", "[4]", true, true, "[4]");
    row("list keeps its end", "[1,2,3]", "[4]", false, true, "[4,2,3]");
    row("list grows", "[1]", "[4,5]", true, true, "[4,5]");
    row("list may not grow", "[1]", "[4,5]", true, false, "[4]");
    row("value to object", "1", R"({"a":1})", false, true, R"({"a":1})");
    row("value stays", "1", R"({"a":1})", true, false, "1");
    row("object to list", R"({"a":1})", "[1]", true, true, "[1]");
    row("object to value", R"({"a":1})", "7", false, false, "7");
    row("empty ones", "null", R"({"l":[],"n":null,"o":{}})", true, true,
        R"({"l":[],"n":null,"o":{}})");
}

void TestModuleObject::import()
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

void TestModuleObject::importIsExact_data()
{
    QTest::addColumn<QJsonValue>("json");
    QTest::addColumn<int>("type");

    const auto row = [](const char *name, const QJsonValue &json, int type) {
        QTest::newRow(name) << json << type;
    };
    row("null", QJsonValue::Null, QMetaType::UnknownType);
    row("whole", 5, QMetaType::LongLong);
    row("2^53 + 1", Q_INT64_C(9007199254740993), QMetaType::LongLong);
    row("least int64", std::numeric_limits<qint64>::min(), QMetaType::LongLong);
    row("greatest int64", std::numeric_limits<qint64>::max(), QMetaType::LongLong);
    row("2^63", 9223372036854775808.0, QMetaType::Double);
    row("denormal", 5e-324, QMetaType::Double);
    row("tenth", 0.1, QMetaType::Double);
    row("text", "", QMetaType::QString);
}

void TestModuleObject::importIsExact()
{
    QFETCH(QJsonValue, json);
    ModuleObject root;
    QVERIFY(root.importFromJson(nullptr, json, true, true, false));
    QTEST(root.value().userType(), "type");
    QCOMPARE(root.exportToJson(), json);
    QCOMPARE(root.exportToJson().toVariant(), json.toVariant());
}

void TestModuleObject::randomTreesSurvive()
{
    RandomJson random(20240506);
    ModuleObject reused;
    for (int round = 0; round < 300; ++round) {
        const QJsonValue json = random.value(5);
        ModuleObject fresh;
        QVERIFY(fresh.importFromJson(nullptr, json, true, true, true));
        QCOMPARE(fresh.exportToJson(), json);
        QVERIFY(reused.importFromJson(nullptr, json, true, true, true));
        QCOMPARE(reused.exportToJson(), json);
        ModuleObject copy;
        copy.copyFrom(nullptr, fresh);
        QCOMPARE(copy.exportToJson(), json);
        QCOMPARE(show(copy), show(fresh));
    }
}

void TestModuleObject::lookupAmongManyNames()
{
    ModuleObject root;
    for (int i = 0; i < 500; ++i)
        root.set(nullptr, QString("signal%1").arg(i), i, false);
    for (int i = 0; i < 500; i += 7)
        QCOMPARE(root.getInt(QString("signal%1").arg(i), -1), i);
    QVERIFY(root.removeAt(nullptr, 3));
    root.set(nullptr, "late", -2, false);
    QCOMPARE(root.getInt("signal3", -1), -1);
    QCOMPARE(root.getInt("signal499", -1), 499);
    QCOMPARE(root.getInt("late", -1), -2);
    QCOMPARE(root.childCount(), 500);
}

void TestModuleObject::listOperations()
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
    QCOMPARE(added->name(), id);
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
    QVERIFY(list.isList() && !list.isNull());

    ModuleObject object;
    object.set(nullptr, "a", 1, true);
    QVERIFY(!object.append(nullptr, std::make_unique<ModuleObject>("x")));
    QCOMPARE(show(object), QByteArray(R"({"a":1})"));
}

void TestModuleObject::copies()
{
    ModuleObject root;
    root.set(nullptr, "default.value.#1", 2.5, true);
    root.set(nullptr, "default.when", QDate(2024, 5, 6), true);
    root.r("copy")->copyFrom(nullptr, *root.r("default"));
    root.set(nullptr, "default.value.#1", 1, true);
    QCOMPARE(root.getDouble("copy.value.#1", 0), 2.5);
    QCOMPARE(root.r("copy.when")->value(), QVariant(QDate(2024, 5, 6)));
    // Into itself, and below itself.
    root.r("copy")->copyFrom(nullptr, *root.r("copy.value"));
    QCOMPARE(show(*root.r("copy")), QByteArray("[null,2.5]"));
    root.r("copy.#0")->copyFrom(nullptr, *root.r("copy"));
    QCOMPARE(show(*root.r("copy")), QByteArray("[[null,2.5],2.5]"));
    root.r("copy")->copyFrom(nullptr, ModuleObject());
    QCOMPARE(show(*root.r("copy")), QByteArray("null"));
}

void TestModuleObject::indexOf()
{
    ModuleObject list;
    QVERIFY(list.fromJsonText(
        nullptr, R"([{"name":"a"},{"x":1},{"name":"P1"},{"name":5},{"name":"p1"},7])"));
    QCOMPARE(list.indexOf("name", "p1"), 4);
    QCOMPARE(list.indexOf("name", "p1", Qt::CaseInsensitive), 2);
    QCOMPARE(list.indexOf("name", "5"), -1);
    QCOMPARE(list.indexOf("no such field", "a"), -1);

    list.set(nullptr, "#0.name", "p1", true);
    QCOMPARE(list.indexOf("name", "p1"), 0);
    QVERIFY(list.removeAt(nullptr, 0));
    QCOMPARE(list.indexOf("name", "p1"), 3);
    list.r("#3.name")->remove(nullptr);
    QCOMPARE(list.indexOf("name", "p1"), -1);
    list.r("#0")->importFromJson(nullptr, QJsonObject {{"name", "p1"}}, true, true, true);
    QCOMPARE(list.indexOf("name", "p1"), 0);
}

void TestModuleObject::tooDeep()
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

QTEST_APPLESS_MAIN(TestModuleObject)
#include "tst_moduleobject.moc"
