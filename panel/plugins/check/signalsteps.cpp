#include "checksteps.h"

#include <zeplet/zeplet.h>

#include <QJsonObject>

using namespace zeplet;

namespace
{

struct Signal {
    const char *name;
    const char *type;
};

constexpr Signal outputs[] = {{"do_gripper", "DO"}, {"go_recipe", "GO"}, {"ao_speed", "AO"}};
constexpr Signal inputs[] = {{"di_part", "DI"}, {"gi_type", "GI"}, {"ai_pressure", "AI"}};

const QString count = QStringLiteral("part_count");

InterfaceManager *robot()
{
    return zepletInterface();
}

void set(const Signal &signal)
{
    robot()->setIOValue(QLatin1String(signal.name), QLatin1String(signal.type), true);
}

bool isSet(const Signal &signal)
{
    return robot()->getIOHash().value(QLatin1String(signal.name)).toDouble() == 1;
}

QString title(const Signal &signal, const char *what)
{
    return QStringLiteral("%1 %2").arg(QLatin1String(signal.type), QLatin1String(what));
}

QString listed()
{
    QStringList found;
    for (int type = 1; type <= 6; ++type)
        found << robot()->getIOByType(type);
    const QStringList all
        = {QStringLiteral("di_part"), QStringLiteral("do_gripper"), QStringLiteral("do_motors_on"),
           QStringLiteral("gi_type"), QStringLiteral("go_recipe"),  QStringLiteral("ai_pressure"),
           QStringLiteral("ao_speed")};
    return found == all ? QString() : found.join(QStringLiteral(", "));
}

CheckStep setStep(const Signal &signal, const char *what)
{
    return {title(signal, what), [=] { set(signal); }, [=] { return isSet(signal); }};
}

CheckStep refusedStep(CheckSession *session, const Signal &signal)
{
    const QString reason = signal.type == QLatin1String("DI")
        ? QStringLiteral("can only be changed in simulation mode")
        : QStringLiteral("Setting the signal was refused");
    return messageStep(
        session, title(signal, "refused outside simulation, and told"), [=] { set(signal); },
        reason);
}

QString inputsUntouched()
{
    for (const Signal &signal : inputs) {
        if (isSet(signal))
            return QString::fromLatin1(signal.name) + QStringLiteral(" was set");
    }
    return {};
}

CheckStep registerStep(CheckSession *session)
{
    return {QStringLiteral("registers follow the controller"),
            [=] { session->simulator()->control(QStringLiteral("register set R_STATION 0 busy")); },
            [] {
                const QHash<QString, QStringList> registers = robot()->getRegisterHash();
                return registers.size() == 2
                    && registers.value(QStringLiteral("R_STATION"))
                    == QStringList(QStringLiteral("busy"))
                    && robot()->getRegisterValue().toArray().size() == 2;
            }};
}

QString persistentText()
{
    return robot()->getValuesOfPERSVars({count}).value(0);
}

} // namespace

CheckSteps signalSteps(CheckSession *session)
{
    CheckSteps steps {atOnce(QStringLiteral("signals listed by type"), listed)};
    for (const Signal &signal : outputs)
        steps << setStep(signal, "set");
    steps << messageStep(
        session, QStringLiteral("system signal refused, and told"),
        [] {
            set({"do_motors_on", "DO"});
        },
        QStringLiteral("System IO cannot be simulated."));
    for (const Signal &signal : inputs)
        steps << refusedStep(session, signal);
    steps << atOnce(QStringLiteral("refused inputs as they were"), inputsUntouched);
    steps << CheckStep {
        QStringLiteral("simulation of inputs on"),
        [] {
            send(QStringLiteral("io.io_signal.set_input_simu_mode"),
                 QJsonObject {{QStringLiteral("on"), true}});
        },
        [] {
            return robot()->getNodeData(QStringLiteral("tavik.robot.io.input_simu_mode")).toBool();
        }};
    for (const Signal &signal : inputs)
        steps << setStep(signal, "set in simulation");
    return steps << registerStep(session);
}

CheckSteps persistentVariableSteps(CheckSession *)
{
    return {
        {QStringLiteral("persistent variable registered"), [] { robot()->registPERSVars({count}); },
         [] { return robot()->getRegistedPERSVars() == QVector<QVariant> {count}; }},
        {QStringLiteral("persistent variable set"),
         [] { robot()->setValuesOfPERSVars({count}, {7}); },
         [] { return persistentText() == QStringLiteral("7"); }, persistentText},
        {QStringLiteral("registered variable reported by the hub"),
         {},
         [] {
             return robot()->getNexoData(QStringLiteral("monitor.values"), count)
                 == QStringLiteral("7");
         }},
    };
}
