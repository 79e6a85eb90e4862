#include "points.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>
#include <cmath>

namespace
{
constexpr int records = 10000;

// Taught positions carry six decimals.
double position()
{
    static QRandomGenerator random(20240506);
    return std::round(random.bounded(2e9) - 1e9) / 1e6;
}

QJsonArray positions(int count)
{
    QJsonArray list;
    while (list.size() < count)
        list.append(position());
    return list;
}

QJsonObject group(const QStringList &names)
{
    QJsonObject members;
    for (const QString &name : names)
        members.insert(name, position());
    return members;
}

QJsonObject cartesian()
{
    const QJsonObject orientation {{"euler", group({"a", "b", "c"})},
                                   {"quaternion", group({"q1", "q2", "q3", "q4"})}};
    const QJsonObject frame {{"pos", group({"x", "y", "z"})}, {"ori", orientation}};
    return {{"pose", QJsonObject {{"frame", frame}, {"elb", position()}}},
            {"conf", group({"cf1", "cf2", "cf3", "cf4", "cf5", "cf6", "cf7", "cfx"})},
            {"coord", QJsonObject {{"tool", "tool0"}, {"wobj", "wobj0"}}}};
}

QJsonObject record(int index)
{
    QJsonObject taught = cartesian();
    taught.insert("inner_pos", positions(7));
    taught.insert("extern_pos", positions(6));
    taught.insert("external_joint", positions(6));
    return {{"id", index},
            {"name", QString("p%1").arg(index)},
            {"property", "cart"},
            {"pers", "false"},
            {"description", "Auto generate at: 2024/05/06 12:00:00"},
            {"func", "main"},
            {"task", "task0"},
            {"d", QJsonArray {2, 0, 0}},
            {"value", QJsonObject {{"[0][0][0]", taught}, {"[1][0][0]", cartesian()}}}};
}
} // namespace

const QJsonArray &pointRecords()
{
    static const QJsonArray list = [] {
        QJsonArray made;
        for (int i = 0; i < records; ++i)
            made.append(record(i));
        return made;
    }();
    return list;
}

const QByteArray &pointText()
{
    static const QByteArray text = QJsonDocument(pointRecords()).toJson();
    return text;
}

int countNodes(const QJsonValue &value)
{
    int count = 1;
    if (value.isArray()) {
        const QJsonArray list = value.toArray();
        for (const QJsonValue &element : list)
            count += countNodes(element);
    } else if (value.isObject()) {
        const QJsonObject members = value.toObject();
        for (const QJsonValue &member : members)
            count += countNodes(member);
    }
    return count;
}
