#include "controlmotion.h"

#include "numbers.h"

#include <cmath>

namespace simulator
{

std::optional<QVector<double>> Words::numbers()
{
    QVector<double> numbers;
    while (!atEnd()) {
        bool isNumber = false;
        numbers += next().toDouble(&isNumber);
        if (!isNumber || !std::isfinite(numbers.last()))
            return std::nullopt;
    }
    return numbers;
}

ControlLine parseFrame(Words &words)
{
    const ControlLine wrong = usage(
        QStringLiteral("frame set|remove tool|wobj project|global NAME [X Y Z A B C (for set)]"));
    const QString what = words.next();
    const int kind
        = QStringList {QStringLiteral("tool"), QStringLiteral("wobj")}.indexOf(words.next());
    const int list
        = QStringList {QStringLiteral("project"), QStringLiteral("global")}.indexOf(words.next());
    const QString name = words.next();
    const auto numbers = words.numbers();
    const bool isSet = what == QLatin1String("set");
    const int count = isSet ? Pose::kNumbers : 0;
    if ((!isSet && what != QLatin1String("remove")) || kind < 0 || list < 0 || !numbers
        || numbers->size() != count)
        return wrong;
    const auto ofKind = static_cast<Frames::Kind>(kind);
    const auto ofList = list == 0 ? Frames::Project : Frames::Global;
    if (!isSet)
        return attempt(
            [=](Simulator &simulator) { return simulator.frames().remove(ofKind, ofList, name); });
    return attempt([=, pose = Pose::fromNumbers(*numbers)](Simulator &simulator) {
        return simulator.frames().set(ofKind, ofList, {name, pose});
    });
}

ControlLine parseJoints(Words &words)
{
    const QString what = words.next();
    if (what == QLatin1String("get") && words.atEnd())
        return query([](Simulator &simulator) {
            QJsonArray angles;
            for (const double angle : simulator.motion().joints())
                angles += rounded(angle);
            return angles;
        });
    const auto numbers = words.numbers();
    const bool isMove = what == QLatin1String("move");
    if ((!isMove && what != QLatin1String("set")) || !numbers || numbers->isEmpty()
        || (isMove && numbers->first() <= 0))
        return usage(
            QStringLiteral("joints set DEGREES ... | joints move SPEED DEGREES ... | joints get"));
    if (isMove)
        return attempt([speed = numbers->first(), joints = numbers->mid(1)](Simulator &simulator) {
            return simulator.motion().turnTo(joints, speed);
        });
    return attempt(
        [joints = *numbers](Simulator &simulator) { return simulator.motion().setJoints(joints); });
}

ControlLine parseMove(Words &words)
{
    if (words.rest() != QLatin1String("stop"))
        return usage(QStringLiteral("move stop"));
    return step([](Simulator &simulator) { simulator.motion().stop(); });
}

} // namespace simulator
