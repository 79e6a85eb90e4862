#include "controlio.h"

namespace simulator
{

ControlLine parseSignal(Words &words)
{
    const QString what = words.next();
    const QString name = words.next();
    if (what == QLatin1String("get") && words.atEnd())
        return query([name](Simulator &simulator) {
            return name.isEmpty() ? QJsonValue(simulator.io().valuesToJson())
                                  : simulator.io().value(name);
        });
    if (what != QLatin1String("set") || words.atEnd())
        return usage(QStringLiteral("signal set NAME VALUE | signal get [NAME]"));
    return withJson(words, [name](const QJsonValue &value) {
        return attempt([=](Simulator &simulator) { return simulator.io().set(name, value); });
    });
}

ControlLine parseSimulation(Words &words)
{
    const QString what = words.rest();
    const bool on = what == QLatin1String("on");
    if (!on && what != QLatin1String("off"))
        return usage(QStringLiteral("simulation on|off"));
    return step([on](Simulator &simulator) { simulator.io().setSimulated(on); });
}

ControlLine parseRegister(Words &words)
{
    const QString what = words.next();
    if (what == QLatin1String("get") && words.atEnd())
        return query([](Simulator &simulator) { return simulator.registers().toJson(); });
    const QString name = words.next();
    bool isNumber = false;
    const int index = words.next().toInt(&isNumber);
    if (what != QLatin1String("set") || !isNumber)
        return usage(QStringLiteral("register set NAME INDEX TEXT | register get"));
    return attempt([=, text = words.rest()](Simulator &simulator) {
        return simulator.registers().set(name, index, text);
    });
}

} // namespace simulator
