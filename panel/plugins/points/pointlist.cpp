#include "pointlist.h"

#include <QJsonArray>
#include <QRegularExpression>
#include <algorithm>
#include <zeplet/interface/interfacemanager.h>

const QString firstElement = QStringLiteral("[0][0][0]");

namespace
{

constexpr int RobotJoints = 7;

QVector<double> poseOf(const QJsonValue &element)
{
    const QJsonObject frame = element[QLatin1String("pose")][QLatin1String("frame")].toObject();
    if (frame.isEmpty())
        return {};
    const QJsonValue place = frame[QLatin1String("pos")];
    const QJsonValue turn = frame[QLatin1String("ori")].toObject()[QLatin1String("euler")];
    QVector<double> pose;
    for (const char *member : {"x", "y", "z"})
        pose.append(place[QLatin1String(member)].toDouble());
    for (const char *member : {"a", "b", "c"})
        pose.append(turn[QLatin1String(member)].toDouble());
    return pose;
}

QVector<double> jointsOf(const QJsonValue &element)
{
    const QJsonArray angles = element[QLatin1String("inner_pos")].toArray();
    QVector<double> joints;
    for (int i = 0; i < RobotJoints && !angles.isEmpty(); ++i)
        joints.append(angles.at(i).toDouble());
    return joints;
}

Element elementOf(const QString &index, const QJsonValue &content)
{
    const QJsonValue coord = content[QLatin1String("coord")];
    return {index, poseOf(content), jointsOf(content), coord[QLatin1String("tool")].toString(),
            coord[QLatin1String("wobj")].toString()};
}

} // namespace

const Element *Point::element(const QString &index) const
{
    const auto found = std::find_if(elements.begin(), elements.end(),
                                    [&](const Element &one) { return one.index == index; });
    return found == elements.end() ? nullptr : &*found;
}

const Element *Point::target() const
{
    const Element *const first = element(firstElement);
    return !joint && first && !first->pose.isEmpty() ? first : nullptr;
}

QVector<Point> readPoints()
{
    const QJsonArray records = zeplet::zepletInterface()
                                   ->getNodeData(QStringLiteral("tavik.project.point._list"))
                                   .toArray();
    QVector<Point> points;
    points.reserve(records.size());
    for (const QJsonValue &record : records)
        points.append(pointOf(record.toObject()));
    return points;
}

Point pointOf(const QJsonObject &record)
{
    Point point;
    point.name = record[QLatin1String("name")].toString();
    point.description = record[QLatin1String("description")].toString();
    point.joint = record[QLatin1String("property")].toString() == QLatin1String("joint");
    point.persistent = record[QLatin1String("pers")].toString() == QLatin1String("true");
    const QJsonArray sizes = record[QLatin1String("d")].toArray();
    for (const QJsonValue &size : sizes) {
        if (size.toInt() > 0)
            point.dimensions.append(size.toInt());
    }
    const QJsonObject value = record[QLatin1String("value")].toObject();
    for (auto it = value.begin(); it != value.end(); ++it) {
        if (it.key().startsWith(QLatin1Char('[')))
            point.elements.append(elementOf(it.key(), it.value()));
    }
    std::sort(point.elements.begin(), point.elements.end(), [](const Element &a, const Element &b) {
        return indexNumbers(a.index) < indexNumbers(b.index);
    });
    return point;
}

QVector<int> indexNumbers(const QString &index)
{
    static const QRegularExpression number(QStringLiteral("\\d+"));
    QVector<int> numbers;
    auto matches = number.globalMatch(index);
    while (matches.hasNext())
        numbers.append(matches.next().captured().toInt());
    numbers.resize(3);
    return numbers;
}

QString indexText(const QVector<int> &numbers)
{
    return QStringLiteral("[%1][%2][%3]")
        .arg(numbers.value(0))
        .arg(numbers.value(1))
        .arg(numbers.value(2));
}

QVector<int> nextIndex(const Point &point)
{
    if (point.elements.isEmpty())
        return {0, 0, 0};
    QVector<int> next = indexNumbers(point.elements.last().index);
    const int level = qBound(0, point.dimensions.size() - 1, 2);
    ++next[level];
    for (int i = level; i > 0 && next.at(i) >= point.dimensions.at(i); --i) {
        next[i] = 0;
        ++next[i - 1];
    }
    return next;
}

QJsonObject taughtElement(const QJsonObject &position, bool joint, const QString &tool,
                          const QString &wobj)
{
    const QJsonObject axes = position[QLatin1String("joint")].toObject();
    const QJsonObject cartesian = position[QLatin1String("cartesian")].toObject();
    QJsonObject element;
    if (joint) {
        element.insert(QStringLiteral("inner_pos"), axes[QLatin1String("inner_pos")]);
        element.insert(QStringLiteral("extern_pos"), axes[QLatin1String("extern_pos")]);
    } else {
        element.insert(QStringLiteral("pose"), cartesian[QLatin1String("pose")]);
        element.insert(QStringLiteral("conf"), cartesian[QLatin1String("conf")]);
        element.insert(QStringLiteral("external_joint"), axes[QLatin1String("extern_pos")]);
    }
    const Element read = elementOf(QString(), element);
    if (joint ? read.joints.isEmpty() : read.pose.isEmpty())
        return QJsonObject();
    element.insert(QStringLiteral("coord"), QJsonObject {{"tool", tool}, {"wobj", wobj}});
    return element;
}
