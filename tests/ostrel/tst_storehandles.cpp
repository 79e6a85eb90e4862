#include "testcolumns.h"

#include <ostrel/moduleobject.h>

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonObject>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>
#include <stdexcept>

using ostrel::ModuleObject;

namespace
{
// "path: old -> new" for each changed() of the watched nodes, in order.
class Journal
{
public:
    Journal(ModuleObject &root, const QStringList &paths)
    {
        for (const QString &path : paths) {
            QObject::connect(root.r(path), &ModuleObject::changed, &m_context,
                             [this, path](const QVariant &now, const QVariant &before, QObject *) {
                                 m_lines << path + ": " + text(before) + " -> " + text(now);
                             });
        }
    }
    QStringList take() { return std::exchange(m_lines, {}); }

private:
    static QString text(const QVariant &value)
    {
        if (!value.isValid())
            return "-";
        ModuleObject node;
        node.set(nullptr, value);
        return node.toJsonText(false);
    }

    QObject m_context;
    QStringList m_lines;
};

void load(ModuleObject &node, const char *json)
{
    QVERIFY(node.fromJsonText(nullptr, json, nullptr, false));
}

using Change = std::function<void(ModuleObject &)>;
} // namespace
Q_DECLARE_METATYPE(Change)

/** Handles: who is told, what a placeholder is, and how long a pointer is good. */
class TestStoreHandles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void notification_data()
    {
        // watched: "", "a", "a.b", "a.c", "l", "l.#0"
        const auto row = testcolumns<QString, Change, QStringList>("before", "change", "told");

        const auto import = [](const char *path, const QJsonValue &json) {
            return [=](ModuleObject &root) {
                root.r(path)->importFromJson(nullptr, json, true, true, true);
            };
        };
        row("set tells the node only", "{}", [](auto &root) { root.set(nullptr, "a.b", 1, true); },
            {"a.b: - -> 1"});
        row("equal value", R"({"a":{"b":1}})",
            [](auto &root) { root.set(nullptr, "a.b", 1, true); }, {"a.b: 1 -> 1"});
        row("silent", "{}", [](auto &root) { root.set(nullptr, "a.b", 1, false); }, {});
        row("touch", R"({"a":{"b":1}})", [](auto &root) { root.r("a")->set(nullptr, QVariant()); },
            {"a: - -> -"});
        row("value over children", R"({"a":{"b":1}})",
            [](auto &root) { root.r("a")->set(nullptr, 5); },
            {"a.b: 1 -> -", R"(a: {"b":1} -> 5)"});
        row("import tells what differs, then itself", R"({"a":{"b":1,"c":2}})",
            import("a", QJsonObject {{"b", 1}, {"c", 3}}),
            {"a.c: 2 -> 3", R"(a: {"b":1,"c":2} -> {"b":1,"c":3})"});
        row("import of equal content", R"({"a":{"b":1}})", import("a", QJsonObject {{"b", 1}}),
            {R"(a: {"b":1} -> {"b":1})"});

        row("import makes", "{}", import("", QJsonObject {{"l", QJsonArray {1}}}),
            {"l.#0: - -> 1", "l: - -> [1]", R"(: {} -> {"l":[1]})"});
        row("import of null makes a node", "{}", import("", QJsonObject {{"a", QJsonValue()}}),
            {"a: - -> -", R"(: {} -> {"a":null})"});
        row("remove", R"({"a":{"b":1}})", [](auto &root) { root.r("a")->remove(nullptr); },
            {"a.b: 1 -> -", R"(a: {"b":1} -> -)"});
        row("remove nothing", "{}", [](auto &root) { root.r("a")->remove(nullptr); }, {});
        row("remove element", R"({"l":[1,2]})",
            [](auto &root) { root.r("l")->removeAt(nullptr, 0); }, {"l.#0: 1 -> -", "l: - -> -"});
        row("append", R"({"l":[1]})",
            [](auto &root) { root.r("l")->append(nullptr, std::make_unique<ModuleObject>()); },
            {"l: - -> -"});
        row("clear", R"({"a":{"b":1}})", [](auto &root) { root.r("a")->clear(nullptr); },
            {"a.b: 1 -> -", R"(a: {"b":1} -> {})"});

        row("copy", R"({"a":1,"x":{"c":2}})",
            [](auto &root) { root.r("a")->copyFrom(nullptr, *root.r("x")); },
            {"a.c: - -> 2", R"(a: 1 -> {"c":2})"});
    }

    void notification()
    {
        QFETCH(QString, before);
        QFETCH(Change, change);
        ModuleObject root;
        load(root, before.toUtf8());
        Journal journal(root, {"", "a", "a.b", "a.c", "l", "l.#0"});
        change(root);
        QTEST(journal.take(), "told");
    }

    void originIsPassedOn()
    {
        ModuleObject root;
        QSignalSpy spy(root.r("a"), &ModuleObject::changed);
        root.set(this, "a", 1, true);
        root.importFromJson(&root, QJsonObject {{"a", 2}}, true, true, true);
        root.r("a")->remove(this);
        QObjectList origins;
        for (const QVariantList &event : spy)
            origins << event[2].value<QObject *>();
        QCOMPARE(origins, (QObjectList {this, &root, this}));
    }

    void placeholderIsInvisible()
    {
        ModuleObject root;
        ModuleObject *node = root.r("a.b.#2.c");
        QVERIFY(node->isNull() && root.isNull());
        QCOMPARE(root.r("a.b.#2.c"), node);
        QVERIFY(root.exportToJson().isNull() && node->exportToJson().isNull());
        root.set(nullptr, "x", 1, true);
        QCOMPARE(root.childNames(), QStringList("x"));
        QVERIFY(!root.child("a") && !root.contains("a"));
        node->set(nullptr, QVariant());
        QVERIFY(!node->isNull());
        QCOMPARE(root.toJsonText(false), QByteArray(R"({"x":1,"a":{"b":[null,null,{"c":null}]}})"));
    }

    void placeholderAttaches()
    {
        const QJsonObject json {{"a", QJsonArray {0, QJsonObject {{"b", 5}}}}};
        const Change changes[] = {
            [](auto &root) { root.r("a.#1.b")->set(nullptr, 5); },
            [](auto &root) { root.set(nullptr, "a.#1.b", 5, true); },
            [=](auto &root) { root.importFromJson(nullptr, json, true, true, true); },
            [=](auto &root) { root.set(nullptr, json.toVariantMap()); },
            [=](auto &root) {
                ModuleObject other;
                other.set(nullptr, json);
                root.copyFrom(nullptr, other);
            },
            [](auto &root) {
                root.setChild(nullptr, "a", QVariantList {0});
                root.r("a")->append(nullptr, std::make_unique<ModuleObject>());
                root.r("a.#1")->setChild(nullptr, "b", 5);
            },
        };
        for (const Change &change : changes) {
            ModuleObject root;
            ModuleObject *node = root.r("a.#1.b");
            QSignalSpy spy(node, &ModuleObject::changed);
            change(root);
            QCOMPARE(spy.count(), 1);
            QCOMPARE(node->getInt(0), 5);
            QCOMPARE(root.r("a.#1.b"), node);
            root.set(nullptr, "a.#1.b", 6, true);
            QCOMPARE(spy.count(), 2);
        }
    }

    void keyedHandleOutlivesItsContent()
    {
        ModuleObject root;
        load(root, R"({"a":{"b":{"c":1}},"z":0})");
        QPointer<ModuleObject> node = root.r("a.b.c");
        for (int round = 0; round < 3; ++round) {
            root.r("a")->remove(nullptr);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QVERIFY(node && node->isNull());
            root.set(nullptr, "a.b.c", round, true);
            QCOMPARE(node->getInt(-1), round);
        }
        root.set(nullptr, "a", 1, true);
        QVERIFY(node->isNull());
        node->set(nullptr, 2);
        QCOMPARE(root.toJsonText(false), QByteArray(R"({"z":0,"a":{"b":{"c":2}}})"));
    }

    void elementHandleGoesLater()
    {
        ModuleObject root;
        load(root, R"({"l":[{"name":"P1"},{"name":"P2"}]})");
        QPointer<ModuleObject> element = root.r("l.#0");
        QPointer<ModuleObject> name = root.r("l.#0.name");
        QPointer<ModuleObject> waiting = root.r("l.#0.nothing.yet");
        root.r("l")->removeAt(nullptr, 0);

        QVERIFY(element && name && waiting);
        QVERIFY(element->isNull() && name->isNull());
        name->set(nullptr, "apart");
        waiting->set(nullptr, 1);
        QCOMPARE(root.toJsonText(false), QByteArray(R"({"l":[{"name":"P2"}]})"));
        QCOMPARE(root.r("l.#0.name")->getStr(""), QString("P2"));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!element && !name && !waiting);
    }

    void handlesFollowTheirElements()
    {
        ModuleObject list;
        QVector<ModuleObject *> handles;
        for (int i = 0; i < 200; ++i) {
            list.set(nullptr, QString("#%1.v").arg(i), i, false);
            handles << list.r(QString("#%1.v").arg(i));
        }
        for (int i = 199; i >= 0; i -= 2)
            list.removeAt(nullptr, i);
        for (int i = 0; i < 200; i += 2) {
            QCOMPARE(handles[i]->getInt(-1), i);
            QCOMPARE(list.r(QString("#%1.v").arg(i / 2)), handles[i]);
        }
    }

    void appendedHandleOrAwaitedPlace()
    {
        ModuleObject list;
        auto record = std::make_unique<ModuleObject>("id");
        QPointer<ModuleObject> handle = record.get();
        QPointer<ModuleObject> inner = record->r("x");
        QCOMPARE(list.append(nullptr, std::move(record)), handle.data());
        inner->set(nullptr, 1);
        QCOMPARE(list.toJsonText(false), QByteArray(R"([{"x":1}])"));

        ModuleObject *awaited = list.r("#1");
        ModuleObject *awaitedInner = list.r("#1.y");
        record = std::make_unique<ModuleObject>("other");
        record->set(nullptr, "y", 2, true);
        QPointer<ModuleObject> gone = record.get();
        QCOMPARE(list.append(nullptr, std::move(record)), awaited);
        QCOMPARE(awaited->name(), QString("other"));
        QCOMPARE(awaitedInner->getInt(0), 2);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(handle && inner && !gone);
    }

    void changeInsideOwnSignal()
    {
        const QJsonObject json {{"l", QJsonArray {QJsonObject {{"v", 1}}}}};
        const Change triggers[] = {
            [](auto &root) { root.set(nullptr, "l.#0.v", 1, true); },
            [](auto &root) {
                root.r("l.#0.v")->set(nullptr, QVariantMap {{"x", 1}});
            },
            [=](auto &root) { root.importFromJson(nullptr, json, true, true, true); },
            [](auto &root) { root.r("l.#0.v")->remove(nullptr); },
        };
        // What the receiver of that signal does, and what it leaves.
        const std::pair<Change, QByteArray> reactions[] = {
            {[](auto &root) { root.set(nullptr, "l.#0.v", 9, false); }, R"({"l":[{"v":9}]})"},
            {[](auto &root) { root.r("l.#0.v")->remove(nullptr, false); }, R"({"l":[{}]})"},
            {[](auto &root) { root.r("l")->removeAt(nullptr, 0); }, R"({"l":[]})"},
            {[](auto &root) { root.remove(nullptr); }, "null"},
            {[](auto &root) { root.fromJsonText(nullptr, "[1]"); }, "[1]"},
        };
        for (const Change &trigger : triggers) {
            for (const auto &pair : reactions) {
                const QByteArray &after = pair.second;
                ModuleObject root;
                load(root, R"({"l":[{"v":0}]})");
                bool reacted = false;
                connect(root.r("l.#0.v"), &ModuleObject::changed, this, [&] {
                    if (!std::exchange(reacted, true))
                        pair.first(root);
                });
                QSignalSpy others(root.r("l"), &ModuleObject::changed);
                trigger(root);
                QVERIFY(reacted);
                QCOMPARE(root.toJsonText(false), after);
                QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
                QCOMPARE(root.toJsonText(false), after);
            }
        }
    }

    void receiverEndsTheTree()
    {
        for (const char *watched : {"", "a"}) {
            auto *root = new ModuleObject;
            load(*root, R"({"a":1})");
            QPointer<ModuleObject> alive(root);
            connect(root->r(watched), &ModuleObject::changed, this, [=] { delete root; });
            root->importFromJson(nullptr, QJsonObject {{"a", 2}}, true, true, true);
            QVERIFY(!alive);
        }
    }

    void throwingReceiverDoesNotStopTheOthers()
    {
        ModuleObject root;
        for (const char *name : {"a", "b"})
            connect(root.r(name), &ModuleObject::changed, this,
                    [=] { throw std::runtime_error(name); });
        Journal journal(root, {"c", ""});
        try {
            root.fromJsonText(nullptr, R"({"a":1,"b":2,"c":3})");
            QFAIL("what a receiver throws has to reach the caller");
        } catch (const std::runtime_error &thrown) {
            QCOMPARE(thrown.what(), "a");
        }
        QCOMPARE(journal.take(), (QStringList {"c: - -> 3", R"(: - -> {"a":1,"b":2,"c":3})"}));
    }

    void globalStore()
    {
        ModuleObject *power = m("brisa.r.power");
        QSignalSpy spy(power, &ModuleObject::changed);
        m("brisa.r")->importFromJson(this, QJsonObject {{"power", "on"}}, false, true, true);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(m("power", m("brisa.r")), power);
        m("brisa.r")->remove(nullptr);
        QCOMPARE(m("brisa.r.power"), power);
        power->set(nullptr, "off");
        QCOMPARE(m("")->getStr("brisa.r.power", ""), QString("off"));
        m("brisa")->remove(nullptr);
    }

    void globalStoreForgetsElements()
    {
        // Looked up while nothing was there: nothing says yet that a list will come.
        QPointer<ModuleObject> early = m("test.l.#0.v");
        load(*m("test"), R"({"l":[{"v":1},{"v":2}]})");
        QCOMPARE(early->getInt(0), 1);
        QPointer<ModuleObject> second = m("test.l.#1.v");
        m("test.l")->removeAt(nullptr, 0);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!early);
        QCOMPARE(m("test.l.#0.v"), second.data());
        m("test")->remove(nullptr);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(m("test.l.#0.v")->isNull());
    }
};

QTEST_GUILESS_MAIN(TestStoreHandles)
#include "tst_storehandles.moc"
