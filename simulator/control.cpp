#include "control.h"

#include "controlio.h"
#include "controlmotion.h"
#include "controlproject.h"
#include "controlwords.h"

#include <QJsonArray>
#include <map>

namespace simulator
{

namespace
{
using Parser = ControlLine (*)(Words &words);

ControlLine parseSetNumber(const QString &what, const QString &text)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    if (!isNumber || number < 0)
        return usage(QStringLiteral("set %1 NUMBER").arg(what));
    if (what == QLatin1String("level"))
        return step([number](Simulator &simulator) { simulator.robot().setLevel(number); });
    return step([number](Simulator &simulator) { simulator.robot().setRobotTemplate(number); });
}

ControlLine parseSetText(const QString &what, const QString &text)
{
    if (what == QLatin1String("id"))
        return step([text](Simulator &simulator) { simulator.robot().setId(text); });
    if (what == QLatin1String("version"))
        return step([text](Simulator &simulator) { simulator.robot().setVersion(text); });
    return step([text](Simulator &simulator) { simulator.robot().setRobot(text); });
}

ControlLine parseSet(Words &words)
{
    const QString what = words.next();
    const QString text = words.rest();
    if (what == QLatin1String("power")
        && (text == QLatin1String("on") || text == QLatin1String("off")))
        return step([on = text == QLatin1String("on")](Simulator &simulator) {
            simulator.robot().setPower(on);
        });
    if (what == QLatin1String("mode")
        && (text == QLatin1String("auto") || text == QLatin1String("manual")))
        return {[automatic = text == QLatin1String("auto")](Simulator &simulator) {
                    return Reply::of(simulator.robot().setAutomatic(automatic));
                },
                QString()};
    if (what == QLatin1String("level") || what == QLatin1String("robot_template"))
        return parseSetNumber(what, text);
    if (what == QLatin1String("id") || what == QLatin1String("version")
        || what == QLatin1String("robot"))
        return parseSetText(what, text);
    return usage(QStringLiteral("set power on|off | mode auto|manual | level NUMBER | id TEXT"
                                " | version TEXT | robot TEXT | robot_template NUMBER"));
}

ControlLine parseProgram(Words &words)
{
    const QString what = words.rest();
    if (what == QLatin1String("start"))
        return {[](Simulator &simulator) { return Reply::of(simulator.robot().startProgram()); },
                QString()};
    if (what == QLatin1String("stop"))
        return step([](Simulator &simulator) { simulator.robot().stopProgram(); });
    return usage(QStringLiteral("program start|stop"));
}

ControlLine parseHub(Words &words)
{
    const QString what = words.next();
    const QString key = words.next();
    if (what == QLatin1String("get") && words.atEnd())
        return query([key](Simulator &simulator) {
            return key.isEmpty() ? QJsonValue(simulator.hub().snapshot())
                                 : simulator.hub().value(key);
        });
    if (what != QLatin1String("set") || words.atEnd())
        return usage(QStringLiteral("hub set KEY JSON | hub get [KEY]"));
    if (const Refusal refusal = HubData::checkKey(key))
        return {{}, *refusal};
    return withJson(words, [key](const QJsonValue &value) {
        return ControlLine {[key, value](Simulator &simulator) {
                                return Reply::of(simulator.hub().set(key, value));
                            },
                            QString()};
    });
}

ControlLine parseNotify(Words &words)
{
    const QString path = words.next();
    if (words.atEnd())
        return usage(QStringLiteral("notify PATH JSON"));
    return withJson(words, [path](const QJsonValue &value) {
        return step([path, value](Simulator &simulator) { simulator.notify(path, value); });
    });
}

ControlLine parseAnswer(Words &words)
{
    const QString what = words.next();
    const QString name = words.next();
    const bool isPlugin = what == QLatin1String("plugin");
    const bool isHub = what == QLatin1String("hub");
    if ((!isPlugin && !isHub && what != QLatin1String("controller")) || words.atEnd())
        return usage(QStringLiteral("answer controller COMMAND JSON | hub KEY JSON"
                                    " | plugin COMMAND ARRAY"));
    return withJson(words, [=](const QJsonValue &value) {
        if (isPlugin && !value.isArray())
            return usage(QStringLiteral("answer plugin COMMAND ARRAY"));
        return step([=](Simulator &simulator) {
            Answers &answers = simulator.answers();
            (isPlugin    ? answers.plugin
                 : isHub ? answers.hub
                         : answers.controller)
                .insert(name, value);
        });
    });
}

/** A positive number up to max; `byDefault` for "". Negative: the word is no such number. */
int positive(const QString &word, int byDefault, int max)
{
    if (word.isEmpty())
        return byDefault;
    bool isNumber = false;
    const int number = word.toInt(&isNumber);
    return isNumber && number > 0 && number <= max ? number : -1;
}

ControlLine parseFault(Words &words)
{
    const QString name = words.next();
    if (name == QLatin1String("clear") && words.atEnd())
        return step([](Simulator &simulator) { simulator.faults().clear(); });
    const auto kind = Faults::kindOf(name);
    if (!kind)
        return {{}, Faults::unknownName(name)};

    Fault fault = Faults::withDefaults(*kind);
    if (!Faults::isCondition(*kind)) {
        fault.command = words.next();
        if (fault.command == QLatin1String("*"))
            fault.command.clear();
        const QString times = words.next();
        fault.times = times == QLatin1String("*") ? 0 : positive(times, 0, Faults::kMaxTimes);
    }
    if (Faults::isCondition(*kind) || *kind == FaultKind::LateAnswer)
        fault.ms = positive(words.next(), fault.ms, Faults::kMaxMilliseconds);
    if (fault.times < 0 || fault.ms < 0 || !words.atEnd())
        return usage(QStringLiteral("fault NAME [COMMAND|* [TIMES|* [MS]]] (MS: late_answer)"
                                    " | controller_down|hub_down|files_down|silent [MS] | clear"));
    return step([fault](Simulator &simulator) { simulator.faults().add(fault); });
}

ControlLine parseDrop(Words &words)
{
    const QString what = words.rest();
    if (what == QLatin1String("controller"))
        return step([](Simulator &simulator) { simulator.dropControllerClients(); });
    if (what == QLatin1String("hub"))
        return step([](Simulator &simulator) { simulator.dropHubClients(); });
    return usage(QStringLiteral("drop controller|hub"));
}

ControlLine parseFiles(Words &words)
{
    const QString what = words.rest();
    if (what == QLatin1String("down"))
        return step([](Simulator &simulator) {
            simulator.faults().add(Faults::withDefaults(FaultKind::FilesDown));
        });
    if (what == QLatin1String("up"))
        return step([](Simulator &simulator) { simulator.faults().end(FaultKind::FilesDown); });
    return usage(QStringLiteral("files down|up"));
}

ControlLine parseCount(Words &words)
{
    const QString command = words.rest();
    if (command.isEmpty())
        return query([](Simulator &simulator) { return simulator.requests().counts(); });
    if (command == QLatin1String("reset"))
        return step([](Simulator &simulator) { simulator.requests().clear(); });
    return query([command](Simulator &simulator) { return simulator.requests().count(command); });
}

ControlLine parseLast(Words &words)
{
    const QString command = words.rest();
    if (command.isEmpty())
        return usage(QStringLiteral("last COMMAND"));
    return query([command](Simulator &simulator) { return simulator.requests().last(command); });
}

ControlLine parseState(Words &words)
{
    if (!words.atEnd())
        return usage(QStringLiteral("state"));
    return query([](Simulator &simulator) { return simulator.state(); });
}

} // namespace

ControlLine ControlLine::parse(const QString &line)
{
    static const std::map<QString, Parser> parsers {
        {QStringLiteral("answer"), parseAnswer},
        {QStringLiteral("count"), parseCount},
        {QStringLiteral("drop"), parseDrop},
        {QStringLiteral("fault"), parseFault},
        {QStringLiteral("files"), parseFiles},
        {QStringLiteral("frame"), parseFrame},
        {QStringLiteral("hub"), parseHub},
        {QStringLiteral("joints"), parseJoints},
        {QStringLiteral("last"), parseLast},
        {QStringLiteral("move"), parseMove},
        {QStringLiteral("notify"), parseNotify},
        {QStringLiteral("point"), parsePoint},
        {QStringLiteral("program"), parseProgram},
        {QStringLiteral("project"), parseProject},
        {QStringLiteral("register"), parseRegister},
        {QStringLiteral("set"), parseSet},
        {QStringLiteral("signal"), parseSignal},
        {QStringLiteral("simulation"), parseSimulation},
        {QStringLiteral("state"), parseState},
        {QStringLiteral("var"), parseVariable},
    };
    Words words(line);
    const QString name = words.next();
    const auto found = parsers.find(name);
    if (found != parsers.end())
        return found->second(words);
    QStringList known;
    for (const auto &parser : parsers)
        known += parser.first;
    return {{},
            QStringLiteral("unknown control command '%1' (known: %2)")
                .arg(name, known.join(QStringLiteral(", ")))};
}

} // namespace simulator
