#include "tavik/runcontrol_p.h"

#include "brisa/controllermanager.h"
#include "link/client.h"
#include "ostrel/moduleobject.h"
#include "tavik/refusals_p.h"
#include "tavik/storeedit_p.h"

namespace tavik
{

namespace
{

constexpr int requestTimeout = 4800; // ms

const QLatin1String startCommand("rl_program.start");
const QLatin1String stopCommand("rl_program.stop");

ostrel::ModuleObject *operatorNode()
{
    return m(QStringLiteral("brisa.r.operator"));
}

ostrel::ModuleObject *stateNode()
{
    return m(QStringLiteral("brisa.r.zeplet.state"));
}

ostrel::ModuleObject *programNode()
{
    return m(QStringLiteral("brisa.r.state"));
}

ostrel::ModuleObject *filterNode(const char *what)
{
    return m(QStringLiteral("brisa.r.zeplet.filter.") + QLatin1String(what));
}

bool filters(const char *what)
{
    return filterNode(what)->getBool(false);
}

void warn(const QString &message)
{
    tell(QStringLiteral("warning"), message);
}

} // namespace

RunControl::RunControl(brisa::ControllerManager *controller, QObject *parent)
    : QObject(parent)
    , m_controller(controller)
{
    using ostrel::ModuleObject;
    operatorNode()->set(this, QString(), false);
    if (stateNode()->isNull())
        stateNode()->set(this, QString(), false); // plugins find it missing otherwise
    endWaiting();
    connect(operatorNode(), &ModuleObject::changed, this,
            [this](const QVariant &wish) { obey(wish.toString()); });
    connect(stateNode(), &ModuleObject::changed, this,
            [this](const QVariant &state, const QVariant &, QObject *origin) {
                if (origin != this)
                    answer(state.toString());
            });
    for (const char *what : {"run", "stop"})
        connect(filterNode(what), &ModuleObject::changed, this, &RunControl::followFilters);
    connect(programNode(), &ModuleObject::changed, this, &RunControl::followProgram);
    connect(controller, &brisa::ControllerManager::rcDisconnected, this, &RunControl::loseLink);
}

void RunControl::obey(const QString &wish)
{
    if (wish.isEmpty())
        return;
    operatorNode()->set(this, QString());
    if (wish == QLatin1String("start"))
        start();
    else if (wish == QLatin1String("stop"))
        stop();
    else if (wish == QLatin1String("cancel"))
        cancel();
    else
        qCWarning(tavikLog).noquote() << QStringLiteral("no wish of an operator: ") + wish.left(40);
}

void RunControl::start()
{
    if (!m_controller->isConnected()) {
        warn(tr("The program can't be started: there is no link to the controller. Check its power "
                "and the network."));
        return;
    }
    if (m_waiting == Waiting::Run)
        return;
    if (m_waiting == Waiting::Stop) {
        warn(tr("The program can't be started while a stop waits for a plugin. Press Stop again to "
                "stop at once, or cancel the stop."));
        return;
    }
    if (isRunning()) {
        tell(QStringLiteral("info"), tr("The program is running already."));
        return;
    }
    m_startGivenUp = false;
    if (filters("run"))
        waitFor(Waiting::Run);
    else
        send(startCommand);
}

void RunControl::stop()
{
    if (!m_controller->isConnected()) {
        warn(
            tr("The program can't be stopped from here: there is no link to the controller. If the "
               "robot moves, use the emergency stop."));
        return;
    }
    const bool startWaited = m_waiting == Waiting::Run;
    const bool stopWaited = m_waiting == Waiting::Stop;
    giveUp();
    if (startWaited && !isRunning())
        return;
    if (filters("stop") && !stopWaited)
        waitFor(Waiting::Stop);
    else
        send(stopCommand);
}

void RunControl::cancel()
{
    if (m_waiting == Waiting::Stop && isRunning())
        tell(QStringLiteral("info"), tr("The stop was cancelled: the program runs on."));
    giveUp();
}

void RunControl::answer(const QString &state)
{
    if (state == QLatin1String("run"))
        startForPlugin();
    else if (state == QLatin1String("stop"))
        stopForPlugin();
}

void RunControl::startForPlugin()
{
    if (!m_controller->isConnected()) {
        warn(tr("A plugin can't start the program: there is no link to the controller."));
        return;
    }
    if (m_waiting == Waiting::Stop) {
        warn(tr("A plugin wanted to start the program while a stop waits: it was not started."));
        return;
    }
    if (m_startGivenUp) {
        m_startGivenUp = false;
        warn(tr("A plugin answered a start that had been given up: the program was not started. "
                "Press Start to start it."));
        return;
    }
    endWaiting();
    send(startCommand);
}

/** To a start that waits, it is the plugin's no. */
void RunControl::stopForPlugin()
{
    if (!m_controller->isConnected()) {
        warn(tr("A plugin can't stop the program: there is no link to the controller."));
        return;
    }
    const bool refused = m_waiting == Waiting::Run && !isRunning();
    endWaiting();
    if (refused)
        warn(tr("A plugin did not let the program start."));
    else
        send(stopCommand);
}

/** Without a filter nobody answers any more. */
void RunControl::followFilters()
{
    if (m_waiting == Waiting::Run && !filters("run")) {
        warn(tr("The plugin that was asked no longer answers: the program was not started. Press "
                "Start again."));
        giveUp();
    }
    if (m_waiting == Waiting::Stop && !filters("stop"))
        stop();
    m_startGivenUp = m_startGivenUp && filters("run");
}

void RunControl::followProgram()
{
    if (m_waiting == (isRunning() ? Waiting::Run : Waiting::Stop))
        giveUp();
}

void RunControl::loseLink()
{
    if (m_waiting == Waiting::Run)
        warn(tr("The link to the controller was lost: the start was given up. Press Start again "
                "when the controller is back."));
    else if (m_waiting == Waiting::Stop)
        warn(tr("The link to the controller was lost while a stop waited: the program may run on. "
                "If the robot moves, use the emergency stop."));
    giveUp();
}

void RunControl::waitFor(Waiting waiting)
{
    const bool run = waiting == Waiting::Run;
    m_waiting = waiting;
    setWhereDifferent(QStringLiteral("brisa.r.zeplet.waiting"),
                      run ? QStringLiteral("run") : QStringLiteral("stop"), this);
    announce(run ? QStringLiteral("run_before") : QStringLiteral("stop_before"));
}

void RunControl::giveUp()
{
    if (m_waiting == Waiting::Run)
        m_startGivenUp = true;
    endWaiting();
}

void RunControl::endWaiting()
{
    m_waiting = Waiting::None;
    setWhereDifferent(QStringLiteral("brisa.r.zeplet.waiting"), QString(), this);
    if (stateNode()->getStr(QString()).endsWith(QLatin1String("_before")))
        announce(QString());
}

/** Plugins hear of it at once, and may throw. */
void RunControl::announce(const QString &state)
{
    rpc::deliver(stateNode()->name(), [&] { stateNode()->set(this, state); });
}

void RunControl::send(const QString &command)
{
    if (!m_controller->request(command, nullptr, requestTimeout))
        warn(failureSentence(command, tr("too many requests wait"), true));
}

bool RunControl::isRunning() const
{
    return programNode()->getStr(QString()) == QLatin1String("program");
}

} // namespace tavik
