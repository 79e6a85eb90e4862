#include "controlproject.h"

namespace simulator
{

ControlLine parseProject(Words &words)
{
    const QString what = words.next();
    const QString text = words.rest();
    if (what == QLatin1String("get") && words.atEnd())
        return query([](Simulator &simulator) { return simulator.projects().toJson(); });
    if (what == QLatin1String("open") && !words.atEnd())
        return attempt([text](Simulator &simulator) { return simulator.openProject(text); });
    if (what == QLatin1String("autoload"))
        return attempt(
            [text](Simulator &simulator) { return simulator.projects().setAutoload(text); });
    return usage(QStringLiteral("project get | project open NAME | project autoload [PATH]"));
}

ControlLine parseVariable(Words &words)
{
    const QString what = words.next();
    if (what == QLatin1String("get"))
        return query([name = words.rest()](Simulator &simulator) {
            const QJsonObject variables = simulator.variables().toJson();
            return name.isEmpty() ? QJsonValue(variables) : variables.value(name);
        });
    const QString name = words.next();
    if (what != QLatin1String("set") || words.atEnd())
        return usage(QStringLiteral("var set NAME JSON | var get [NAME]"));
    return withJson(words, [name](const QJsonValue &value) {
        return attempt(
            [=](Simulator &simulator) { return simulator.variables().setValue(name, value); });
    });
}

ControlLine parsePoint(Words &words)
{
    if (words.next() != QLatin1String("get"))
        return usage(QStringLiteral("point get [NAME]"));
    return query([name = words.rest()](Simulator &simulator) {
        return name.isEmpty() ? QJsonValue(simulator.points()) : simulator.points().value(name);
    });
}

} // namespace simulator
