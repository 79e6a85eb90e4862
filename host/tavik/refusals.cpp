#include "tavik/refusals_p.h"

#include "ostrel/moduleobject.h"

#include <QCoreApplication>

namespace tavik
{

namespace
{

struct Request {
    const char *command;
    const char *subject;
    const char *advice;
};

constexpr char checkRobot[]
    = QT_TRANSLATE_NOOP("tavik", "If the robot moves, use the emergency stop.");
constexpr char stopFirst[] = QT_TRANSLATE_NOOP("tavik", "Stop the program, then try again.");

constexpr Request requests[] = {
    {"rl_program.start", QT_TRANSLATE_NOOP("tavik", "The start of the program"),
     QT_TRANSLATE_NOOP("tavik", "Remove the cause, then press Start again.")},
    {"rl_program.stop", QT_TRANSLATE_NOOP("tavik", "The stop of the program"), checkRobot},
    {"system.state.switch_motor_on", QT_TRANSLATE_NOOP("tavik", "Switching the motors on"),
     QT_TRANSLATE_NOOP("tavik", "Remove the cause, then switch them on again.")},
    {"system.state.switch_motor_off", QT_TRANSLATE_NOOP("tavik", "Switching the motors off"),
     checkRobot},
    {"system.state.switch_manual", QT_TRANSLATE_NOOP("tavik", "The change to manual mode"),
     stopFirst},
    {"system.state.switch_auto", QT_TRANSLATE_NOOP("tavik", "The change to automatic mode"),
     stopFirst},
    {"io.io_signal.set_signal_value", QT_TRANSLATE_NOOP("tavik", "Setting the signal"),
     QT_TRANSLATE_NOOP(
         "tavik",
         "Check the signal's name and type; an input can be set only while inputs are "
         "simulated.")},
    {"io.io_signal.set_input_simu_mode",
     QT_TRANSLATE_NOOP("tavik", "Switching the simulation of inputs"), stopFirst},
    {"project.overview.open", QT_TRANSLATE_NOOP("tavik", "Opening the project in the controller"),
     QT_TRANSLATE_NOOP("tavik",
                       "The controller still works with the project before. "
                       "Remove the cause, then open the project again.")},
};

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(tavik)
};

/** The usual cause is worth naming. */
QString adviceFor(const Request &request)
{
    const bool start = request.command == QLatin1String("rl_program.start");
    if (start && m(QStringLiteral("brisa.r.power"))->getStr(QString()) == QLatin1String("off"))
        return Texts::tr("Switch the motors on, then press Start again.");
    return Texts::tr(request.advice);
}

} // namespace

QString failureSentence(const QString &command, const QString &reason, bool refused)
{
    for (const Request &request : requests) {
        if (command != QLatin1String(request.command))
            continue;
        if (refused)
            return Texts::tr("%1 was refused: %2. %3")
                .arg(Texts::tr(request.subject), reason, adviceFor(request));
        return Texts::tr(
                   "%1 was not confirmed: %2. It may have been carried out: look at the robot "
                   "before "
                   "you try again.")
            .arg(Texts::tr(request.subject), reason);
    }
    return QString();
}

} // namespace tavik
