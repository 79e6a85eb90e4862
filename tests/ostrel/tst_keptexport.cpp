#include "randomjson.h"

#include <ostrel/modulemanager.h>
#include <ostrel/moduleobject.h>

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using ostrel::ModuleManager;
using ostrel::ModuleObject;

/**
 * What is kept of an export must never be seen once the data have changed. Random edits through all
 * operations of the store; after each, export, file text and search are held against a copy of the
 * tree that has kept nothing.
 */
class TestKeptExport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void randomEdits_data()
    {
        QTest::addColumn<quint32>("seed");
        for (const quint32 seed : {1u, 20240506u, 77u})
            QTest::addRow("seed %u", seed) << seed;
    }

    void randomEdits()
    {
        QFETCH(quint32, seed);
        m_random.seed(seed);
        m_json = RandomJson(seed);
        ModuleObject root;
        m_list = root.r("points");
        fill(root);
        // Receivers export in the middle of changes, and change themselves.
        connect(m_list, &ModuleObject::changed, this, [&] { m_list->exportToJson(); });
        connect(root.r("other"), &ModuleObject::changed, this, [&] {
            m_list->exportToJson();
            m_list->set(nullptr, "#3.value.told", m_random.bounded(9), true);
        });

        QJsonValue last = m_list->exportToJson();
        for (int round = 0; round < 400; ++round) {
            edit(root);
            compareExport(root);
            compareSearch();
            if (round % 20 == 0) {
                compareText(last);
                last = m_list->exportToJson();
                compareText(last);
                compareText(alike(last));
            }
            if (QTest::currentTestFailed())
                QFAIL(qPrintable(QString("in round %1").arg(round)));
        }
    }

    // In order of names, not of their coming, and with the texts that JSON has.
    void textIsThatOfJson()
    {
        m_random.seed(3);
        ModuleObject list;
        for (int i = 0; i < 70; ++i) {
            const QString value = QString("#%1.value.").arg(i);
            for (const char *name : {"z", "a", "B", "点", "\xef\xbc\xa1", "𝄞", "ü", ""})
                list.set(nullptr, value + name + ".x", -0.0, false);
            list.set(nullptr, value + "z.numbers", QVariantList {5.0, 1e17, 0.1, -1e-7}, false);
            list.set(nullptr, value + "z.odd", qInf(), false);
            list.set(nullptr, value + "z.date", QDate(2024, 5, 6), false);
            list.set(nullptr, value + "z.big", 9007199254740993LL, false);
        }
        m_list = &list;
        compareText(list.exportToJson());
    }

private:
    static constexpr int records = 70;

    int below(int limit) { return m_random.bounded(limit); }
    QString path()
    {
        static const QStringList paths {"name",        "value",       "value.a",   "value.a.b",
                                        "value.a.b.c", "value.new.x", "d.#1",      "d",
                                        "value.a.#2",  "pers",        "value.told"};
        return paths[below(paths.size())];
    }
    QVariant value() { return m_json.value(below(4)).toVariant(); }
    QJsonObject record()
    {
        static const QStringList names {"p1", "P1", "5", "", "ä", "Ä"};
        return {
            {"name", names[below(names.size())]},
            {"d", QJsonArray {1, 0, 0}},
            {"value", QJsonObject {{"a", m_json.object(3)}, {"c", QJsonArray {m_json.object(2)}}}}};
    }

    void fill(ModuleObject &root)
    {
        QJsonArray list;
        for (int i = 0; i < records; ++i)
            list.append(record());
        root.importFromJson(nullptr, QJsonObject {{"points", list}, {"other", 1}}, true, true,
                            true);
    }

    void appendRecord()
    {
        auto fresh = std::make_unique<ModuleObject>(ModuleObject::generateId());
        if (below(2))
            fresh->copyFrom(nullptr, *m_list->childAt(below(m_list->childCount())));
        else
            fresh->importFromJson(nullptr, record(), true, true, false);
        fresh->exportToJson();
        m_list->append(nullptr, std::move(fresh), below(2));
    }

    void edit(ModuleObject &root)
    {
        if (!m_list->isList() || m_list->childCount() < records)
            m_list->isList() ? appendRecord() : fill(root);
        const bool notify = below(2);
        const int place = below(m_list->childCount());
        const QString number = QString("#%1.").arg(place);
        ModuleObject *chosen = m_list->childAt(place);
        switch (below(20)) {
        case 0:
            return m_list->set(nullptr, number + path(), value(), notify);
        case 1:
            return chosen->set(nullptr, path(), value(), notify);
        case 2:
            return chosen->r(path())->set(nullptr, value(), notify);
        case 3:
            return root.set(nullptr, "points." + number + path(), value(), notify);
        case 4:
            chosen->setChild(nullptr, "value", m_json.object(3), notify);
            return;
        case 5:
            chosen->importFromJson(nullptr, record(), below(2), below(2), notify);
            return;
        case 6:
            chosen->r(path())->importFromJson(nullptr, m_json.value(3), below(2), true, notify);
            return;
        case 7:
            return chosen->r(path())->copyFrom(nullptr, *m_list->r("#7.value"), notify);
        case 8:
            m_list->removeAt(nullptr, place, notify);
            return;
        case 9:
            return appendRecord();
        case 10:
            return chosen->r(path())->remove(nullptr, notify);
        case 11:
            return chosen->r(path())->clear(nullptr, notify);
        case 12:
            chosen->r(path())->fromJsonText(nullptr, R"({"a":{"b":[1,{}]}})", nullptr, notify);
            return;
        case 13:
            return chosen->remove(nullptr, notify);
        case 14:
            return chosen->set(nullptr, QVariant(), notify);
        case 15:
            return root.r("other")->set(nullptr, below(9), true);
        case 16:
            return m(path(), chosen)->set(nullptr, below(100) / 8.0, notify);
        case 17:
            chosen->r("value")->removeAt(nullptr, 0, notify);
            return;
        case 18:
            return m_list->copyFrom(nullptr, *m_list, notify);
        default:
            root.importFromJson(nullptr, root.exportToJson(), below(2), true, notify);
        }
    }

    void compareExport(ModuleObject &root)
    {
        ModuleObject plain;
        plain.copyFrom(nullptr, root);
        const QJsonValue expected = plain.exportToJson();
        QCOMPARE(root.exportToJson(), expected);
        QCOMPARE(m_list->exportToJson(), expected["points"]);
    }

    void compareSearch()
    {
        for (const char *text : {"P1", "5", "", "ä", "nobody"}) {
            for (const auto sensitivity : {Qt::CaseSensitive, Qt::CaseInsensitive}) {
                int expected = 0;
                const int count = m_list->childCount();
                while (expected < count
                       && m_list->childAt(expected)->getStr("name", "").compare(text, sensitivity))
                    ++expected;
                QCOMPARE(m_list->indexOf("name", text, sensitivity),
                         expected < count ? expected : -1);
            }
        }
    }

    // Records with the same members elsewhere, one of them changed behind the store's back.
    QJsonValue alike(const QJsonValue &exported)
    {
        QJsonArray list = exported.toArray();
        QJsonObject changed = list.at(0).toObject();
        QJsonObject nested = changed["value"].toObject();
        nested.insert("a", below(100));
        changed.insert("value", nested);
        list.replace(0, changed);
        list.append(list.takeAt(1));
        return list;
    }

    void compareText(const QJsonValue &list)
    {
        const QJsonObject content {{"version", "0.2"}, {"points", list}};
        ModuleObject plain;
        plain.importFromJson(nullptr, content, true, true, false);
        QVERIFY(ModuleManager::writeToJson(m_directory.filePath("points.json"), content, true));
        QFile file(m_directory.filePath("points.json"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), plain.toJsonText(true));
    }

    QTemporaryDir m_directory;
    QRandomGenerator m_random;
    RandomJson m_json {0};
    ModuleObject *m_list = nullptr;
};

QTEST_GUILESS_MAIN(TestKeptExport)

#include "tst_keptexport.moc"
