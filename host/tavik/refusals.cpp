#include "tavik/refusals_p.h"

#include "ostrel/moduleobject.h"

#include <QCoreApplication>

namespace tavik
{

namespace
{

struct Refusal {
    const char *command;
    const char *sentence; ///< with the reason
    const char *advice;
};

constexpr Refusal refusals[] = {
    {"rl_program.start", QT_TRANSLATE_NOOP("tavik", "The program was not started: %1."),
     QT_TRANSLATE_NOOP("tavik", "Remove the cause, then press Start again.")},
    {"rl_program.stop", QT_TRANSLATE_NOOP("tavik", "The program was not stopped: %1."),
     QT_TRANSLATE_NOOP("tavik", "If the robot moves, use the emergency stop.")},
    {"system.state.switch_motor_on",
     QT_TRANSLATE_NOOP("tavik", "The motors were not switched on: %1."),
     QT_TRANSLATE_NOOP("tavik", "Remove the cause, then switch them on again.")},
    {"system.state.switch_motor_off",
     QT_TRANSLATE_NOOP("tavik", "The motors were not switched off: %1."),
     QT_TRANSLATE_NOOP("tavik", "If the robot moves, use the emergency stop.")},
    {"system.state.switch_manual", QT_TRANSLATE_NOOP("tavik", "The mode stays automatic: %1."),
     QT_TRANSLATE_NOOP("tavik", "Stop the program, then change the mode.")},
    {"system.state.switch_auto", QT_TRANSLATE_NOOP("tavik", "The mode stays manual: %1."),
     QT_TRANSLATE_NOOP("tavik", "Stop the program, then change the mode.")},
    {"io.io_signal.set_signal_value", QT_TRANSLATE_NOOP("tavik", "The signal was not set: %1."),
     QT_TRANSLATE_NOOP("tavik", "Check the signal's name and type.")},
    {"io.io_signal.set_input_simu_mode",
     QT_TRANSLATE_NOOP("tavik", "The simulation of inputs was not switched: %1."),
     QT_TRANSLATE_NOOP("tavik", "Stop the program, then try again.")},
    {"project.overview.open",
     QT_TRANSLATE_NOOP("tavik", "The controller did not open the project: %1."),
     QT_TRANSLATE_NOOP("tavik", "Open it again, or give it another name.")},
};

QString tr(const char *text)
{
    return QCoreApplication::translate("tavik", text);
}

/** The usual cause is worth naming. */
QString adviceFor(const Refusal &refusal)
{
    const bool start = refusal.command == QLatin1String("rl_program.start");
    if (start && m(QStringLiteral("brisa.r.power"))->getStr(QString()) == QLatin1String("off"))
        return tr("Switch the motors on, then press Start again.");
    return tr(refusal.advice);
}

} // namespace

QString refusalSentence(const QString &command, const QString &reason)
{
    for (const Refusal &refusal : refusals) {
        if (command == QLatin1String(refusal.command))
            return tr(refusal.sentence).arg(reason) + QLatin1Char(' ') + adviceFor(refusal);
    }
    return QString();
}

} // namespace tavik
