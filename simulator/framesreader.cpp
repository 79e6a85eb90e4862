#include "framesreader.h"

namespace simulator
{

namespace
{
QVector<Frames::Frame> readList(JsonReader &lists, const QString &name, JsonError &error)
{
    QVector<Frames::Frame> frames;
    QStringList names;
    for (const QJsonValue &value : lists.array(name)) {
        JsonReader reader(
            value, QStringLiteral("%1[%2]").arg(lists.pathOf(name)).arg(frames.size()), error);
        reader.allowOnly({QStringLiteral("name"), QStringLiteral("pose")});
        const QString frame = reader.text(QStringLiteral("name"), QString());
        if (const Refusal refusal = Frames::checkName(frame))
            reader.report(QStringLiteral("name"), *refusal);
        if (names.contains(frame))
            reader.report(QStringLiteral("name"), QStringLiteral("'%1' is there twice").arg(frame));
        names += frame;
        frames += {frame,
                   Pose::fromNumbers(reader.numbers(QStringLiteral("pose"), Pose::kNumbers, {}))};
    }
    return frames;
}
} // namespace

Frames::Values readFrames(JsonReader &scenario, JsonError &error)
{
    Frames::Values values;
    const QString members[] {QStringLiteral("tools"), QStringLiteral("wobjs")};
    for (const Frames::Kind kind : {Frames::Tool, Frames::WorkObject}) {
        if (!scenario.has(members[kind]))
            continue;
        JsonReader lists(scenario.value(members[kind]), members[kind], error);
        lists.allowOnly({QStringLiteral("project"), QStringLiteral("global")});
        values.lists[kind][Frames::Project] = readList(lists, QStringLiteral("project"), error);
        values.lists[kind][Frames::Global] = readList(lists, QStringLiteral("global"), error);
    }
    return values;
}

} // namespace simulator
